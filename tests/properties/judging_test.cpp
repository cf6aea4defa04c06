#include "support/generator.h"

#include <QtCore/QSet>

#include <functional>

/// \file
/// isValid() and syntaxError() agree on generated elements, but where the protocol has them differ.

using namespace ArvXml;
using Generator::pointerTo;
using Generator::Random;
using Generator::Validity;
using Generator::visit;
using Generator::Visitor;

namespace {

/// A place where the two deliberately differ.
struct Difference {
    const char* className;
    const char* why;
    bool isValid; ///< and so reported; otherwise invalid without a problem being told
    std::function<bool(const IXmlElement&)> applies;
    std::function<Samples::Element()> example;
};

/// The difference of class \a T.
template <typename T>
Difference differs(const char* className, const char* why, bool isValid, bool (*applies)(const T&), void (*setUp)(T&))
{
    return {className, why, isValid,
            [applies](const IXmlElement& element) {
                const auto* object = dynamic_cast<const T*>(&element);
                return object && applies(*object);
            },
            [setUp]() -> Samples::Element {
                auto element = std::make_unique<T>();
                setUp(*element);
                return element;
            }};
}

/// A number that is none is neither above nor below a limit.
template <typename T>
Difference differsForNaN(const char* className, double (T::*get)() const, void (T::*set)(double))
{
    return {className, "a number that is none is invalid, but breaks no limit", false,
            [get](const IXmlElement& element) {
                const auto* object = dynamic_cast<const T*>(&element);
                return object && std::isnan((object->*get)());
            },
            [set]() -> Samples::Element {
                auto element = std::make_unique<T>();
                (element.get()->*set)(Generator::notANumber);
                return element;
            }};
}

int itemsOf(const XmlAutoRespType& response)
{
    return int(response.hasArvVersion()) + int(response.hasEstimatedTime()) + int(response.hasGridResult())
        + int(response.hasInterlinkResult());
}

const std::vector<Difference>& differences()
{
    static const std::vector<Difference> table = {
        differsForNaN<XmlPowerType>("XmlPowerType", &XmlPowerType::power, &XmlPowerType::setPower),
        differsForNaN<XmlFreqType>("XmlFreqType", &XmlFreqType::frequency_MHz, &XmlFreqType::setFrequency_MHz),
        differsForNaN<XmlBandwidthType>("XmlBandwidthType", &XmlBandwidthType::bandwidth_khz,
                                        &XmlBandwidthType::setBandwidth),
        differsForNaN<XmlFieldstrengthType>("XmlFieldstrengthType", &XmlFieldstrengthType::fieldstrength,
                                            &XmlFieldstrengthType::setFieldstrength),
        differs<XmlNameAllType>(
            "XmlNameAllType", "a name counts though the choice is not complete, as after a reading that failed", true,
            [](const XmlNameAllType& choice) {
                // Nobody tells whether the choice is made; a copy of it does.
                XmlNameAllType copy(choice);
                return choice.hasObjName() && copy.syntaxError().contains(QLatin1String("Uninitialized."));
            },
            [](XmlNameAllType& choice) {
                Generator::readInto(choice, QStringLiteral("<DF><Name>DF 1</Name><All/></DF>"));
            }),
        differs<XmlMapType>(
            "XmlMapType", "the key is reported, but does not count", true,
            [](const XmlMapType& entry) { return entry.key() && !entry.key()->isValid(); },
            [](XmlMapType& entry) {
                XmlKeyType key;
                key.setKey(-1);
                entry.setKey(key);
            }),
        differs<XmlMapType>(
            "XmlMapType", "an entry that was reset has no value, and nothing that could report it", false,
            [](const XmlMapType& entry) { return !entry.value(); }, [](XmlMapType& entry) { entry.reset(); }),
        differs<XmlGridResultType>(
            "XmlGridResultType", "a type beyond the known ones is invalid, and only an undefined one reported", false,
            [](const XmlGridResultType& result) {
                return result.type() < XmlGridResultType::ResultUndefined
                    || result.type() > XmlGridResultType::ResultBestSensorCov;
            },
            [](XmlGridResultType& result) {
                result.setType(static_cast<XmlGridResultType::ResultType>(6));
                result.setScreenshotFilename(QStringLiteral("grid.png"));
            }),
        differs<XmlAutoRespType>(
            "XmlAutoRespType", "three items pass, but are reported", true,
            [](const XmlAutoRespType& response) { return !response.hasErrorMessage() && itemsOf(response) == 3; },
            [](XmlAutoRespType& response) {
                response.setStatus(XmlAutoRespType::StatusAck);
                response.setReference(TestValues::reference(QStringLiteral("42")));
                response.setArvVersion(QStringLiteral("3.1"));
                response.setEstimatedTime(TestValues::someTime());
                response.setInterlinkResult(ElementTest::readFrom<XmlInterlinkResultType>(Samples::interlinkResult));
            }),
        differs<XmlAutoRespType>(
            "XmlAutoRespType", "no item is invalid, but not reported", false,
            [](const XmlAutoRespType& response) { return !response.hasErrorMessage() && itemsOf(response) == 0; },
            [](XmlAutoRespType& response) {
                response.setStatus(XmlAutoRespType::StatusAck);
                response.setReference(TestValues::reference(QStringLiteral("42")));
            }),
        differs<XmlResInfo_BestSensor_Type>(
            "XmlResInfo_BestSensor_Type", "the comment counts, but is not reported", false,
            [](const XmlResInfo_BestSensor_Type& result) {
                return result.hasComment() && !result.comment()->isValid();
            },
            [](XmlResInfo_BestSensor_Type& result) {
                Generator::readInto(result, Samples::resultInfo("R", Samples::areaRect));
                result.setComment(XmlObjNameType());
            }),
    };
    return table;
}

/// Whether one of the differences applies to \a element itself, and makes it valid though reported, or the reverse.
bool isListed(const IXmlElement& element, bool isValid)
{
    const auto& table = differences();
    return std::any_of(table.cbegin(), table.cend(),
                       [&](const Difference& row) { return row.isValid == isValid && row.applies(element); });
}

/// Looks for a listed difference in an element and all that it holds.
template <typename T>
class Search : public Visitor<Search<T>> {
public:
    Search(const T& object, bool isValid)
        : m_object(object)
        , m_isValid(isValid)
        , m_isFound(isListed(object, isValid))
    {
    }
    bool isFound() const { return m_isFound; }

