#include "support/generator.h"

#include <QtCore/QSet>

#include <functional>
#include <typeinfo>

/// \file
/// isValid() and syntaxError() agree on generated elements, but where the protocol has them differ.

using namespace ArvXml;
using Generator::ChildOf;
using Generator::ItemOf;
using Generator::pointerTo;
using Generator::Random;
using Generator::Validity;
using Generator::ValueOf;
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
    std::function<void(IXmlElement&)> mend; ///< makes it apply no longer
};

/// The difference of class \a T.
template <typename T>
Difference differs(const char* className, const char* why, bool isValid, bool (*applies)(const T&), void (*setUp)(T&),
                   void (*mend)(T&))
{
    return {className,
            why,
            isValid,
            [applies](const IXmlElement& element) {
                const auto* object = dynamic_cast<const T*>(&element);
                return object && applies(*object);
            },
            [setUp]() -> Samples::Element {
                auto element = std::make_unique<T>();
                setUp(*element);
                return element;
            },
            Samples::finished(mend)};
}

/// A number that is none is neither above nor below a limit.
template <typename T>
Difference differsForNaN(const char* className, double (T::*get)() const, void (T::*set)(double))
{
    return {className,
            "a number that is none is invalid, but breaks no limit",
            false,
            [get](const IXmlElement& element) {
                const auto* object = dynamic_cast<const T*>(&element);
                return object && std::isnan((object->*get)());
            },
            [set]() -> Samples::Element {
                auto element = std::make_unique<T>();
                (element.get()->*set)(Generator::notANumber);
                return element;
            },
            [set](IXmlElement& element) { (dynamic_cast<T&>(element).*set)(1.0); }};
}

int itemsOf(const XmlAutoRespType& response)
{
    return int(response.hasArvVersion()) + int(response.hasEstimatedTime()) + int(response.hasGridResult())
        + int(response.hasInterlinkResult());
}

/// What is told to derived classes only.
class Choice : public XmlNameAllType {
public:
    static bool isMade(const XmlNameAllType& choice) { return (choice.*(&Choice::isInitialised))(); }
};

void setKey(XmlMapType& entry, int number)
{
    XmlKeyType key;
    key.setKey(number);
    entry.setKey(key);
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
            [](const XmlNameAllType& choice) { return choice.hasObjName() && !Choice::isMade(choice); },
            [](XmlNameAllType& choice) {
                Generator::readInto(choice, QStringLiteral("<DF><Name>DF 1</Name><All/></DF>"));
            },
            [](XmlNameAllType& choice) { choice.setObjName(XmlObjNameType(*choice.objName())); }),
        differs<XmlMapType>(
            "XmlMapType", "the key is reported, but does not count", true,
            [](const XmlMapType& entry) { return entry.key() && !entry.key()->isValid(); },
            [](XmlMapType& entry) { setKey(entry, -1); }, [](XmlMapType& entry) { setKey(entry, 1); }),
        differs<XmlMapType>(
            "XmlMapType", "an entry that was reset has no value, and nothing that could report it", false,
            [](const XmlMapType& entry) { return !entry.value(); }, [](XmlMapType& entry) { entry.reset(); },
            [](XmlMapType& entry) { entry.setValue(XmlLengthType()); }),
        differs<XmlGridResultType>(
            "XmlGridResultType", "a type beyond the known ones is invalid, and only an undefined one reported", false,
            [](const XmlGridResultType& result) {
                return result.type() < XmlGridResultType::ResultUndefined
                    || result.type() > XmlGridResultType::ResultBestSensorCov;
            },
            [](XmlGridResultType& result) {
                result.setType(static_cast<XmlGridResultType::ResultType>(6));
                result.setScreenshotFilename(QStringLiteral("grid.png"));
            },
            [](XmlGridResultType& result) { result.setType(XmlGridResultType::ResultUndefined); }),
        differs<XmlAutoRespType>(
            "XmlAutoRespType", "three items pass, but are reported", true,
            [](const XmlAutoRespType& response) { return !response.hasErrorMessage() && itemsOf(response) == 3; },
            [](XmlAutoRespType& response) {
                response.setStatus(XmlAutoRespType::StatusAck);
                response.setReference(TestValues::reference(QStringLiteral("42")));
                response.setArvVersion(QStringLiteral("3.1"));
                response.setEstimatedTime(TestValues::someTime());
                response.setInterlinkResult(ElementTest::readFrom<XmlInterlinkResultType>(Samples::interlinkResult));
            },
            [](XmlAutoRespType& response) { response.setErrorMessage(QStringLiteral("No terrain")); }),
        differs<XmlAutoRespType>(
            "XmlAutoRespType", "no item is invalid, but not reported", false,
            [](const XmlAutoRespType& response) { return !response.hasErrorMessage() && itemsOf(response) == 0; },
            [](XmlAutoRespType& response) {
                response.setStatus(XmlAutoRespType::StatusAck);
                response.setReference(TestValues::reference(QStringLiteral("42")));
            },
            [](XmlAutoRespType& response) { response.setArvVersion(QStringLiteral("3.1")); }),
        differs<XmlResInfo_BestSensor_Type>(
            "XmlResInfo_BestSensor_Type", "the comment counts, but is not reported", false,
            [](const XmlResInfo_BestSensor_Type& result) {
                return result.hasComment() && !result.comment()->isValid();
            },
            [](XmlResInfo_BestSensor_Type& result) {
                Generator::readInto(result, Samples::resultInfo("R", Samples::areaRect));
                result.setComment(XmlObjNameType());
            },
            [](XmlResInfo_BestSensor_Type& result) { result.setComment(TestValues::objName(QStringLiteral("Best"))); }),
    };
    return table;
}

