#include "propmodels/parametersettest.h"

#include <arvxml/p452.h>

using namespace ArvXml;
using namespace ParameterSets;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

namespace {

using Set = XmlPropModelP452Type;

/// The texts of a distance in km.
const std::vector<Text> distances = {
    {"12.34", 12.34, "12.3"},  {"40000", 40000.0, "40000.0"},   {"0", 0.0, "0.0"},
    {"500.0", 500.0, "500.0"}, {"40000.1", 40000.1, "40000.1"}, {"-0.26", -0.26, "-0.3"},
    {"1e3", 1000.0, "1000.0"}, {"nan", std::nan(""), "nan"},
};

ParameterSet table()
{
    // The set reports with two digits exchanged.
    return parameterSet<Set>(
        "XmlPropModelP542Type",
        {
            real(accessors(&Set::setDeltaN, &Set::deltaN, &Set::hasDeltaN), "DeltaN", 45.59)
                .reads({{"45.59", 45.59, "45.6"},
                        {"0", 0.0, "0.0"},
                        {"600.0", 600.0, "600.0"},
                        {"77.24", 77.24, "77.2"},
                        {"600.1", 600.1, "600.1"},
                        {"-1", -1.0, "-1.0"},
                        {"nan", std::nan(""), "nan"}})
                .bounds(0.0, 600.0, "DeltaN out of bounds")
                .fails("Illegal DeltaN value (must be numeric)"),
            integer(accessors(&Set::setSurfaceRefract, &Set::surfaceRefract, &Set::hasSurfaceRefract), "SurfaceRefract",
                    329)
                .reads({{"250", 250, "250"},
                        {"400", 400, "400"},
                        {"329", 329, "329"},
                        {"249", 249, "249"},
                        {"401", 401, "401"},
                        {"0310", 310, "310"},
                        {"+300", 300, "300"},
                        {"2147483647", 2147483647, "2147483647"},
                        {"-2147483648", -2147483648.0, "-2147483648"}})
                .bounds(250, 400, "SurfaceRefract out of bounds")
                .fails("Illegal SurfaceRefract value (must be numeric)"),
            real(accessors(&Set::setTimePct, &Set::timePct, &Set::hasTimePct), "TimePct", 50.0)
                .reads({{"0.01", 0.01, "0.01"},
                        {"10", 10.0, "10.00"},
                        {"50", 50.0, "50.00"},
                        {"49.996", 49.996, "50.00"},
                        {"0.004", 0.004, "0.00"},
                        {"50.01", 50.01, "50.01"},
                        {"nan", std::nan(""), "nan"}})
                .bounds(0.01, 50.0, "TimePct out of bounds")
                .fails("Illegal TimePct value (must be numeric)"),
            integer(accessors(&Set::setPressure_hPa, &Set::pressure_hPa, &Set::hasPressure_hPa), "Pressure_hPa", 1013)
                .reads({{"800", 800, "800"},
                        {"1100", 1100, "1100"},
                        {"1013", 1013, "1013"},
                        {"799", 799, "799"},
                        {"1101", 1101, "1101"}})
                .bounds(800, 1100, "Pressure_hPa out of bounds")
                .fails("Illegal Pressure_hPa value (must be numeric)"),
            integer(accessors(&Set::setTemp_C, &Set::temp_C, &Set::hasTemp_C), "Temp_C", 15)
                .reads({{"-60", -60, "-60"},
                        {"50", 50, "50"},
                        {"15", 15, "15"},
                        {"0", 0, "0"},
                        {"-61", -61, "-61"},
                        {"51", 51, "51"}})
                .bounds(-60, 50, "Temp_C out of bounds")
                .fails("Illegal Temp_C value (must be numeric)"),
            real(accessors(&Set::setOverWater_km, &Set::overWater_km, &Set::hasOverWater_km), "OverWater_km", 0.0)
                .reads(distances)
                .bounds(0.0, 40000.0, "OverWater_km out of bounds")
                .fails("Illegal OverWater_km value (must be numeric)"),
            real(accessors(&Set::setInlandCoastal_km, &Set::inlandCoastal_km, &Set::hasInlandCoastal_km),
                 "InlandCoastal_km", 0.0)
                .reads(distances)
                .bounds(0.0, 40000.0, "InlandCoastal_km out of bounds")
                .fails("Illegal InlandCoastal_km value (must be numeric)"),
            real(accessors(&Set::setInland_km, &Set::inland_km, &Set::hasInland_km), "Inland_km", 0.0)
                .reads(distances)
                .bounds(0.0, 40000.0, "Inland_km out of bounds")
                .fails("Illegal Inland_km value (must be numeric)"),
            real(accessors(&Set::setDistTxCoast_km, &Set::distTxCoast_km, &Set::hasDistTxCoast_km), "DistTxCoast_km",
                 500.0)
                .reads(distances)
                .bounds(0.0, 40000.0, "DistTxCoast_km out of bounds")
                .fails("Illegal DistTxCoast_km value (must be numeric)"),
            real(accessors(&Set::setDistRxCoast_km, &Set::distRxCoast_km, &Set::hasDistRxCoast_km), "DistRxCoast_km",
                 500.0)
                .reads(distances)
                .bounds(0.0, 40000.0, "DistRxCoast_km out of bounds")
                .fails("Illegal DistRxCoast_km value (must be numeric)"),
        },
        {
            "-+++++++++",
            "--++++++++",
            "---+++++++",
            "----++++++",
            "-----+++++",
            "------++++",
            "-------+++",
            "--------++",
            "---------+",
            "----------",
        });
}

} // namespace

