#pragma once

/// \file
/// The parameters of ITU-R P.452.

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameters of the ITU-R P.452 interference model, all optional. Numbers without decimals are read as integers.
/// Numbers out of range are reported like "DeltaN out of bounds". Messages call the class "XmlPropModelP542Type".
/// \code{.xml}
/// <PropertiesP452>
///     <DeltaN>45.6</DeltaN>
///     <SurfaceRefract>329</SurfaceRefract>
///     <TimePct>50.00</TimePct>
///     <Pressure_hPa>1013</Pressure_hPa>
///     <Temp_C>15</Temp_C>
///     <OverWater_km>0.0</OverWater_km>
///     <InlandCoastal_km>0.0</InlandCoastal_km>
///     <Inland_km>25.0</Inland_km>
///     <DistTxCoast_km>500.0</DistTxCoast_km>
///     <DistRxCoast_km>500.0</DistRxCoast_km>
/// </PropertiesP452>
/// \endcode
class ARVXML_EXPORT XmlPropModelP452Type : public XmlParameterSet {
public:
    XmlPropModelP452Type();

    /// The lapse rate of the refractive index, tag "DeltaN": 0.0 to 600.0, default 45.59.
    double deltaN() const { return realValue(DeltaNRow); }
    void setDeltaN(double value) { setValue(DeltaNRow, value); }
    bool hasDeltaN() const { return isPresent(DeltaNRow); }

    /// The surface refractivity, tag "SurfaceRefract": 250 to 400, default 329.
    int surfaceRefract() const { return integerValue(SurfaceRefractRow); }
    void setSurfaceRefract(int value) { setValue(SurfaceRefractRow, value); }
    bool hasSurfaceRefract() const { return isPresent(SurfaceRefractRow); }

    /// The percentage of time, tag "TimePct": 0.01 to 50.0, default 50.0.
    double timePct() const { return realValue(TimePctRow); }
    void setTimePct(double value) { setValue(TimePctRow, value); }
    bool hasTimePct() const { return isPresent(TimePctRow); }

    /// The air pressure, tag "Pressure_hPa": 800 to 1100 hPa, default 1013.
    int pressure_hPa() const { return integerValue(PressureRow); }
    void setPressure_hPa(int value) { setValue(PressureRow, value); }
    bool hasPressure_hPa() const { return isPresent(PressureRow); }

    /// The temperature, tag "Temp_C": -60 to 50 degrees Celsius, default 15.
    int temp_C() const { return integerValue(TempRow); }
    void setTemp_C(int value) { setValue(TempRow, value); }
    bool hasTemp_C() const { return isPresent(TempRow); }

    /// The length of the path over water, tag "OverWater_km": 0.0 to 40000.0 km, default 0.0.
    double overWater_km() const { return realValue(OverWaterRow); }
    void setOverWater_km(double value) { setValue(OverWaterRow, value); }
    bool hasOverWater_km() const { return isPresent(OverWaterRow); }

    /// The length of the path over coastal land, tag "InlandCoastal_km": 0.0 to 40000.0 km, default 0.0.
    double inlandCoastal_km() const { return realValue(InlandCoastalRow); }
    void setInlandCoastal_km(double value) { setValue(InlandCoastalRow, value); }
    bool hasInlandCoastal_km() const { return isPresent(InlandCoastalRow); }

    /// The length of the path over inland, tag "Inland_km": 0.0 to 40000.0 km, default 0.0.
    double inland_km() const { return realValue(InlandRow); }
    void setInland_km(double value) { setValue(InlandRow, value); }
    bool hasInland_km() const { return isPresent(InlandRow); }

    /// The distance of the transmitter from the coast, tag "DistTxCoast_km": 0.0 to 40000.0 km, default 500.0.
    double distTxCoast_km() const { return realValue(DistTxCoastRow); }
    void setDistTxCoast_km(double value) { setValue(DistTxCoastRow, value); }
    bool hasDistTxCoast_km() const { return isPresent(DistTxCoastRow); }

    /// The distance of the receiver from the coast, tag "DistRxCoast_km": 0.0 to 40000.0 km, default 500.0.
    double distRxCoast_km() const { return realValue(DistRxCoastRow); }
    void setDistRxCoast_km(double value) { setValue(DistRxCoastRow, value); }
    bool hasDistRxCoast_km() const { return isPresent(DistRxCoastRow); }

private:
    static const ParameterTable& table();

    enum Row {
        DeltaNRow,
        SurfaceRefractRow,
        TimePctRow,
        PressureRow,
        TempRow,
        OverWaterRow,
        InlandCoastalRow,
        InlandRow,
        DistTxCoastRow,
        DistRxCoastRow
    };
};

} // namespace ArvXml
