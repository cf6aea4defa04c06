#include "propmodels/parametersettest.h"

#include <arvxml/p526.h>

using namespace ArvXml;
using namespace ParameterSets;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

namespace {

using Set = XmlPropModelP526Type;

const std::vector<Text> polarisations = {{"Horizontal", 0, "Horizontal"}, {"Vertical", 1, "Vertical"}};
const std::vector<Text> surfaces = {
    {"Average Ground", 0, "Average Ground"}, {"Poor Ground", 1, "Poor Ground"}, {"Good Ground", 2, "Good Ground"},
    {"Fresh Water", 3, "Fresh Water"},       {"Sea Water", 4, "Sea Water"},
};
const std::vector<Text> switches = {{"Off", 0, "Off"}, {"On", 1, "On"}};

ParameterSet table()
{
    return parameterSet<Set>(
        "XmlPropModelP526Type",
        {
            real(accessors(&Set::setKfactor, &Set::kFactor, &Set::hasKFactor), "K-factor", 1.3333)
                .reads({{"2.5", 2.5, "2.500"},
                        {"0.1", 0.1, "0.100"},
                        {"5", 5.0, "5.000"},
                        {"1.3333", 1.3333, "1.333"},
                        {"1.3336", 1.3336, "1.334"},
                        {"-7e1", -70.0, "-70.000"},
                        {"5.0001", 5.0001, "5.000"},
                        {"nan", std::nan(""), "nan"}})
                .bounds(0.1, 5.0, "K-factor out of bounds")
                .fails("Illegal K-factor value (must be numeric)"),
            choice(accessors(&Set::setPol, &Set::pol, &Set::pol, &Set::hasPol), "Pol", 0)
                .writtenAs("Polarisation")
                .reads(polarisations)
                .otherwiseWrites("Horizontal")
                .fails("Illegal enum for Pol"),
            choice(accessors(&Set::setSurf, &Set::surf, &Set::surf, &Set::hasSurf), "Surface", 0)
                .writtenAs("Surface Condition")
                .reads(surfaces)
                .otherwiseWrites("Average Ground")
                .fails("Illegal enum for Surface"),
            choice(accessors(&Set::setSmooth, &Set::smooth, &Set::smooth, &Set::hasSmooth), "AssumeSmoothEarth", 0)
                .writtenAs("Assume Smooth Earth for complete path")
                .reads(switches)
                .otherwiseWrites("Off")
                .fails("Illegal enum for AssumeSmoothEarth"),
            choice(accessors(&Set::setSubPath, &Set::subPath, &Set::subPath, &Set::hasSubPath),
                   "IncludeSubPathDiffractionLoss", 1)
                .writtenAs("Include sub path diffraction loss")
                .reads(switches)
                .otherwiseWrites("On")
                .fails("Illegal enum for IncludeSubPathDiffractionLoss"),
        },
        {
            "-++++",
            "--+++",
            "---++",
            "----+",
            "-----",
        });
}

} // namespace

class P526Test : public ParameterSetTest {
    Q_OBJECT

public:
    P526Test()
        : ParameterSetTest(table())
    {
    }

private Q_SLOTS:
    void defaults()
    {
        Set set;
        QCOMPARE(set.kFactor(), 1.3333);
        QCOMPARE(int(set.pol()), 0);
        QCOMPARE(int(set.surf()), 0);
        QCOMPARE(int(set.smooth()), 0);
        QCOMPARE(int(set.subPath()), 1);
        QCOMPARE(written(set, QStringLiteral("PropertiesP526")), QStringLiteral("<PropertiesP526/>"));
    }

    void childrenAreWrittenUnderTheirLabels()
    {
        Set set;
        set.setPol(Set::Polarisation(1));
        set.setSurf(Set::Surface(4));
        set.setSmooth(Set::Switch(1));
        QCOMPARE(written(set, QStringLiteral("P")),
                 QStringLiteral("<P>"
                                "<Polarisation>Vertical</Polarisation>"
                                "<Surface Condition>Sea Water</Surface Condition>"
                                "<Assume Smooth Earth for complete path>On</Assume Smooth Earth for complete path>"
                                "</P>"));
        set.setKfactor(1.5);
        set.setSubPath(Set::Switch(0));
        QCOMPARE(written(set, QStringLiteral("P")),
                 QStringLiteral("<P>"
                                "<K-factor>1.500</K-factor>"
                                "<Polarisation>Vertical</Polarisation>"
                                "<Surface Condition>Sea Water</Surface Condition>"
                                "<Assume Smooth Earth for complete path>On</Assume Smooth Earth for complete path>"
                                "<Include sub path diffraction loss>Off</Include sub path diffraction loss>"
                                "</P>"));
    }

