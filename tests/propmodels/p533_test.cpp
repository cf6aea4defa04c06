#include "propmodels/parametersettest.h"

#include <arvxml/p533.h>

using namespace ArvXml;
using namespace ParameterSets;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

namespace {

using Set = XmlPropModelP533Type;

ParameterSet table()
{
    // The set reports under the name of another one.
    return parameterSet<Set>(
        "XmlPropModelP526Type",
        {
            real(accessors(&Set::setKfactor, &Set::kFactor, &Set::hasKFactor), "K-factor", 1.0)
                .reads({{"2.5", 2.5, "2.500"},
                        {"0.1", 0.1, "0.100"},
                        {"5", 5.0, "5.000"},
                        {"1.0", 1.0, "1.000"},
                        {"1.33349", 1.33349, "1.333"},
                        {"1.3336", 1.3336, "1.334"},
                        {"-7e1", -70.0, "-70.000"},
                        {"5.0001", 5.0001, "5.000"},
                        {"nan", std::nan(""), "nan"}})
                .bounds(0.1, 5.0, "K-factor out of bounds")
                .fails("Illegal K-factor value (must be numeric)"),
            real(accessors(&Set::setSunSpots, &Set::sunSpots, &Set::hasSunSpots), "SmoothedSunSpotNumber", 5.0)
                .reads({{"120.24", 120.24, "120.2"},
                        {"999.9", 999.9, "999.9"},
                        {"0", 0.0, "0.0"},
                        {"5", 5.0, "5.0"},
                        {"77.77", 77.77, "77.8"},
                        {"1000", 1000.0, "1000.0"},
                        {"-0.5", -0.5, "-0.5"},
                        {"nan", std::nan(""), "nan"}})
                .bounds(0.0, 999.9, "SmoothedSunSpotNumber out of bounds")
                .fails("Illegal SmoothedSunSpotNumber value (must be numeric)"),
        },
        {"-+", "--"});
}

} // namespace

class P533Test : public ParameterSetTest {
    Q_OBJECT

public:
    P533Test()
        : ParameterSetTest(table())
    {
    }

private Q_SLOTS:
    void defaults()
    {
        const Set set;
        QCOMPARE(set.kFactor(), 1.0);
        QVERIFY(!set.hasKFactor());
        QCOMPARE(set.sunSpots(), 5.0);
        QVERIFY(!set.hasSunSpots());
        QCOMPARE(written(set, QStringLiteral("PropertiesP533")), QStringLiteral("<PropertiesP533/>"));
    }

    void theWholeSet()
    {
        const QString xml = QStringLiteral("<PropertiesP533>"
                                           "<K-factor>1.250</K-factor>"
                                           "<SmoothedSunSpotNumber>80.5</SmoothedSunSpotNumber>"
                                           "</PropertiesP533>");
        const Set set = readFrom<Set>(xml);
        QCOMPARE(set.kFactor(), 1.25);
        QCOMPARE(set.sunSpots(), 80.5);
        QCOMPARE(written(set, QStringLiteral("PropertiesP533")), xml);
    }

    void theLimitsOfTheSunspotNumber_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("isValid");
        QTest::newRow("999.9 is valid") << 999.9 << true;
        QTest::newRow("1000 is not") << 1000.0 << false;
        QTest::newRow("0 is valid") << 0.0 << true;
        QTest::newRow("a negative number is not") << -0.1 << false;
    }
    void theLimitsOfTheSunspotNumber()
    {
        QFETCH(double, value);
        QFETCH(bool, isValid);
        Set set;
        set.setSunSpots(value);
        QCOMPARE(set.isValid(), isValid);
        QCOMPARE(set.syntaxError(),
                 isValid ? QString()
                         : QStringLiteral("+++ in XmlPropModelP526Type Begin:\n"
                                          "SmoothedSunSpotNumber out of bounds\n"
                                          "--- in XmlPropModelP526Type End"));
    }

    void bothOutOfRange()
    {
        Set set;
        set.setSunSpots(1000.0);
        set.setKfactor(0.0);
        QCOMPARE(set.syntaxError(),
                 QStringLiteral("+++ in XmlPropModelP526Type Begin:\n"
                                "K-factor out of bounds\n"
                                "SmoothedSunSpotNumber out of bounds\n"
                                "--- in XmlPropModelP526Type End"));
    }

    void aTextThatIsNoNumber()
    {
        Set set;
        QCOMPARE(readError(set,
                           QStringLiteral("<PropertiesP533>\n"
                                          "  <K-factor>2</K-factor>\n"
                                          "  <SmoothedSunSpotNumber>many</SmoothedSunSpotNumber>\n"
                                          "</PropertiesP533>")),
                 QStringLiteral("in XmlPropModelP526Type (line 3, column 53): "
                                "Illegal SmoothedSunSpotNumber value (must be numeric)."));
        QCOMPARE(set.kFactor(), 2.0);
        QVERIFY(set.hasKFactor());
        QCOMPARE(set.sunSpots(), 5.0);
        QVERIFY(!set.hasSunSpots());
    }
};

QTEST_APPLESS_MAIN(P533Test)
#include "moc_parametersettest.cpp"
#include "p533_test.moc"