using Met = QSet<const Difference*>;

/// Takes the listed differences out of an element and all that it holds, and notes those \a met. Nothing else changes.
template <typename T>
bool mend(T& object, Met& met);

template <typename T>
class Mending : public Visitor<Mending<T>> {
public:
    Mending(T& object, Met& met)
        : m_object(object)
        , m_met(met)
    {
    }
    bool isMended() const { return m_isMended; }

    template <typename Get, typename Set>
    void child(const char*, Get get, Set set)
    {
        const auto* held = pointerTo(std::invoke(get, std::as_const(m_object)));
        if (!held)
            return;
        auto copy = *held;
        if (!mend(copy, m_met))
            return;
        std::invoke(set, m_object, copy);
        m_isMended = true;
    }
    template <typename Get>
    void held(const char*, Get get)
    {
        const auto& items = std::invoke(get, std::as_const(m_object));
        for (auto* item : items)
            m_isMended = mend(*item, m_met) || m_isMended;
    }
    /// A model, which cannot be changed, and holds nothing that is listed.
    template <typename Get>
    void heldOne(const char*, Get)
    {
    }
    /// An envelope is not judged.
    template <typename Get, typename Set>
    void unwritten(const char*, Get, Set)
    {
    }

private:
    T& m_object;
    Met& m_met;
    bool m_isMended = false;
};

template <typename T>
bool mend(T& object, Met& met)
{
    Mending<T> mending(object, met);
    visit<T>(mending);
    bool isMended = mending.isMended();
    for (const Difference& row : differences()) {
        if (row.applies(object)) {
            row.mend(object);
            met.insert(&row);
            isMended = true;
        }
    }
    return isMended;
}

/// Puts an element into each place for one of its class in another, in turn.
template <typename T>
class Placing : public Visitor<Placing<T>> {
public:
    /// Calls \a judge with what holds \a example then; for an optional place, if \a holder holds something there.
    Placing(const T& holder, const IXmlElement& example, std::function<void(T&, const char*)> judge)
        : m_holder(holder)
        , m_example(example)
        , m_judge(std::move(judge))
    {
    }
    /// The places that there are, whether there is something or not.
    int places() const { return m_places; }

