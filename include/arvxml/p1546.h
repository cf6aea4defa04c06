#pragma once

/// \file
/// The parameters of ITU-R P.1546.

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the ITU-R P.1546 point-to-area model, all optional. Texts must match those of the enumerators
/// exactly, including that of value 0 ("Illegal enum for PropPathType"). Values outside the enumerators are written
/// with the text of value 0; no value is invalid. Numbers out of range are reported like "TimePct out of bounds".
/// \code{.xml}
/// <PropertiesP1546>
///     <K-factor>1.333</K-factor>
///     <TimePct>50.00</TimePct>
///     <PropPathType>Land</PropPathType>
///     <LocVar>50.00</LocVar>
///     <BoardAntGain>2.150</BoardAntGain>
///     <RxAntEnviro>Open</RxAntEnviro>
///     <AvgAreaEnviro>Suburban</AvgAreaEnviro>
///     <PathCorrection>On</PathCorrection>
///     <PathTypeForBroadAnt>Land</PathTypeForBroadAnt>
///     <PathTypeForRxAnt>Cold Sea</PathTypeForRxAnt>
/// </PropertiesP1546>
/// \endcode
class ARVXML_EXPORT XmlPropModelP1546Type : public XmlParameterSet {
public:
    /// The types of paths, with their texts.
    enum Path : int {
        PathUndefined = 0, ///< "Undefined"
        PathLand = 1,      ///< "Land"
        PathColdSea = 2,   ///< "Cold Sea"
        PathWarmSea = 3,   ///< "Warm Sea"
    };

    /// The environments, with their texts. The fourth is "Warm Sea", as for paths.
    enum Environment : int {
        EnvironmentUndefined = 0, ///< "Undefined"
        EnvironmentOpen = 1,      ///< "Open"
        EnvironmentSuburban = 2,  ///< "Suburban"
        EnvironmentWarmSea = 3,   ///< "Warm Sea"
    };

    /// Off or on, with their texts.
    enum Switch : int {
        SwitchOff = 0, ///< "Off"
        SwitchOn = 1,  ///< "On"
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

    /// The type of the path, tag "PropPathType"; undefined by default.
    Path path() { return choiceValue<Path>(PathRow); }
    Path path() const { return choiceValue<Path>(PathRow); }
    void setPath(Path value) { setValue(PathRow, value); }
    bool hasPath() const { return isPresent(PathRow); }

    /// The percentage of locations, tag "LocVar": 1.0 to 99.0, default 50.0. A text that is not a number leaves 50.0 as
    /// present and makes "TimePct" absent instead.
    double locVar() const { return realValue(LocVarRow); }
    void setLocVar(double value) { setValue(LocVarRow, value); }
    bool hasLocVar() const { return isPresent(LocVarRow); }

    /// The gain of the broadcasting antenna, tag "BoardAntGain" (sic; problem "BroadAntGain out of bounds"): 0.0 to
    /// 99.999, default 0.0. A text that is not a number leaves 50.0. The setter is spelled "GAin".
    double broadAntGain() const { return realValue(BroadAntGainRow); }
    void setBroadAntGAin(double value) { setValue(BroadAntGainRow, value); }
    bool hasBroadAntGain() const { return isPresent(BroadAntGainRow); }

    /// The environment of the receiving antenna, tag "RxAntEnviro"; undefined by default.
    Environment rxAntE() { return choiceValue<Environment>(RxAntERow); }
    Environment rxAntE() const { return choiceValue<Environment>(RxAntERow); }
    void setRxAntE(Environment value) { setValue(RxAntERow, value); }
    bool hasRxAntE() const { return isPresent(RxAntERow); }

    /// The average environment in the area, tag "AvgAreaEnviro"; undefined by default.
    Environment avgAreaE() { return choiceValue<Environment>(AvgAreaERow); }
    Environment avgAreaE() const { return choiceValue<Environment>(AvgAreaERow); }
    void setAvgAreaE(Environment value) { setValue(AvgAreaERow, value); }
    bool hasAvgAreaE() const { return isPresent(AvgAreaERow); }

    /// Whether the path is corrected, tag "PathCorrection"; off by default.
    Switch correction() { return choiceValue<Switch>(CorrectionRow); }
    Switch correction() const { return choiceValue<Switch>(CorrectionRow); }
    void setCorrection(Switch value) { setValue(CorrectionRow, value); }
    bool hasCorrection() const { return isPresent(CorrectionRow); }

    /// The type of the path at the broadcasting antenna, tag "PathTypeForBroadAnt"; undefined by default.
    Path broadAnt() { return choiceValue<Path>(BroadAntRow); }
    Path broadAnt() const { return choiceValue<Path>(BroadAntRow); }
    void setBroadAnt(Path value) { setValue(BroadAntRow, value); }
    bool hasBroadAnt() const { return isPresent(BroadAntRow); }

    /// The type of the path at the receiving antenna, tag "PathTypeForRxAnt"; undefined by default.
    Path rxAnt() { return choiceValue<Path>(RxAntRow); }
    Path rxAnt() const { return choiceValue<Path>(RxAntRow); }
    void setRxAnt(Path value) { setValue(RxAntRow, value); }
    bool hasRxAnt() const { return isPresent(RxAntRow); }

private:
    static const ParameterTable& table();

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
