#include "propmodels/parametersettest.h"

#include <arvxml/itm.h>

using namespace ArvXml;
using ParameterSets::accessors;
using ParameterSets::choice;
using ParameterSets::parameterSet;
using ParameterSets::real;

namespace {

using Itm = XmlPropModelITMType;

ParameterSets::ParameterSet table()
{
    // Alone, a surface has no text of its own: there is no climate to choose it.
    return parameterSet<Itm>(
               "XmlPropModelITMType",
               {real(accessors(&Itm::setRRI, &Itm::RRI, &Itm::hasRRI), "RRI", 300.0)
                    .reads({{"310", 310.0, "310.0000"},
                            {"-12.34567", -12.34567, "-12.3457"},
                            {"3.2e2", 320.0, "320.0000"},
                            {"300", 300.0, "300.0000"}})
                    .writes({{1e6, "1000000.0000"}, {0.00004, "0.0000"}, {-400.5, "-400.5000"}})
                    .bounds(-300.0, 400.0, "RRI out of bounds")
                    .fails("Illegal RRI value (must be numeric)"),
                choice(accessors(&Itm::setPol, &Itm::pol, &Itm::pol, &Itm::hasPol), "Pol", 0)
                    .reads({{"H", 1, "H"}, {"V", 2, "V"}})
                    .writes({{0, "UNDEFINED"}, {3, "UNDEFINED"}})
                    .otherwiseWrites("UNDEFINED")
                    .refuses({"UNDEFINED", "undefined", "Horizontal"})
                    .undefined("Illegal polarisation")
                    .fails("Illegal value for \"Pol\""),
                choice(accessors(&Itm::setClimate, &Itm::climate, &Itm::climate, &Itm::hasClimate), "Climate", 0)
                    .reads({{"Equatorial", 1, "Equatorial"},
                            {"Continental Subtropical", 2, "Continental Subtropical"},
                            {"Maritime Tropical", 3, "Maritime Tropical"},
                            {"Desert", 4, "Desert"},
                            {"Continental Temperate", 5, "Continental Temperate"},
                            {"Maritime Temperate, Land", 6, "Maritime Temperate, Land"},
                            {"Maritime Temperate, Sea", 7, "Maritime Temperate, Sea"}})
                    .writes({{0, "UNDEFINED"}, {8, "UNDEFINED"}})
                    .otherwiseWrites("UNDEFINED")
                    .refuses({"UNDEFINED", "Maritime Temperate", "Maritime Temperate Land", "Sea"})
                    .undefined("Illegal climate")
                    .fails("Illegal value for \"Climate\""),
                choice(accessors(&Itm::setSurface, &Itm::surface, &Itm::surface, &Itm::hasSurface), "Surface", 0)
                    .reads({{"Average Ground", 1, "UNDEFINED"},
                            {"Poor Ground", 2, "UNDEFINED"},
                            {"Good Ground", 3, "UNDEFINED"},
                            {"Fresh Water", 4, "UNDEFINED"},
                            {"Sea Water", 5, "UNDEFINED"}})
                    .writes({{0, "UNDEFINED"}, {6, "UNDEFINED"}})
                    .otherwiseWrites("UNDEFINED")
                    .refuses({"UNDEFINED", "Ground", "Water"})
                    .undefined("Illegal surface")
                    .fails("Illegal value for \"Surface\""),
                real(accessors(&Itm::setConf, &Itm::conf, &Itm::hasConf), "Conf", 0.5)
                    .reads({{"95.25", 95.25, "95.25"}, {"0.126", 0.126, "0.13"}, {"0.5", 0.5, "0.50"}})
                    .writes({{-1.0, "-1.00"}, {1000.0, "1000.00"}})
                    .bounds(0.0, 100.0, "Conf out of bounds")
                    .fails("Illegal Conf value (must be numeric)"),
                real(accessors(&Itm::setTime, &Itm::time, &Itm::hasTime), "Time", 0.5)
                    .reads({{"10", 10.0, "10.00"}, {"99.996", 99.996, "100.00"}, {"0.5", 0.5, "0.50"}})
                    .writes({{-1.0, "-1.00"}, {0.004, "0.00"}})
                    .bounds(0.0, 100.0, "Time out of bounds")
                    .fails("Illegal Time value (must be numeric)")},
               {"-+++++", "--++++", "---+++", "----++", "-----+", "------"})
        .reportedInOrder({0, 4, 5, 2, 1, 3});
}

} // namespace