    template <typename Get, typename Set>
    void child(const char* name, Get get, Set)
    {
        heldOne(name, get);
    }
    template <typename Get>
    void heldOne(const char*, Get get)
    {
        look(pointerTo(std::invoke(get, m_object)));
    }
    template <typename Get>
    void held(const char*, Get get)
    {
        const auto& items = std::invoke(get, m_object);
        for (const auto* item : items)
            look(item);
    }
    template <typename Get, typename Set>
    void unwritten(const char*, Get, Set)
    {
    }

private:
    template <typename Child>
    void look(const Child* child)
    {
        if (!child || m_isFound)
            return;
        Search<Child> inside(*child, m_isValid);
        visit<Child>(inside);
        m_isFound = inside.isFound();
    }

    const T& m_object;
    bool m_isValid;
    bool m_isFound;
};

constexpr int fewestObjects = 250;

} // namespace

class JudgingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void judging_data()
    {
        QTest::addColumn<bool>("isValid");
        QTest::newRow("valid objects") << true;
        QTest::newRow("faulty objects") << false;
    }

    void judging()
    {
        QFETCH(bool, isValid);
        const Validity validity = isValid ? Validity::Valid : Validity::Faulty;
        QSet<const Difference*> met;
        Samples::forEachClass([validity, &met](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            int valid = 0;
            int invalid = 0;
            int count = fewestObjects;
            for (int number = 0; number < count; ++number) {
                Random random(static_cast<quint32>(number), number);
                T object = Generator::generate<T>(random, validity);
                count = std::max(count, random.ways());
                const QString where = QStringLiteral("%1 %2: ").arg(QLatin1String(name)).arg(number);

                // Judging changes nothing, and says the same again.
                const QString written = ElementTest::written(object, QStringLiteral("Tag"));
                const QString unseen = Samples::unseenOf(object);
                const bool isAccepted = object.isValid();
                const QString problems = object.syntaxError();
                QVERIFY2(object.syntaxError() == problems, qPrintable(where + problems));
                QVERIFY2(object.isValid() == isAccepted, qPrintable(where + problems));
                QVERIFY2(ElementTest::written(object, QStringLiteral("Tag")) == written, qPrintable(where + written));
                QVERIFY2(Samples::unseenOf(object) == unseen, qPrintable(where + unseen));
                T copy(object);
                QVERIFY2(copy.isValid() == isAccepted && copy.syntaxError() == problems, qPrintable(where + problems));

                ++(isAccepted ? valid : invalid);
                if (isAccepted == problems.isEmpty())
                    continue;
                Search<T> search(object, isAccepted);
                visit<T>(search);
                QVERIFY2(search.isFound(), qPrintable(where + written + QLatin1Char('\n') + problems));
                for (const Difference& row : differences()) {
                    if (row.isValid == isAccepted && row.applies(object))
                        met.insert(&row);
                }
            }
            // Each class is shown either way, as far as it can be invalid at all.
            const bool isFaulty = validity == Validity::Faulty;
            QVERIFY2(isFaulty ? valid > 0 && invalid > 0 : valid == count && invalid == 0, name);
        });
        // Valid objects meet none of the differences, faulty ones all.
        for (const Difference& row : differences())
            QVERIFY2(met.contains(&row) != isValid, row.why);
    }

    void listedDifferences_data()
    {
        QTest::addColumn<int>("row");
        int row = 0;
        for (const Difference& difference : differences())
            QTest::addRow("%s: %s", difference.className, difference.why) << row++;
    }

    // Each is shown to differ, alone and in an element that holds it.
    void listedDifferences()
    {
        QFETCH(int, row);
        const Difference& difference = differences().at(static_cast<std::size_t>(row));
        const Samples::Element example = difference.example();
        QVERIFY(difference.applies(*example));
        QCOMPARE(example->isValid(), difference.isValid);
        QCOMPARE(example->syntaxError().isEmpty(), !difference.isValid);
    }

    // An element is no better judged than what it holds.
    void differencesOfChildren()
    {
        XmlMapType entry;
        XmlKeyType key;
        key.setKey(-1);
        entry.setKey(key);
        XmlMapListType entries;
        entries.setMapList({&entry});
        QVERIFY(entries.isValid());
        QCOMPARE(entries.syntaxError(),
                 Samples::framed(
                     "XmlMapListType",
                     Samples::framed("XmlMapType",
                                     Samples::framed("XmlKeyType", QStringLiteral("XmlMapType: Illegal Key.")))));

        XmlFreqType frequency;
        frequency.setFrequency_MHz(Generator::notANumber);
        XmlFreqListType frequencies;
        frequencies.setFreqList({&frequency});
        QVERIFY(!frequencies.isValid());
        QCOMPARE(frequencies.syntaxError(), QString());
    }
};

QTEST_APPLESS_MAIN(JudgingTest)
#include "judging_test.moc"
