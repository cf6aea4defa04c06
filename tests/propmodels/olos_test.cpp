#include "propmodels/parametersettest.h"

#include <arvxml/olos.h>

using namespace ArvXml;
using ParameterSets::accessors;
using ParameterSets::parameterSet;
using ParameterSets::real;

namespace {

using Olos = XmlPropModelOLOSType;

ParameterSets::ParameterSet table()
{
    return parameterSet<Olos>(
               "XmlPropModelOLOSType",
               {real(accessors(&Olos::setKfactor, &Olos::Kfactor, &Olos::hasKfactor), "K-factor", 1.0)
                    .reads({{"2.5", 2.5, "2.5000"}, {"0.12346", 0.12346, "0.1235"}, {"1", 1.0, "1.0000"}})
                    .writes({{-1.0, "-1.0000"}, {0.00004, "0.0000"}})
                    .bounds(0.1, 5.0, "K-factor out of bounds")
                    .fails("Illegal K-factor value (must be numeric)"),
                real(accessors(&Olos::setMaxRange_km, &Olos::maxRange_km, &Olos::hasMaxRange_km), "MaxRange_km", 50.0)
                    .reads({{"10", 10.0, "10.000"}, {"0.1236", 0.1236, "0.124"}, {"50", 50.0, "50.000"}})
                    .writes({{-1.0, "-1.000"}, {0.0004, "0.000"}, {40000.0, "40000.000"}})
                    .bounds(0.1, 50.0, "Range out of bounds")
                    .fails("Illegal range value (must be numeric)")},
               {"++", "--"})
        .keptBeforeReading()
        .resetKeepsProblems();
}

/// Shows what the base keeps for itself.
struct ProbeOlos : Olos {
    using XmlElementBase::mySyntaxError;
};

} // namespace

class OlosTest : public ParameterSetTest {
    Q_OBJECT

public:
    OlosTest()
        : ParameterSetTest(table())
    {
    }

private Q_SLOTS:
    void theLastKFactorCounts();
    void nothingAfterTheRange();
    void whatIsNotReadStays();
    void badTextsInAUsedSet();
    void resetLeavesTheProblems();
    void everyPresence();
    void bounds_data();
    void bounds();
    void allProblems();
};

void OlosTest::theLastKFactorCounts()
{
    Olos olos;
    QCOMPARE(read(olos, document(text("<K-factor>2</K-factor><K-factor>3</K-factor><MaxRange_km>10</MaxRange_km>"))),
             QString());
    QCOMPARE(olos.Kfactor(), 3.0);
    QCOMPARE(olos.maxRange_km(), 10.0);
    QCOMPARE(write(olos), document(text("<K-factor>3.0000</K-factor><MaxRange_km>10.000</MaxRange_km>")));
    QCOMPARE(read(olos, document(text("<K-factor>4</K-factor><K-factor>2</K-factor><K-factor>4.5</K-factor>"))),
             QString());
    QCOMPARE(olos.Kfactor(), 4.5);

    // A bad one ends it, whatever went before.
    QCOMPARE(read(olos, text("<Set><K-factor>2</K-factor>\n<K-factor>x</K-factor><K-factor>3</K-factor></Set>")),
             text("in XmlPropModelOLOSType (line 2, column 22): Illegal K-factor value (must be numeric)."));
    QCOMPARE(olos.Kfactor(), 1.0);
    QVERIFY(!olos.hasKfactor());
    QVERIFY(olos.hasMaxRange_km());
}

void OlosTest::nothingAfterTheRange()
{
    Olos olos;
    QCOMPARE(read(olos,
                  text("<Set>\n<K-factor>2</K-factor>\n<K-factor>3</K-factor>\n<MaxRange_km>10</MaxRange_km>\n"
                       "<K-factor>4</K-factor></Set>")),
             text("in XmlPropModelOLOSType (line 5, column 10): Unexpected token \"StartElement\": K-factor."));
    QCOMPARE(olos.Kfactor(), 3.0);
    QCOMPARE(olos.maxRange_km(), 10.0);
    QCOMPARE(read(olos,
                  text("<Set><K-factor>2</K-factor><MaxRange_km>9</MaxRange_km>\n<MaxRange_km>8</MaxRange_km>"
                       "</Set>")),
             text("in XmlPropModelOLOSType (line 2, column 13): Unexpected token \"StartElement\": MaxRange_km."));
    QCOMPARE(olos.maxRange_km(), 9.0);
}