class ItmTest : public ParameterSetTest {
    Q_OBJECT

public:
    ItmTest()
        : ParameterSetTest(table())
    {
    }

private Q_SLOTS:
    void enumerators();
    void surfaceByClimate();
    void surfaceReadAndWritten();
    void everyPresence();
    void longerOrders_data();
    void longerOrders();
    void undefinedIsJudgedWhenPresent();
    void allProblems();
};

void ItmTest::enumerators()
{
    const QList<int> values = {Itm::PolarisationUndefined,
                               Itm::PolarisationH,
                               Itm::PolarisationV,
                               Itm::ClimateUndefined,
                               Itm::ClimateEquatorial,
                               Itm::ClimateContinentalSubtropical,
                               Itm::ClimateMaritimeTropical,
                               Itm::ClimateDesert,
                               Itm::ClimateContinentalTemperate,
                               Itm::ClimateMaritimeTemperateLand,
                               Itm::ClimateMaritimeTemperateSea,
                               Itm::SurfaceUndefined,
                               Itm::SurfaceAverageGround,
                               Itm::SurfacePoorGround,
                               Itm::SurfaceGoodGround,
                               Itm::SurfaceFreshWater,
                               Itm::SurfaceSeaWater};
    QCOMPARE(values, (QList<int>{0, 1, 2, 0, 1, 2, 3, 4, 5, 6, 7, 0, 1, 2, 3, 4, 5}));
}

void ItmTest::surfaceByClimate()
{
    // The climate chooses the text, present or not; the surface decides whether there is one.
    struct Expected {
        int climate;
        const char* climateText;
        const char* surfaceText;
    };
    const QList<Expected> expectations = {
        {-1, "UNDEFINED", "UNDEFINED"},
        {0, "UNDEFINED", "UNDEFINED"},
        {1, "Equatorial", "Average Ground"},
        {2, "Continental Subtropical", "Poor Ground"},
        {3, "Maritime Tropical", "Good Ground"},
        {4, "Desert", "Fresh Water"},
        {5, "Continental Temperate", "Sea Water"},
        {6, "Maritime Temperate, Land", "UNDEFINED"},
        {7, "Maritime Temperate, Sea", "UNDEFINED"},
        {8, "UNDEFINED", "UNDEFINED"},
        {1000, "UNDEFINED", "UNDEFINED"},
    };
    for (const Expected& expected : expectations) {
        const QString climateXml = child(text("Climate"), text(expected.climateText));
        Itm itm;
        itm.setClimate(static_cast<Itm::Climate>(expected.climate));
        QCOMPARE(write(itm), document(climateXml));
        for (int surface = -1; surface < 8; ++surface) {
            itm.setSurface(static_cast<Itm::Surface>(surface));
            QCOMPARE(write(itm), document(climateXml + child(text("Surface"), text(expected.surfaceText))));
        }
    }
}

void ItmTest::surfaceReadAndWritten()
{
    const QString xml = document(text("<Climate>Continental Subtropical</Climate><Surface>Sea Water</Surface>"));
    auto itm = ElementTest::readFrom<Itm>(xml);
    QCOMPARE(itm.climate(), Itm::ClimateContinentalSubtropical);
    QCOMPARE(itm.surface(), Itm::SurfaceSeaWater);
    QVERIFY(itm.isValid());
    QCOMPARE(write(itm), document(text("<Climate>Continental Subtropical</Climate><Surface>Poor Ground</Surface>")));

    // What it wrote without a climate cannot be read back.
    const auto alone = ElementTest::readFrom<Itm>(document(text("<Surface>Sea Water</Surface>")));
    QCOMPARE(write(alone), document(text("<Surface>UNDEFINED</Surface>")));
    QCOMPARE(read(itm, write(alone)),
             text("in XmlPropModelITMType (line 1, column 33): Illegal value for \"Surface\"."));
}

