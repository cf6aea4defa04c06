#include "propmodels/parametersettest.h"

#include <arvxml/okumurahata.h>

using namespace ArvXml;
using ParameterSets::accessors;
using ParameterSets::choice;
using ParameterSets::parameterSet;
using ParameterSets::real;

namespace {

using Hata = XmlPropModelHataType;

ParameterSets::ParameterSet table()
{
    // The K-factor goes out under the tag of the set, which is "Set" here.
    return parameterSet<Hata>(
        "XmlPropModelHataType",
        {real(accessors(&Hata::setKfactor, &Hata::Kfactor, &Hata::hasKfactor), "K-factor", 1.3333)
             .writtenAs("Set")
             .reads({{"2.5", 2.5, "2.5000"}, {"0.12346", 0.12346, "0.1235"}, {"1.3333", 1.3333, "1.3333"}})
             .writes({{-1.0, "-1.0000"}, {100000.0, "100000.0000"}, {0.00004, "0.0000"}})
             .bounds(0.1, 5.0, "Kfactor out of bounds")
             .fails("Illegal Kfactor value (must be numeric)"),
         choice(accessors(&Hata::setAreaType, &Hata::areaType, &Hata::areaType, &Hata::hasAreaType), "AreaType", 0)
             .reads({{"Urban", 1, "Urban"}, {"Suburban", 2, "Suburban"}, {"Open rural", 3, "Open rural"}})
             .writes({{0, "UNDEFINED"}, {4, "UNDEFINED"}})
             .otherwiseWrites("UNDEFINED")
             .refuses({"UNDEFINED", "Rural", "Open Rural"})
             .undefined("Illegal AreaType")
             .fails("Illegal value for \"AreaType\""),
         choice(accessors(&Hata::setCitySize, &Hata::citySize, &Hata::citySize, &Hata::hasCitySize), "CitySize", 0)
             .reads({{"Small", 1, "Small"}, {"Medium", 2, "Medium"}, {"Large", 3, "Large"}})
             .writes({{0, "UNDEFINED"}, {4, "UNDEFINED"}})
             .otherwiseWrites("UNDEFINED")
             .refuses({"UNDEFINED", "Big"})
             .undefined("Illegal CitySize")
             .fails("Illegal value for \"CitySize\"")},
        {"-++", "--+", "---"});
}

} // namespace

class OkumurahataTest : public ParameterSetTest {
    Q_OBJECT

public:
    OkumurahataTest()
        : ParameterSetTest(table())
    {
    }

private Q_SLOTS:
    void enumerators();
    void kFactorUnderTheTagOfTheSet();
    void everyPresence();
    void afterTwoParameters();
    void allProblems();
};

void OkumurahataTest::enumerators()
{
    const QList<int> values = {Hata::AreaUndefined, Hata::AreaUrban, Hata::AreaSuburban, Hata::AreaOpenRural,
                               Hata::SizeUndefined, Hata::SizeSmall, Hata::SizeMedium,   Hata::SizeLarge};
    QCOMPARE(values, (QList<int>{0, 1, 2, 3, 0, 1, 2, 3}));
}

void OkumurahataTest::kFactorUnderTheTagOfTheSet()
{
    const QString tag = text("PropertiesOkumura");
    Hata hata;
    hata.setKfactor(1.3333);
    hata.setAreaType(Hata::AreaOpenRural);
    hata.setCitySize(Hata::SizeLarge);
    const QString xml = ElementTest::written(hata, tag);
    QCOMPARE(xml,
             text("<PropertiesOkumura><PropertiesOkumura>1.3333</PropertiesOkumura>"
                  "<AreaType>Open rural</AreaType><CitySize>Large</CitySize></PropertiesOkumura>"));

    // It cannot be read back, and the reset before the reading has taken its toll.
    QCOMPARE(read(hata, xml),
             text("in XmlPropModelHataType (line 1, column 38): "
                  "Unexpected token \"StartElement\": PropertiesOkumura."));
    COMPARE_STATE(hata, State(set()));

    // Another tag is written as another child; only that of the parameter can be read.
    hata.setKfactor(2.0);
    QCOMPARE(ElementTest::written(hata, text("AreaType")), text("<AreaType><AreaType>2.0000</AreaType></AreaType>"));
    const QString own = ElementTest::written(hata, text("K-factor"));
    QCOMPARE(own, text("<K-factor><K-factor>2.0000</K-factor></K-factor>"));
    Hata back;
    QCOMPARE(read(back, own), QString());
    QCOMPARE(back.Kfactor(), 2.0);
    QVERIFY(back.hasKfactor());
}