    void itsOwnOutputIsRefused()
    {
        Set set;
        set.setKfactor(2.0);
        Set again;
        QCOMPARE(readError(again, written(set, QStringLiteral("P"))), QString());
        QCOMPARE(again.kFactor(), 2.0);
        QVERIFY(again.hasKFactor());

        set.setPol(Set::Polarisation(1));
        set.setSurf(Set::Surface(4));
        set.setSmooth(Set::Switch(1));
        QCOMPARE(readError(again, written(set, QStringLiteral("P"))),
                 QStringLiteral("in XmlPropModelP526Type (line 1, column 43): "
                                "Unexpected token \"StartElement\": Polarisation."));
        QCOMPARE(again.kFactor(), 2.0);
        QVERIFY(!again.hasPol());
    }

    void aLabelWithBlanksCannotBeRead_data()
    {
        QTest::addColumn<int>("parameter");
        QTest::newRow("the surface") << 2;
        QTest::newRow("the smooth earth") << 3;
        QTest::newRow("the sub-paths") << 4;
    }
    void aLabelWithBlanksCannotBeRead()
    {
        QFETCH(int, parameter);
        Set set;
        row(parameter).access.set(set, row(parameter).sample().value);
        Set again;
        QVERIFY(!readError(again, written(set, tag())).isEmpty());
        COMPARE_STATE(again, State(this->set()));
    }

    /// With a value that looks like an attribute, the reader would get as far as the name: the first word.
    void theFirstWordOfALabelIsRefusedAsAName()
    {
        Set set;
        QCOMPARE(readError(set, QStringLiteral("<P>\n<Assume Smooth=\"1\"></Assume></P>")),
                 QStringLiteral("in XmlPropModelP526Type (line 2, column 19): "
                                "Unexpected token \"StartElement\": Assume."));
    }

    void theWholeSetIsRead()
    {
        Set set = readFrom<Set>(QStringLiteral("<PropertiesP526>"
                                               "<K-factor>0.5</K-factor>"
                                               "<Pol>Vertical</Pol>"
                                               "<Surface>Good Ground</Surface>"
                                               "<AssumeSmoothEarth>On</AssumeSmoothEarth>"
                                               "<IncludeSubPathDiffractionLoss>Off</IncludeSubPathDiffractionLoss>"
                                               "</PropertiesP526>"));
        QCOMPARE(set.kFactor(), 0.5);
        QCOMPARE(int(set.pol()), 1);
        QCOMPARE(int(set.surf()), 2);
        QCOMPARE(int(set.smooth()), 1);
        QCOMPARE(int(set.subPath()), 0);
    }

    void threeOfFiveAreRead()
    {
        Set set = readFrom<Set>(QStringLiteral("<PropertiesP526>"
                                               "<Pol>Vertical</Pol>"
                                               "<Surface>Fresh Water</Surface>"
                                               "<IncludeSubPathDiffractionLoss>Off</IncludeSubPathDiffractionLoss>"
                                               "</PropertiesP526>"));
        QCOMPARE(int(set.pol()), 1);
        QCOMPARE(int(set.surf()), 3);
        QCOMPARE(int(set.subPath()), 0);
        QVERIFY(set.hasPol() && set.hasSurf() && set.hasSubPath());
        QVERIFY(!set.hasKFactor() && !set.hasSmooth());
    }

    void anUnknownTextLeavesSubPathsOn()
    {
        Set set;
        set.setSubPath(Set::Switch(0));
        QCOMPARE(readError(set,
                           QStringLiteral("<P>\n"
                                          "<IncludeSubPathDiffractionLoss>Maybe</IncludeSubPathDiffractionLoss>\n"
                                          "</P>")),
                 QStringLiteral("in XmlPropModelP526Type (line 2, column 68): "
                                "Illegal enum for IncludeSubPathDiffractionLoss."));
        QCOMPARE(int(set.subPath()), 1);
        QVERIFY(!set.hasSubPath());
    }

    void theSurfaceComesAfterThePolarisation()
    {
        Set set;
        QCOMPARE(readError(set, QStringLiteral("<P>\n<Surface>Sea Water</Surface>\n<Pol>Vertical</Pol></P>")),
                 QStringLiteral("in XmlPropModelP526Type (line 3, column 5): Unexpected token \"StartElement\": Pol."));
        QCOMPARE(int(set.surf()), 4);
        QVERIFY(!set.hasPol());
    }

    void onlyTheKFactorIsChecked()
    {
        Set set;
        set.setKfactor(0.0999);
        set.setPol(Set::Polarisation(-1));
        set.setSurf(Set::Surface(5));
        set.setSmooth(Set::Switch(2));
        set.setSubPath(Set::Switch(2));
        QCOMPARE(set.syntaxError(),
                 QStringLiteral("+++ in XmlPropModelP526Type Begin:\n"
                                "K-factor out of bounds\n"
                                "--- in XmlPropModelP526Type End"));
        set.setKfactor(0.1);
        QVERIFY(set.isValid());
    }
};

QTEST_APPLESS_MAIN(P526Test)
#include "moc_parametersettest.cpp"
#include "p526_test.moc"