void ItmTest::everyPresence()
{
    const auto withParameters = [](int present) {
        Itm itm;
        if (present & 1)
            itm.setRRI(310.0);
        if (present & 2)
            itm.setPol(Itm::PolarisationV);
        if (present & 4)
            itm.setClimate(Itm::ClimateDesert);
        if (present & 8)
            itm.setSurface(Itm::SurfaceAverageGround);
        if (present & 16)
            itm.setConf(95.0);
        if (present & 32)
            itm.setTime(10.0);
        return itm;
    };
    for (int present = 0; present < 64; ++present) {
        QString xml;
        if (present & 1)
            xml += text("<RRI>310.0000</RRI>");
        if (present & 2)
            xml += text("<Pol>V</Pol>");
        if (present & 4)
            xml += text("<Climate>Desert</Climate>");
        if (present & 8)
            xml += text(present & 4 ? "<Surface>Fresh Water</Surface>" : "<Surface>UNDEFINED</Surface>");
        if (present & 16)
            xml += text("<Conf>95.00</Conf>");
        if (present & 32)
            xml += text("<Time>10.00</Time>");
        const QString expected = xml.isEmpty() ? text("<Set/>") : document(xml);

        Itm itm = withParameters(present);
        QVERIFY(itm.isValid());
        QCOMPARE(itm.syntaxError(), QString());
        QCOMPARE(write(itm), expected);
        QCOMPARE(write(Itm(itm)), expected);
        for (int other = 0; other < 64; ++other) {
            Itm target = withParameters(other);
            target = itm;
            QCOMPARE(write(target), expected);
            QCOMPARE(target.hasSurface(), (present & 8) != 0);
            COMPARE_STATE(target, State(set(), itm));
        }
    }
}

void ItmTest::longerOrders_data()
{
    QTest::addColumn<QStringList>("tags");
    QTest::addColumn<bool>("isRead");

    // What may follow two parameters: "+" it is read, "-" it is refused.
    const QStringList next = {text("RRI"), text("Pol"), text("Climate"), text("Surface"), text("Conf"), text("Time")};
    const auto add = [&](const char* before, const char* outcomes) {
        for (int i = 0; i < next.size(); ++i) {
            QTest::newRow(qPrintable(QStringLiteral("(%1) then %2").arg(text(before), next[i])))
                << (text(before).split(QLatin1Char(' ')) + QStringList(next[i])) << (outcomes[i] == '+');
        }
    };
    add("RRI Pol", "--++++");
    add("RRI Climate", "---+++");
    add("RRI Surface", "----++");
    add("RRI Conf", "-----+");
    add("RRI Time", "------");
    add("Pol Climate", "---+++");
    add("Pol Surface", "----++");
    add("Pol Conf", "-----+");
    add("Pol Time", "------");
    add("Climate Surface", "----++");
    add("Climate Conf", "-----+");
    add("Climate Time", "------");
    add("Surface Conf", "-----+");
    add("Surface Time", "------");
    add("Conf Time", "------");
    add("RRI Pol Climate Surface Conf", "-----+");
    add("RRI Pol Climate Surface Conf Time", "------");
}

void ItmTest::longerOrders()
{
    QFETCH(QStringList, tags);
    QFETCH(bool, isRead);

    QString xml = text("<Set>\n");
    for (const QString& tag : tags) {
        for (int parameter = 0; parameter < size(); ++parameter) {
            if (row(parameter).tag == tag)
                xml += asRead(parameter, row(parameter).sample()) + QLatin1Char('\n');
        }
    }
    Itm itm;
    QCOMPARE(read(itm, xml + text("</Set>")),
             isRead ? QString()
                    : QStringLiteral("in XmlPropModelITMType (line %1, column %2): "
                                     "Unexpected token \"StartElement\": %3.")
                          .arg(tags.size() + 1)
                          .arg(tags.last().size() + 2)
                          .arg(tags.last()));
}

void ItmTest::undefinedIsJudgedWhenPresent()
{
    Itm itm;
    itm.setRRI(100.0);
    QVERIFY(itm.isValid());
    itm.setPol(Itm::PolarisationUndefined);
    QVERIFY(!itm.isValid());
    QCOMPARE(itm.syntaxError(), block({text("Illegal polarisation")}));
    itm.setPol(Itm::PolarisationH);
    QVERIFY(itm.isValid());
    itm.setRRI(400.5);
    QCOMPARE(itm.syntaxError(), block({text("RRI out of bounds")}));
}

void ItmTest::allProblems()
{
    Itm itm;
    itm.setSurface(Itm::SurfaceUndefined);
    itm.setPol(Itm::PolarisationUndefined);
    itm.setClimate(Itm::ClimateUndefined);
    itm.setTime(-1.0);
    itm.setConf(-1.0);
    itm.setRRI(-301.0);
    QCOMPARE(itm.syntaxError(),
             text("+++ in XmlPropModelITMType Begin:\n"
                  "RRI out of bounds\n"
                  "Conf out of bounds\n"
                  "Time out of bounds\n"
                  "Illegal climate\n"
                  "Illegal polarisation\n"
                  "Illegal surface\n"
                  "--- in XmlPropModelITMType End"));
}

QTEST_APPLESS_MAIN(ItmTest)
#include "itm_test.moc"
#include "moc_parametersettest.cpp"