class P452Test : public ParameterSetTest {
    Q_OBJECT

public:
    P452Test()
        : ParameterSetTest(table())
    {
    }

private Q_SLOTS:
    void defaults()
    {
        const Set set;
        QCOMPARE(set.deltaN(), 45.59);
        QCOMPARE(set.surfaceRefract(), 329);
        QCOMPARE(set.timePct(), 50.0);
        QCOMPARE(set.pressure_hPa(), 1013);
        QCOMPARE(set.temp_C(), 15);
        QCOMPARE(set.overWater_km(), 0.0);
        QCOMPARE(set.inlandCoastal_km(), 0.0);
        QCOMPARE(set.inland_km(), 0.0);
        QCOMPARE(set.distTxCoast_km(), 500.0);
        QCOMPARE(set.distRxCoast_km(), 500.0);
        QCOMPARE(written(set, QStringLiteral("PropertiesP452")), QStringLiteral("<PropertiesP452/>"));
    }

    void oneDecimalIsWritten()
    {
        Set set;
        set.setDeltaN(45.59);
        QCOMPARE(written(set, QStringLiteral("PropertiesP452")),
                 QStringLiteral("<PropertiesP452><DeltaN>45.6</DeltaN></PropertiesP452>"));
    }

    void theWholeSet()
    {
        const QString xml = QStringLiteral("<PropertiesP452>"
                                           "<DeltaN>45.0</DeltaN>"
                                           "<SurfaceRefract>330</SurfaceRefract>"
                                           "<TimePct>10.25</TimePct>"
                                           "<Pressure_hPa>1000</Pressure_hPa>"
                                           "<Temp_C>-5</Temp_C>"
                                           "<OverWater_km>1.5</OverWater_km>"
                                           "<InlandCoastal_km>2.5</InlandCoastal_km>"
                                           "<Inland_km>3.5</Inland_km>"
                                           "<DistTxCoast_km>4.5</DistTxCoast_km>"
                                           "<DistRxCoast_km>5.5</DistRxCoast_km>"
                                           "</PropertiesP452>");
        const Set set = readFrom<Set>(xml);
        QCOMPARE(set.deltaN(), 45.0);
        QCOMPARE(set.surfaceRefract(), 330);
        QCOMPARE(set.timePct(), 10.25);
        QCOMPARE(set.pressure_hPa(), 1000);
        QCOMPARE(set.temp_C(), -5);
        QCOMPARE(set.overWater_km(), 1.5);
        QCOMPARE(set.inlandCoastal_km(), 2.5);
        QCOMPARE(set.inland_km(), 3.5);
        QCOMPARE(set.distTxCoast_km(), 4.5);
        QCOMPARE(set.distRxCoast_km(), 5.5);
        QCOMPARE(written(set, QStringLiteral("PropertiesP452")), xml);
    }

    void everythingOutOfRange()
    {
        Set set;
        set.setDistRxCoast_km(-1.0);
        set.setDistTxCoast_km(-1.0);
        set.setInland_km(-1.0);
        set.setInlandCoastal_km(-1.0);
        set.setOverWater_km(-1.0);
        set.setTemp_C(51);
        set.setPressure_hPa(799);
        set.setTimePct(0.0);
        set.setSurfaceRefract(401);
        set.setDeltaN(600.1);
        QVERIFY(!set.isValid());
        QCOMPARE(set.syntaxError(),
                 QStringLiteral("+++ in XmlPropModelP542Type Begin:\n"
                                "DeltaN out of bounds\n"
                                "SurfaceRefract out of bounds\n"
                                "TimePct out of bounds\n"
                                "Pressure_hPa out of bounds\n"
                                "Temp_C out of bounds\n"
                                "OverWater_km out of bounds\n"
                                "InlandCoastal_km out of bounds\n"
                                "Inland_km out of bounds\n"
                                "DistTxCoast_km out of bounds\n"
                                "DistRxCoast_km out of bounds\n"
                                "--- in XmlPropModelP542Type End"));
    }

    void aFractionIsNoInteger()
    {
        Set set;
        QCOMPARE(readError(set,
                           QStringLiteral("<PropertiesP452>\n"
                                          "  <DeltaN>30</DeltaN>\n"
                                          "  <SurfaceRefract>329.5</SurfaceRefract>\n"
                                          "</PropertiesP452>")),
                 QStringLiteral("in XmlPropModelP542Type (line 3, column 40): "
                                "Illegal SurfaceRefract value (must be numeric)."));
        QCOMPARE(set.deltaN(), 30.0);
        QVERIFY(set.hasDeltaN());
        QCOMPARE(set.surfaceRefract(), 329);
        QVERIFY(!set.hasSurfaceRefract());
    }
};

QTEST_APPLESS_MAIN(P452Test)
#include "moc_parametersettest.cpp"
#include "p452_test.moc"