void OlosTest::whatIsNotReadStays()
{
    Olos olos;
    olos.setMaxRange_km(10.0);
    QCOMPARE(read(olos, document(text("<K-factor>2</K-factor>"))), QString());
    QVERIFY(olos.hasKfactor());
    QVERIFY(olos.hasMaxRange_km());
    QCOMPARE(olos.maxRange_km(), 10.0);
    QCOMPARE(read(olos, document(text("<MaxRange_km>20</MaxRange_km>"))), QString());
    QCOMPARE(olos.Kfactor(), 2.0);
    QCOMPARE(olos.maxRange_km(), 20.0);
    QCOMPARE(read(olos, text("<Set/>")), QString());
    QCOMPARE(write(olos), document(text("<K-factor>2.0000</K-factor><MaxRange_km>20.000</MaxRange_km>")));

    // The problems found before stay too.
    ProbeOlos faulty;
    faulty.setKfactor(9.0);
    const QString problems = faulty.syntaxError();
    QVERIFY(!problems.isEmpty());
    QCOMPARE(read(faulty, document(text("<K-factor>2</K-factor>"))), QString());
    QCOMPARE(faulty.mySyntaxError(), problems);
}

void OlosTest::badTextsInAUsedSet()
{
    // The value is the default, not the one held; the other parameter stays.
    Olos olos;
    olos.setKfactor(2.0);
    olos.setMaxRange_km(10.0);
    QCOMPARE(read(olos, document(text("<K-factor>x</K-factor>"))),
             text("in XmlPropModelOLOSType (line 1, column 27): Illegal K-factor value (must be numeric)."));
    QCOMPARE(olos.Kfactor(), 1.0);
    QVERIFY(!olos.hasKfactor());
    QCOMPARE(olos.maxRange_km(), 10.0);
    QVERIFY(olos.hasMaxRange_km());

    olos.setKfactor(2.0);
    QCOMPARE(read(olos, document(text("<MaxRange_km>x</MaxRange_km>"))),
             text("in XmlPropModelOLOSType (line 1, column 33): Illegal range value (must be numeric)."));
    QCOMPARE(olos.Kfactor(), 2.0);
    QVERIFY(olos.hasKfactor());
    QCOMPARE(olos.maxRange_km(), 50.0);
    QVERIFY(!olos.hasMaxRange_km());
}

void OlosTest::resetLeavesTheProblems()
{
    ProbeOlos olos;
    olos.setMaxRange_km(51.0);
    const QString problems = block({text("Range out of bounds")});
    QCOMPARE(olos.syntaxError(), problems);
    olos.reset();
    COMPARE_STATE(olos, State(set()));
    QCOMPARE(olos.mySyntaxError(), problems);
    QVERIFY(olos.isValid());
    QCOMPARE(olos.syntaxError(), QString()); // this starts anew
    QCOMPARE(olos.mySyntaxError(), QString());
}

void OlosTest::everyPresence()
{
    const auto withParameters = [](int present) {
        Olos olos;
        if (present & 1)
            olos.setKfactor(2.0);
        if (present & 2)
            olos.setMaxRange_km(10.0);
        return olos;
    };
    const QStringList expected = {
        text("<Set/>"),
        text("<Set><K-factor>2.0000</K-factor></Set>"),
        text("<Set><MaxRange_km>10.000</MaxRange_km></Set>"),
        text("<Set><K-factor>2.0000</K-factor><MaxRange_km>10.000</MaxRange_km></Set>"),
    };
    for (int present = 0; present < 4; ++present) {
        const Olos olos = withParameters(present);
        QCOMPARE(write(olos), expected[present]);
        QCOMPARE(write(Olos(olos)), expected[present]);
        for (int other = 0; other < 4; ++other) {
            Olos target = withParameters(other);
            target = olos;
            QCOMPARE(write(target), expected[present]);
        }
        Olos back;
        QCOMPARE(read(back, expected[present]), QString());
        COMPARE_STATE(back, State(set(), olos));
    }
}

void OlosTest::bounds_data()
{
    QTest::addColumn<double>("range");
    QTest::addColumn<bool>("isValid");

    QTest::newRow("nothing") << 0.0 << false;
    QTest::newRow("the least") << 0.1 << true;
    QTest::newRow("the greatest") << 50.0 << true;
    QTest::newRow("a metre more") << 50.001 << false;
    QTest::newRow("below the least") << 0.0999 << false;
}

void OlosTest::bounds()
{
    QFETCH(double, range);
    QFETCH(bool, isValid);

    Olos olos;
    olos.setMaxRange_km(range);
    QCOMPARE(olos.isValid(), isValid);
    QCOMPARE(olos.syntaxError(), isValid ? QString() : block({text("Range out of bounds")}));
}

void OlosTest::allProblems()
{
    Olos olos;
    olos.setMaxRange_km(0.0);
    olos.setKfactor(0.0);
    QVERIFY(!olos.isValid());
    QCOMPARE(olos.syntaxError(),
             text("+++ in XmlPropModelOLOSType Begin:\n"
                  "K-factor out of bounds\n"
                  "Range out of bounds\n"
                  "--- in XmlPropModelOLOSType End"));
}

QTEST_APPLESS_MAIN(OlosTest)
#include "moc_parametersettest.cpp"
#include "olos_test.moc"
