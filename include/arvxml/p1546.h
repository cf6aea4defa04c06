#pragma once

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the ITU-R P.1546 point-to-area model, all optional:
/// `<PropertiesP1546><K-factor>1.333</K-factor><TimePct>50.00</TimePct>...</PropertiesP1546>`.
///
/// Each parameter comes at most once, in the order of the accessors below. Choices are read exactly by their
/// texts, that of value 0 included: "Undefined", "Land", "Cold Sea", "Warm Sea"; "Undefined", "Open",
/// "Suburban", "Warm Sea"; "Off", "On". A value outside is written with the text of value 0. Reading resets the
/// set first.
class ARVXML_EXPORT XmlPropModelP1546Type : public XmlParameterSet {
public:
    enum Path : int {
        PathUndefined = 0,
        PathLand = 1,
        PathColdSea = 2,
        PathWarmSea = 3,
    };

    /// The fourth environment is "Warm Sea", as the fourth path is.
    enum Environment : int {
        EnvironmentUndefined = 0,
        EnvironmentOpen = 1,
        EnvironmentSuburban = 2,
        EnvironmentWarmSea = 3,
    };

    enum Switch : int {
        SwitchOff = 0,
        SwitchOn = 1,
    };

    XmlPropModelP1546Type();

    /// The effective earth radius factor, tag "K-factor": 0.1 to 5.0, default 1.3333.
    double kFactor() const { return realValue(KFactorRow); }
    void setKfactor(double value) { setValue(KFactorRow, value); }
    bool hasKfactor() const { return isPresent(KFactorRow); }

    /// The percentage of time, tag "TimePct": 0.01 to 50.0, default 50.0.
    double time() const { return realValue(TimeRow); }
    void setTime(double value) { setValue(TimeRow, value); }
    bool hasTime() const { return isPresent(TimeRow); }

    /// The type of the path, tag "PropPathType".
    Path path() { return choiceValue<Path>(PathRow); }
    Path path() const { return choiceValue<Path>(PathRow); }
    void setPath(Path value) { setValue(PathRow, value); }
    bool hasPath() const { return isPresent(PathRow); }

    /// The percentage of locations, tag "LocVar": 1.0 to 99.0, default 50.0. A text that is no number leaves
    /// 50.0 as present, and makes "TimePct" absent instead.
    double locVar() const { return realValue(LocVarRow); }
    void setLocVar(double value) { setValue(LocVarRow, value); }
    bool hasLocVar() const { return isPresent(LocVarRow); }

    /// The gain of the broadcasting antenna, tag "BoardAntGain" (so spelled, but its
    /// problem reads "BroadAntGain out of bounds"): 0.0 to 99.999, default 0.0. A text that is no number leaves
    /// 50.0. The setter is spelled "GAin".
    double broadAntGain() const { return realValue(BroadAntGainRow); }
    void setBroadAntGAin(double value) { setValue(BroadAntGainRow, value); }
    bool hasBroadAntGain() const { return isPresent(BroadAntGainRow); }

    /// The surroundings of the receiving antenna, tag "RxAntEnviro".
    Environment rxAntE() { return choiceValue<Environment>(RxAntERow); }
    Environment rxAntE() const { return choiceValue<Environment>(RxAntERow); }
    void setRxAntE(Environment value) { setValue(RxAntERow, value); }
    bool hasRxAntE() const { return isPresent(RxAntERow); }

    /// The surroundings in the area on average, tag "AvgAreaEnviro".
    Environment avgAreaE() { return choiceValue<Environment>(AvgAreaERow); }
    Environment avgAreaE() const { return choiceValue<Environment>(AvgAreaERow); }
    void setAvgAreaE(Environment value) { setValue(AvgAreaERow, value); }
    bool hasAvgAreaE() const { return isPresent(AvgAreaERow); }

    /// Whether the path is corrected, tag "PathCorrection".
    Switch correction() { return choiceValue<Switch>(CorrectionRow); }
    Switch correction() const { return choiceValue<Switch>(CorrectionRow); }
    void setCorrection(Switch value) { setValue(CorrectionRow, value); }
    bool hasCorrection() const { return isPresent(CorrectionRow); }

    /// The type of the path at the broadcasting antenna, tag "PathTypeForBroadAnt".
    Path broadAnt() { return choiceValue<Path>(BroadAntRow); }
    Path broadAnt() const { return choiceValue<Path>(BroadAntRow); }
    void setBroadAnt(Path value) { setValue(BroadAntRow, value); }
    bool hasBroadAnt() const { return isPresent(BroadAntRow); }

    /// The type of the path at the receiving antenna, tag "PathTypeForRxAnt".
    Path rxAnt() { return choiceValue<Path>(RxAntRow); }
    Path rxAnt() const { return choiceValue<Path>(RxAntRow); }
    void setRxAnt(Path value) { setValue(RxAntRow, value); }
    bool hasRxAnt() const { return isPresent(RxAntRow); }

protected:
    const ParameterTable& table() const override;

private:
    enum Row {
        KFactorRow,
        TimeRow,
        PathRow,
        LocVarRow,
        BroadAntGainRow,
        RxAntERow,
        AvgAreaERow,
        CorrectionRow,
        BroadAntRow,
        RxAntRow
    };
};

} // namespace ArvXml
