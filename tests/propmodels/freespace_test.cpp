#include "propmodels/parametersettest.h"

#include <arvxml/freespace.h>

using namespace ArvXml;
using ParameterSets::accessors;
using ParameterSets::parameterSet;
using ParameterSets::real;

namespace {

using Freespace = XmlPropModelFSType;

ParameterSets::ParameterSet table()
{
    return parameterSet<Freespace>(
               "XmlPropModelFSType",
               {real(accessors(&Freespace::setKfactor, &Freespace::Kfactor, &Freespace::hasKfactor), "K-factor", 1.3333)
                    .reads({{"2.5", 2.5, "2.5000"}, {"0.12346", 0.12346, "0.1235"}, {"1.3333", 1.3333, "1.3333"}})
                    .writes({{-1.0, "-1.0000"}, {0.00004, "0.0000"}, {100000.0, "100000.0000"}})
                    .bounds(0.1, 5.0, "K-factor out of bounds")
                    .fails("Illegal K-factor value (must be numeric)")},
               {"+"})
        .keptBeforeReading();
}

/// Shows what the base keeps for itself.
struct ProbeFreespace : Freespace {
    using XmlElementBase::mySyntaxError;
};

} // namespace

class FreespaceTest : public ParameterSetTest {
    Q_OBJECT

public:
    FreespaceTest()
        : ParameterSetTest(table())
    {
    }

private Q_SLOTS:
    void theLastKFactorCounts();
    void whatIsNotReadStays();
    void otherParametersAreRefused();
    void resetForgetsTheProblems();
    void allProblems();
};

void FreespaceTest::theLastKFactorCounts()
{
    Freespace freespace;
    QCOMPARE(read(freespace, document(text("<K-factor>2</K-factor><K-factor>3</K-factor><K-factor>2.5</K-factor>"))),
             QString());
    QCOMPARE(freespace.Kfactor(), 2.5);
    QCOMPARE(write(freespace), document(text("<K-factor>2.5000</K-factor>")));

    // A bad one ends it, whatever went before.
    QCOMPARE(read(freespace, text("<Set><K-factor>2</K-factor>\n<K-factor>x</K-factor><K-factor>3</K-factor></Set>")),
             text("in XmlPropModelFSType (line 2, column 22): Illegal K-factor value (must be numeric)."));
    QCOMPARE(freespace.Kfactor(), 1.3333);
    QVERIFY(!freespace.hasKfactor());
}

void FreespaceTest::whatIsNotReadStays()
{
    ProbeFreespace freespace;
    freespace.setKfactor(9.0);
    const QString problems = freespace.syntaxError();
    QVERIFY(!problems.isEmpty());
    QCOMPARE(read(freespace, text("<Set></Set>")), QString());
    QCOMPARE(freespace.Kfactor(), 9.0);
    QVERIFY(freespace.hasKfactor());
    QCOMPARE(freespace.mySyntaxError(), problems);
}

void FreespaceTest::otherParametersAreRefused()
{
    Freespace freespace;
    QCOMPARE(read(freespace, text("<Set>\n<K-factor>2</K-factor>\n<MaxRange_km>10</MaxRange_km></Set>")),
             text("in XmlPropModelFSType (line 3, column 13): Unexpected token \"StartElement\": MaxRange_km."));
    QCOMPARE(freespace.Kfactor(), 2.0);
}

void FreespaceTest::resetForgetsTheProblems()
{
    ProbeFreespace freespace;
    freespace.setKfactor(9.0);
    QVERIFY(!freespace.syntaxError().isEmpty());
    freespace.reset();
    QCOMPARE(freespace.mySyntaxError(), QString());
    COMPARE_STATE(freespace, State(set()));
}

void FreespaceTest::allProblems()
{
    Freespace freespace;
    freespace.setKfactor(0.0);
    QVERIFY(!freespace.isValid());
    QCOMPARE(freespace.syntaxError(),
             text("+++ in XmlPropModelFSType Begin:\n"
                  "K-factor out of bounds\n"
                  "--- in XmlPropModelFSType End"));
    freespace.setKfactor(1.0);
    QVERIFY(freespace.isValid());
    QCOMPARE(freespace.syntaxError(), QString());
}

QTEST_APPLESS_MAIN(FreespaceTest)
#include "freespace_test.moc"
#include "moc_parametersettest.cpp"
