#include "propmodels/parametersettest.h"

#include <arvxml/p1546.h>

using namespace ArvXml;
using namespace ParameterSets;
using ElementTest::readError;
using ElementTest::readFrom;
using ElementTest::written;

namespace {

using Set = XmlPropModelP1546Type;

const std::vector<Text> paths = {
    {"Undefined", 0, "Undefined"},
    {"Land", 1, "Land"},
    {"Cold Sea", 2, "Cold Sea"},
    {"Warm Sea", 3, "Warm Sea"},
};
/// The last one is that of the paths.
const std::vector<Text> environments = {
    {"Undefined", 0, "Undefined"},
    {"Open", 1, "Open"},
    {"Suburban", 2, "Suburban"},
    {"Warm Sea", 3, "Warm Sea"},
};
const std::vector<Text> switches = {{"Off", 0, "Off"}, {"On", 1, "On"}};

enum Row { KFactor, TimePct, PropPathType, LocVar, BoardAntGain };

ParameterSet table()
{
    return parameterSet<Set>(
        "XmlPropModelP1546Type",
        {
            real(accessors(&Set::setKfactor, &Set::kFactor, &Set::hasKfactor), "K-factor", 1.3333)
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
            real(accessors(&Set::setTime, &Set::time, &Set::hasTime), "TimePct", 50.0)
                .reads({{"0.01", 0.01, "0.01"},
                        {"10", 10.0, "10.00"},
                        {"50", 50.0, "50.00"},
                        {"49.996", 49.996, "50.00"},
                        {"0.004", 0.004, "0.00"},
                        {"50.01", 50.01, "50.01"},
                        {"nan", std::nan(""), "nan"}})
                .bounds(0.01, 50.0, "TimePct out of bounds")
                .fails("Illegal TimePct value (must be numeric)"),
            choice(accessors(&Set::setPath, &Set::path, &Set::path, &Set::hasPath), "PropPathType", 0)
                .reads(paths)
                .otherwiseWrites("Undefined")
                .fails("Illegal enum for PropPathType"),
            real(accessors(&Set::setLocVar, &Set::locVar, &Set::hasLocVar), "LocVar", 50.0)
                .reads({{"1", 1.0, "1.00"},
                        {"99", 99.0, "99.00"},
                        {"50", 50.0, "50.00"},
                        {"12.346", 12.346, "12.35"},
                        {"0.99", 0.99, "0.99"},
                        {"100", 100.0, "100.00"},
                        {"nan", std::nan(""), "nan"}})
                .bounds(1.0, 99.0, "LocVar out of bounds")
                .fails("Illegal LocVar value (must be numeric)")
                .clearsAfterBadText(TimePct),
            real(accessors(&Set::setBroadAntGAin, &Set::broadAntGain, &Set::hasBroadAntGain), "BoardAntGain", 0.0)
                .reads({{"99.999", 99.999, "99.999"},
                        {"12.3456", 12.3456, "12.346"},
                        {"0", 0.0, "0.000"},
                        {"50", 50.0, "50.000"},
                        {"100", 100.0, "100.000"},
                        {"-0.001", -0.001, "-0.001"},
                        {"nan", std::nan(""), "nan"}})
                .bounds(0.0, 99.999, "BroadAntGain out of bounds")
                .fails("Illegal BoardAntGain value (must be numeric)")
                .keepsAfterBadText(50.0),
            choice(accessors(&Set::setRxAntE, &Set::rxAntE, &Set::rxAntE, &Set::hasRxAntE), "RxAntEnviro", 0)
                .reads(environments)
                .otherwiseWrites("Undefined")
                .fails("Illegal enum for RxAntEnviro"),
            choice(accessors(&Set::setAvgAreaE, &Set::avgAreaE, &Set::avgAreaE, &Set::hasAvgAreaE), "AvgAreaEnviro", 0)
                .reads(environments)
                .otherwiseWrites("Undefined")
                .fails("Illegal enum for AvgAreaEnviro"),
            choice(accessors(&Set::setCorrection, &Set::correction, &Set::correction, &Set::hasCorrection),
                   "PathCorrection", 0)
                .reads(switches)
                .otherwiseWrites("Off")
                .refuses({"Yes"})
                .fails("Illegal enum for PathCorrection"),
            choice(accessors(&Set::setBroadAnt, &Set::broadAnt, &Set::broadAnt, &Set::hasBroadAnt),
                   "PathTypeForBroadAnt", 0)
                .reads(paths)
                .otherwiseWrites("Undefined")
                .fails("Illegal enum for PathTypeForBroadAnt"),
            choice(accessors(&Set::setRxAnt, &Set::rxAnt, &Set::rxAnt, &Set::hasRxAnt), "PathTypeForRxAnt", 0)
                .reads(paths)
                .otherwiseWrites("Undefined")
                .fails("Illegal enum for PathTypeForRxAnt"),
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

class P1546Test : public ParameterSetTest {
    Q_OBJECT

public:
    P1546Test()
        : ParameterSetTest(table())
    {
    }

private Q_SLOTS:
    void defaults()
    {
        Set set;
        QCOMPARE(set.kFactor(), 1.3333);
        QCOMPARE(set.time(), 50.0);
        QCOMPARE(int(set.path()), 0);
        QCOMPARE(set.locVar(), 50.0);
        QCOMPARE(set.broadAntGain(), 0.0);
        QCOMPARE(int(set.rxAntE()), 0);
        QCOMPARE(int(set.avgAreaE()), 0);
        QCOMPARE(int(set.correction()), 0);
        QCOMPARE(int(set.broadAnt()), 0);
        QCOMPARE(int(set.rxAnt()), 0);
        QCOMPARE(written(set, QStringLiteral("PropertiesP1546")), QStringLiteral("<PropertiesP1546/>"));
    }

    void theWholeSet()
    {
        const QString xml = QStringLiteral("<PropertiesP1546>"
                                           "<K-factor>1.250</K-factor>"
                                           "<TimePct>12.50</TimePct>"
                                           "<PropPathType>Cold Sea</PropPathType>"
                                           "<LocVar>90.00</LocVar>"
                                           "<BoardAntGain>3.125</BoardAntGain>"
                                           "<RxAntEnviro>Warm Sea</RxAntEnviro>"
                                           "<AvgAreaEnviro>Suburban</AvgAreaEnviro>"
                                           "<PathCorrection>On</PathCorrection>"
                                           "<PathTypeForBroadAnt>Land</PathTypeForBroadAnt>"
                                           "<PathTypeForRxAnt>Warm Sea</PathTypeForRxAnt>"
                                           "</PropertiesP1546>");
        Set set = readFrom<Set>(xml);
        QCOMPARE(set.kFactor(), 1.25);
        QCOMPARE(set.time(), 12.5);
        QCOMPARE(int(set.path()), 2);
        QCOMPARE(set.locVar(), 90.0);
        QCOMPARE(set.broadAntGain(), 3.125);
        QCOMPARE(int(set.rxAntE()), 3);
        QCOMPARE(int(set.avgAreaE()), 2);
        QCOMPARE(int(set.correction()), 1);
        QCOMPARE(int(set.broadAnt()), 1);
        QCOMPARE(int(set.rxAnt()), 3);
        QCOMPARE(written(set, QStringLiteral("PropertiesP1546")), xml);
    }

    void theTimeComesBeforeTheLocations()
    {
        Set set;
        QCOMPARE(readError(set, QStringLiteral("<P>\n  <LocVar>60</LocVar>\n  <TimePct>10</TimePct>\n</P>")),
                 QStringLiteral("in XmlPropModelP1546Type (line 3, column 11): "
                                "Unexpected token \"StartElement\": TimePct."));
        QCOMPARE(set.locVar(), 60.0);
        QVERIFY(set.hasLocVar() && !set.hasTime());
    }

    void textsAreReadByCase()
    {
        Set set;
        QCOMPARE(readError(set, QStringLiteral("<P>\n<RxAntEnviro>open</RxAntEnviro></P>")),
                 QStringLiteral("in XmlPropModelP1546Type (line 2, column 31): Illegal enum for RxAntEnviro."));
    }

    void aBadLocVarMakesTheTimeAbsent()
    {
        Set set;
        QCOMPARE(readError(set, QStringLiteral("<P>\n<TimePct>10</TimePct>\n<LocVar>abc</LocVar></P>")),
                 QStringLiteral("in XmlPropModelP1546Type (line 3, column 20): "
                                "Illegal LocVar value (must be numeric)."));
        QVERIFY(!set.hasTime());
        QCOMPARE(set.time(), 10.0);
        QVERIFY(set.hasLocVar());
        QCOMPARE(set.locVar(), 50.0);
        QCOMPARE(written(set, QStringLiteral("P")), QStringLiteral("<P><LocVar>50.00</LocVar></P>"));

        // A value that is absent is copied too.
        const Set copy(set);
        COMPARE_STATE(copy, State(this->set()).with(TimePct, 10.0, false).with(LocVar, 50.0));
        Set assigned;
        assigned.setTime(20.0);
        assigned.setBroadAntGAin(1.0);
        assigned = set;
        COMPARE_STATE(assigned, State(this->set()).with(TimePct, 10.0, false).with(LocVar, 50.0));

        set.reset();
        COMPARE_STATE(set, State(this->set()));
    }

    void anAbsentValueIsNotChecked()
    {
        Set set;
        QVERIFY(!readError(set, QStringLiteral("<P><TimePct>99</TimePct><LocVar>abc</LocVar></P>")).isEmpty());
        QCOMPARE(set.time(), 99.0);
        QVERIFY(set.isValid());
        QCOMPARE(set.syntaxError(), QString());

        set.setTime(99.0);
        QVERIFY(!set.isValid());
        QCOMPARE(set.syntaxError(),
                 QStringLiteral("+++ in XmlPropModelP1546Type Begin:\n"
                                "TimePct out of bounds\n"
                                "--- in XmlPropModelP1546Type End"));
    }

    void aBadLocVarClearsNothingElse()
    {
        Set set;
        QVERIFY(!readError(set,
                           QStringLiteral("<P><K-factor>2</K-factor><TimePct>10</TimePct>"
                                          "<PropPathType>Land</PropPathType><LocVar/></P>"))
                     .isEmpty());
        COMPARE_STATE(set,
                      State(this->set())
                          .with(KFactor, 2.0)
                          .with(TimePct, 10.0, false)
                          .with(PropPathType, 1.0)
                          .with(LocVar, 50.0));
    }

    void aBadGainLeavesFifty()
    {
        Set set;
        QCOMPARE(readError(set, QStringLiteral("<P>\n<TimePct>10</TimePct><BoardAntGain>much</BoardAntGain></P>")),
                 QStringLiteral("in XmlPropModelP1546Type (line 2, column 54): "
                                "Illegal BoardAntGain value (must be numeric)."));
        QCOMPARE(set.broadAntGain(), 50.0);
        QVERIFY(!set.hasBroadAntGain());
        QVERIFY(set.hasTime());
        const Set copy(set);
        COMPARE_STATE(copy, State(this->set()).with(TimePct, 10.0).with(BoardAntGain, 50.0, false));
        set.reset();
        QCOMPARE(set.broadAntGain(), 0.0);
    }

    void theGainIsSpelledInTwoWays()
    {
        Set set;
        QCOMPARE(readError(set, QStringLiteral("<P><BroadAntGain\n>5</BroadAntGain></P>")),
                 QStringLiteral("in XmlPropModelP1546Type (line 2, column 1): "
                                "Unexpected token \"StartElement\": BroadAntGain."));
        set.setBroadAntGAin(100.0);
        QCOMPARE(written(set, QStringLiteral("P")), QStringLiteral("<P><BoardAntGain>100.000</BoardAntGain></P>"));
        QCOMPARE(set.syntaxError(),
                 QStringLiteral("+++ in XmlPropModelP1546Type Begin:\n"
                                "BroadAntGain out of bounds\n"
                                "--- in XmlPropModelP1546Type End"));
    }

    void fourNumbersAreChecked()
    {
        Set set;
        set.setBroadAntGAin(-1.0);
        set.setLocVar(0.0);
        set.setTime(0.0);
        set.setKfactor(0.0);
        set.setPath(Set::Path(-1));
        set.setRxAntE(Set::Environment(4));
        set.setAvgAreaE(Set::Environment(4));
        set.setCorrection(Set::Switch(2));
        set.setBroadAnt(Set::Path(4));
        set.setRxAnt(Set::Path(4));
        QCOMPARE(set.syntaxError(),
                 QStringLiteral("+++ in XmlPropModelP1546Type Begin:\n"
                                "K-factor out of bounds\n"
                                "TimePct out of bounds\n"
                                "LocVar out of bounds\n"
                                "BroadAntGain out of bounds\n"
                                "--- in XmlPropModelP1546Type End"));
    }
};

QTEST_APPLESS_MAIN(P1546Test)
#include "moc_parametersettest.cpp"
#include "p1546_test.moc"