    template <typename Get, typename Set>
    void child(const char* name, Get get, Set set)
    {
        place<ChildOf<T, Get>>(name, [&](T& object, const auto& example) {
            if (!pointerTo(std::invoke(get, std::as_const(object))))
                return false;
            std::invoke(set, object, example);
            return true;
        });
    }
    template <typename Get, typename Set>
    void list(const char* name, Get, Set set)
    {
        place<ItemOf<T, Get>>(name, [&](T& object, const auto& example) {
            auto item = example;
            std::invoke(set, object, ValueOf<T, Get>{&item});
            return true;
        });
    }
    template <typename Get, typename Add>
    void added(const char* name, Get, Add add)
    {
        place<ItemOf<T, Get>>(name, [&](T& object, const auto& example) {
            std::invoke(add, object, example);
            return true;
        });
    }
    /// Commands of a root, of which the items can be assigned to.
    template <typename Get>
    void held(const char* name, Get get)
    {
        place<ItemOf<T, Get>>(name, [&](T& object, const auto& example) {
            const auto& items = std::invoke(get, std::as_const(object));
            if (!items.isEmpty())
                *items.first() = example;
            return !items.isEmpty();
        });
    }
    template <typename Get>
    void heldOne(const char*, Get)
    {
    }

private:
    template <typename Child, typename Place>
    void place(const char* name, Place placeIt)
    {
        if (typeid(m_example) != typeid(Child))
            return;
        ++m_places;
        T object(m_holder);
        if (placeIt(object, dynamic_cast<const Child&>(m_example)))
            m_judge(object, name);
    }

    const T& m_holder;
    const IXmlElement& m_example;
    std::function<void(T&, const char*)> m_judge;
    int m_places = 0;
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
        Met met;
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
                // Without what is listed, the two agree; and only for that they may differ.
                Met mended;
                mend(copy, mended);
                const QString problemsLeft = copy.syntaxError();
                QVERIFY2(copy.isValid() == problemsLeft.isEmpty(),
                         qPrintable(where + written + QLatin1Char('\n') + problemsLeft));
                QVERIFY2(mended.isEmpty() || validity == Validity::Faulty, qPrintable(where + problems));
                if (isAccepted == problems.isEmpty())
                    continue;
                const bool isListed = std::any_of(mended.cbegin(), mended.cend(), [isAccepted](const Difference* row) {
                    return row->isValid == isAccepted;
                });
                QVERIFY2(isListed, qPrintable(where + written + QLatin1Char('\n') + problems));
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

    // Each is shown to differ, alone and in every other element that can hold it.
    void listedDifferences()
    {
        QFETCH(int, row);
        const Difference& difference = differences().at(static_cast<std::size_t>(row));
        const Samples::Element example = difference.example();
        QVERIFY(difference.applies(*example));
        QCOMPARE(example->isValid(), difference.isValid);
        QCOMPARE(example->syntaxError().isEmpty(), !difference.isValid);

        bool isHeld = false;
        Samples::forEachClass([&](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            QSet<QByteArray> places;
            int count = 1;
            for (int number = 0; number < count; ++number) {
                Random random(static_cast<quint32>(number), number);
                const T holder = Generator::generate<T>(random, Validity::Valid);
                Placing<T> placing(holder, *example, [&](T& object, const char* place) {
                    places.insert(place);
                    const QString problems = object.syntaxError();
                    QVERIFY2(object.isValid() == difference.isValid, qPrintable(QLatin1String(name) + problems));
                    QVERIFY2(problems.isEmpty() == !difference.isValid, qPrintable(QLatin1String(name) + problems));
                });
                visit<T>(placing);
                if (places.size() == placing.places())
                    break; // all of them were there, or there are none
                count = random.ways();
                QVERIFY2(number + 1 < count, name);
            }
            isHeld = isHeld || !places.isEmpty();
        });
        // The one that no other holds.
        QCOMPARE(isHeld, qstrcmp(difference.className, "XmlResInfo_BestSensor_Type") != 0);

        difference.mend(*example);
        QVERIFY(!difference.applies(*example));
        QCOMPARE(example->isValid(), example->syntaxError().isEmpty());
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