void OkumurahataTest::everyPresence()
{
    const auto withParameters = [](int present) {
        Hata hata;
        if (present & 1)
            hata.setKfactor(2.0);
        if (present & 2)
            hata.setAreaType(Hata::AreaSuburban);
        if (present & 4)
            hata.setCitySize(Hata::SizeMedium);
        return hata;
    };
    const QStringList expected = {
        text("<T/>"),
        text("<T><T>2.0000</T></T>"),
        text("<T><AreaType>Suburban</AreaType></T>"),
        text("<T><T>2.0000</T><AreaType>Suburban</AreaType></T>"),
        text("<T><CitySize>Medium</CitySize></T>"),
        text("<T><T>2.0000</T><CitySize>Medium</CitySize></T>"),
        text("<T><AreaType>Suburban</AreaType><CitySize>Medium</CitySize></T>"),
        text("<T><T>2.0000</T><AreaType>Suburban</AreaType><CitySize>Medium</CitySize></T>"),
    };
    for (int present = 0; present < 8; ++present) {
        Hata hata = withParameters(present);
        QVERIFY(hata.isValid());
        QCOMPARE(hata.syntaxError(), QString());
        QCOMPARE(ElementTest::written(hata, text("T")), expected[present]);
        QCOMPARE(ElementTest::written(Hata(hata), text("T")), expected[present]);
        for (int other = 0; other < 8; ++other) {
            Hata target = withParameters(other);
            target = hata;
            QCOMPARE(ElementTest::written(target, text("T")), expected[present]);
            COMPARE_STATE(target, State(set(), hata));
        }
    }
}

void OkumurahataTest::afterTwoParameters()
{
    const QString kFactor = text("<K-factor>2</K-factor>");
    const QString area = text("<AreaType>Urban</AreaType>");
    const QString size = text("<CitySize>Small</CitySize>");
    const auto refused = [](int line, const char* name) {
        return QStringLiteral("in XmlPropModelHataType (line %1, column 10): Unexpected token \"StartElement\": %2.")
            .arg(line)
            .arg(text(name));
    };
    Hata hata;
    QCOMPARE(read(hata, document(kFactor + area + size)), QString());
    for (const QString& before : {kFactor + area, kFactor + size, area + size, kFactor + area + size}) {
        QCOMPARE(read(hata, document(before + QLatin1Char('\n') + kFactor)), refused(2, "K-factor"));
        QCOMPARE(read(hata, document(before + QLatin1Char('\n') + area)), refused(2, "AreaType"));
        if (before.contains(size))
            QCOMPARE(read(hata, document(before + QLatin1Char('\n') + size)), refused(2, "CitySize"));
    }
}

void OkumurahataTest::allProblems()
{
    Hata hata;
    hata.setCitySize(Hata::SizeUndefined);
    hata.setAreaType(Hata::AreaUndefined);
    hata.setKfactor(5.001);
    QVERIFY(!hata.isValid());
    QCOMPARE(hata.syntaxError(),
             text("+++ in XmlPropModelHataType Begin:\n"
                  "Kfactor out of bounds\n"
                  "Illegal AreaType\n"
                  "Illegal CitySize\n"
                  "--- in XmlPropModelHataType End"));
}

QTEST_APPLESS_MAIN(OkumurahataTest)
#include "moc_parametersettest.cpp"
#include "okumurahata_test.moc"
