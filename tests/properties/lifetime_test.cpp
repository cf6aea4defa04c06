#include "support/effort.h"
#include "support/failingmemory.h"
#include "support/generator.h"

#include <QtCore/QSet>

#include <functional>
#include <optional>

/// \file
/// Elements that are given what is their own, outlive others, are read into while in use, are moved about, and run out
/// of memory.

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

const QString& tag()
{
    static const auto text = QStringLiteral("Tag");
    return text;
}

/// All that can be seen of an element.
template <typename T>
QString shown(const T& element)
{
    T copy(element);
    return ElementTest::written(element, tag()) + QLatin1Char('\n') + copy.syntaxError() + QLatin1Char('\n')
        + Samples::unseenOf(element) + QLatin1Char(element.isValid() ? '+' : '-');
}

/// Uses an element in every way, so that a checker of memory can see it. Lets it be reset in the end.
template <typename T>
void use(T& element)
{
    const QString before = shown(element);
    T copy(element);
    T assigned = Generator::newObject<T>(true);
    assigned = element;
    element.syntaxError();
    Samples::reset(element);
    element = copy;
    Samples::reset(copy);
    QVERIFY(shown(element) == before);
    QVERIFY(shown(assigned) == before);
    Samples::reset(element);
}

constexpr int fewestObjects = 12;
constexpr int mostObjects = 24;

/// Numbers to generate objects from: all the ways to make one of class \a T, or some spread evenly over many ways.
template <typename T>
const std::vector<int>& numbersOf()
{
    static const std::vector<int> numbers = [] {
        int ways = fewestObjects;
        for (int number = 0; number < ways; ++number) {
            Random random(static_cast<quint32>(number), number);
            Generator::generate<T>(random, Validity::Valid);
            ways = std::max(ways, random.ways());
        }
        const int step = ways > mostObjects ? ways / mostObjects | 1 : 1; // odd, since most choices are between two
        std::vector<int> result;
        for (int number = 0; number < ways; number += step)
            result.push_back(number);
        return result;
    }();
    return numbers;
}

template <typename T>
T generated(int number, Validity validity = Validity::Valid)
{
    Random random(static_cast<quint32>(number), number);
    return Generator::generate<T>(random, validity);
}

/// Tells of which things that the objects of a class may hold none was there.
class Census {
public:
    void note(const char* name, bool isThere)
    {
        const auto isThis = [name](const Entry& entry) { return qstrcmp(entry.first, name) == 0; };
        const auto found = std::find_if(m_entries.begin(), m_entries.end(), isThis);
        if (found == m_entries.end())
            m_entries.emplace_back(name, isThere);
        else
            found->second = found->second || isThere;
    }
    QByteArray missing() const
    {
        QByteArray names;
        for (const Entry& entry : m_entries) {
            if (!entry.second)
                names += QByteArray(" ") + entry.first;
        }
        return names;
    }

private:
    using Entry = std::pair<const char*, bool>;
    std::vector<Entry> m_entries;
};

/// Whether there is something in a value, by which an absent one is told from it.
template <typename Value>
bool isSomething(const Value& value)
{
    if constexpr (std::is_same_v<Value, QString>)
        return !value.isEmpty();
    else if constexpr (std::is_same_v<Value, QDateTime>)
        return value.isValid();
    else
        return true;
}

/// Notes everything that an object holds.
template <typename T>
class Counting : public Visitor<Counting<T>> {
public:
    Counting(const T& object, Census& census)
        : m_object(object)
        , m_census(census)
    {
    }
    template <typename Get, typename Set>
    void child(const char* name, Get get, Set)
    {
        heldOne(name, get);
    }
    template <typename Get>
    void heldOne(const char* name, Get get)
    {
        m_census.note(name, pointerTo(std::invoke(get, m_object)) != nullptr);
    }
    template <typename Get>
    void held(const char* name, Get get)
    {
        m_census.note(name, !std::invoke(get, m_object).isEmpty());
    }
    template <typename Get, typename Set, typename Rule>
    void value(const char* name, Get get, Set, const Rule&)
    {
        m_census.note(name, isSomething<ValueOf<T, Get>>(std::invoke(get, m_object)));
    }
    template <typename Has, typename Get, typename Set, typename Rule>
    void parameter(const char* name, Has has, Get, Set, const Rule&)
    {
        m_census.note(name, std::invoke(has, m_object));
    }

private:
    const T& m_object;
    Census& m_census;
};

template <typename T>
void count(const T& object, Census& census)
{
    Counting<T> counting(object, census);
    visit<T>(counting);
}

// An element's own things given to it

/// Gives each thing that an element holds to its own setter, and each child to the setters of its kind.
template <typename T>
class GivingBack : public Visitor<GivingBack<T>> {
public:
    /// Notes in \a given which of them were there to be given.
    GivingBack(const T& original, Census& given)
        : m_original(original)
        , m_given(given)
    {
    }

    template <typename Get, typename Set>
    void child(const char* name, Get get, Set set)
    {
        T object(m_original);
        const auto* held = pointerTo(std::invoke(get, std::as_const(object)));
        m_given.note(name, held);
        if (!held)
            return;
        std::invoke(set, object, *held);
        verifySame(object, set, *held, name);
        QVERIFY2(pointerTo(std::invoke(get, std::as_const(object))) == held, name); // assigned into, not replaced

        GivingAway<ChildOf<T, Get>> away(m_original, get);
        visit<T>(away);
    }
    template <typename Get, typename Set, typename Rule>
    void value(const char* name, Get get, Set set, const Rule&)
    {
        T object(m_original);
        const ValueOf<T, Get> given = std::invoke(get, std::as_const(object));
        m_given.note(name, isSomething(given));
        std::invoke(set, object, std::invoke(get, std::as_const(object)));
        verifySame(object, set, given, name);
    }
    template <typename Has, typename Get, typename Set, typename Rule>
    void parameter(const char* name, Has has, Get get, Set set, const Rule& rule)
    {
        if (std::invoke(has, m_original))
            value(name, get, set, rule);
        else
            m_given.note(name, false);
    }
    template <typename Get, typename Set>
    void list(const char* name, Get get, Set set)
    {
        using Pointers = ValueOf<T, Get>;
        T object(m_original);
        m_given.note(name, !std::invoke(get, std::as_const(object)).isEmpty());
        if (std::invoke(get, std::as_const(object)).isEmpty())
            return; // there is nothing of its own to give
        std::invoke(set, object, std::invoke(get, std::as_const(object)));
        verifySame(object, set, std::invoke(get, m_original), name);
        const auto giveNames = [&](auto change) {
            T other(m_original);
            Pointers pointers = std::invoke(get, std::as_const(other));
            change(pointers);
            QStringList expected;
            for (const auto* item : pointers) {
                if (item)
                    expected.append(shown(*item));
            }
            std::invoke(set, other, pointers);
            QStringList held;
            for (const auto* item : std::invoke(get, std::as_const(other)))
                held.append(shown(*item));
            if (std::is_same_v<T, XmlAreaPolyType>) { // they go by their numbers
                expected.sort();
                held.sort();
            }
            QVERIFY2(held == expected, name);
            use(other);
        };
        giveNames([](Pointers& items) { std::reverse(items.begin(), items.end()); });
        giveNames([](Pointers& items) { items.append(items.first()); });
        giveNames([](Pointers& items) { items = {nullptr, items.last(), nullptr, items.last()}; });
        giveNames([](Pointers& items) { items = {items.first()}; });
        giveNames([](Pointers& items) { items.clear(); });
    }
    template <typename Get, typename Add>
    void added(const char* name, Get get, Add add)
    {
        T object(m_original);
        QStringList expected;
        for (const auto* item : std::invoke(get, std::as_const(object)))
            expected.append(shown(*item));
        m_given.note(name, !expected.isEmpty());
        if (expected.isEmpty())
            return;
        for (int left = 5; left > 0; --left) { // often enough for the list to need more room
            expected.append(expected.first());
            std::invoke(add, object, *std::invoke(get, std::as_const(object)).first());
        }
        QStringList held;
        for (const auto* item : std::invoke(get, std::as_const(object)))
            held.append(shown(*item));
        QVERIFY2(held == expected, name);
    }
    template <typename Get>
    void held(const char*, Get)
    {
    }
    template <typename Get>
    void heldOne(const char*, Get)
    {
    }

private:
    /// Gives a child to all setters that take one of its kind.
    template <typename Child>
    class GivingAway : public Visitor<GivingAway<Child>> {
    public:
        template <typename Get>
        GivingAway(const T& original, Get get)
            : m_original(original)
            , m_get([get](const T& object) { return pointerTo(std::invoke(get, object)); })
        {
        }
        template <typename Get, typename Set>
        void child(const char* name, Get get, Set set)
        {
            if constexpr (std::is_same_v<ChildOf<T, Get>, Child>) {
                T object(m_original);
                const QString expected = shown(*m_get(object));
                std::invoke(set, object, *m_get(object));
                QVERIFY2(shown(*pointerTo(std::invoke(get, std::as_const(object)))) == expected, name);
                use(object);
            }
        }
        template <typename Get>
        void held(const char*, Get)
        {
        }
        template <typename Get>
        void heldOne(const char*, Get)
        {
        }

    private:
        const T& m_original;
        std::function<const Child*(const T&)> m_get;
    };

    template <typename Set, typename Value>
    void verifySame(const T& object, Set set, const Value& notItsOwn, const char* name)
    {
        T expected(m_original);
        if constexpr (std::is_base_of_v<XmlNameChoice, T>)
            std::invoke(set, expected, notItsOwn); // makes the choice, also where that changes nothing else
        QVERIFY2(shown(object) == shown(expected), name);
    }

    const T& m_original;
    Census& m_given;
};

/// Puts the text of the tag into each of an element's texts, and lets that be the tag.
template <typename T>
class OwnTag : public Visitor<OwnTag<T>> {
public:
    explicit OwnTag(const QString& xml)
        : m_xml(xml)
        , m_name(Samples::tagOf({"", xml}))
    {
    }
    template <typename Get, typename Set>
    void child(const char*, Get, Set)
    {
    }
    template <typename Get>
    void held(const char*, Get)
    {
    }
    template <typename Get>
    void heldOne(const char*, Get)
    {
    }
    template <typename Get, typename Set, typename Rule>
    void value(const char* name, Get get, Set set, const Rule&)
    {
        if constexpr (std::is_same_v<std::invoke_result_t<Get, const T&>, const QString&>) {
            T expected = Generator::newObject<T>(true);
            std::invoke(set, expected, QString(m_name));
            if (std::invoke(get, std::as_const(expected)) != m_name)
                return; // a text that the setter does not accept
            T object(expected);
            const QString error = ElementTest::readError(expected, m_xml);

            QXmlStreamReader reader(m_xml);
            reader.readNextStartElement();
            object.processXml(reader, std::invoke(get, std::as_const(object)));
            QVERIFY2(reader.errorString() == error, name);
            QVERIFY2(shown(object) == shown(expected), name);
            ++m_texts;
        }
    }
    int texts() const { return m_texts; }

private:
    QString m_xml;
    QString m_name;
    int m_texts = 0;
};

/// A document with a fault.
struct Damage {
    enum Kind { Cut, UnknownElement, WrongText };
    Kind kind;
    QString tag; ///< the element that it is in
    int depth;   ///< 1 in the outermost element
    QString xml;
};

/// A document cut off behind each of its tokens, with an unknown element in the middle of each element, and with a
/// wrong text in the place of each text.
std::vector<Damage> damagesOf(const QString& xml)
{
    struct Open {
        QString tag;
        std::vector<int> middles; ///< behind the start tag, and behind each child
        bool isText = false;
    };
    const auto unknown = QStringLiteral("<Unknown/>");
    std::vector<Damage> damages;
    std::vector<Open> open;
    const auto add = [&](Damage::Kind kind, int from, int to, const QString& instead) {
        damages.push_back(
            {kind, open.back().tag, static_cast<int>(open.size()), xml.left(from) + instead + xml.mid(to)});
    };
    QXmlStreamReader reader(xml);
    int begin = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        const int end = reader.isCharacters() ? static_cast<int>(xml.indexOf(QLatin1Char('<'), begin))
                                              : static_cast<int>(reader.characterOffset());
        if (reader.isStartElement()) {
            open.push_back({reader.name().toString(), {end}});
        } else if (reader.isCharacters()) {
            add(Damage::WrongText, begin, end, QStringLiteral("?!"));
            add(Damage::UnknownElement, end, end, unknown);
            open.back().isText = true;
        } else if (reader.isEndElement()) {
            const int middle = open.back().middles[open.back().middles.size() / 2];
            if (end == open.back().middles.front()) // an empty element, which ends with "/>"
                add(Damage::UnknownElement, end - 2, end,
                    QLatin1Char('>') + unknown + QStringLiteral("</%1>").arg(open.back().tag));
            else if (!open.back().isText)
                add(Damage::UnknownElement, middle, middle, unknown);
        }
        if (end > begin && end < xml.size() && !open.empty())
            add(Damage::Cut, end, static_cast<int>(xml.size()), QString());
        begin = end;
        if (reader.isEndElement()) {
            open.pop_back();
            if (!open.empty())
                open.back().middles.push_back(end);
        }
    }
    return damages;
}

// Reading into used elements

/// What reading does to the things that a used element holds. The rule is that what a document mentions replaces what
/// was held, and that everything else stays; this tells where it is otherwise. Names are separated by spaces.
struct Reading {
    const char* className;
    const char* added;   ///< the items read follow those held
    const char* entered; ///< the element held is read into, as one of its class is
    const char* dropped; ///< what is not mentioned is as in a new element

    static bool names(const char* list, const char* name) { return QByteArray(list).split(' ').contains(name); }
};

const Reading& readingOf(const char* className)
{
    static const std::vector<Reading> table = {
        {"XmlNameAllType", "", "", "objName"},
        {"XmlNameAllMultiType", "objNames", "", "objNames"}, // dropped by "All"
        {"XmlAreaPolyType", "vertices", "", ""},
        {"XmlDeploymentAreaType", "", "areaPoly", "areaRect areaPoly"},
        {"XmlAoiType", "", "areaPoly", "areaRect areaPoly"},
        // Sets of parameters begin anew, but for those for free space and for optical line of sight.
        {"XmlPropModelP1546Type", "", "",
         "kFactor time path locVar broadAntGain rxAntE avgAreaE correction broadAnt rxAnt"},
        {"XmlPropModelP452Type", "", "",
         "deltaN surfaceRefract timePct pressure_hPa temp_C overWater_km inlandCoastal_km inland_km distTxCoast_km "
         "distRxCoast_km"},
        {"XmlPropModelP526Type", "", "", "kFactor pol surf smooth subPath"},
        {"XmlPropModelP533Type", "", "", "kFactor sunSpots"},
        {"XmlPropModelITMType", "", "", "RRI pol climate surface conf time"},
        {"XmlPropModelHataType", "", "", "Kfactor areaType citySize"},
        {"XmlCepType", "", "useDFs AOIs", ""},
        {"XmlDetectProbType", "", "useRxDFs AOIs", ""},
        {"XmlDfCovType", "", "useDFs AOIs", ""},
        {"XmlBestSensorType", "", "useRxDFs AOIs", ""},
        {"XmlFindSitesType", "", "deploymentAreas", ""},    // but known emitters are replaced
        {"XmlInterlinkPlanningType", "", "", "secondName"}, // if it is empty
        // Of the commands, these two begin anew.
        {"XmlCmdCreate", "", "", "deploymentArea aoi emitter receiver df station signalPath device orderDef"},
        {"XmlCmdDelete", "", "", "deploy aoi emitter receiver df device signalPath station orderDef"},
        {"XmlCmdRoot", "administrative create delete calculation", "", ""},
        {"XmlRespRoot", "", "", "final"},
        {"XmlResInfo_Cep_Type", "", "areaPoly", "areaRect areaPoly"},
        {"XmlResInfo_DetectProb_Type", "", "areaPoly", "areaRect areaPoly"},
        {"XmlResInfo_DfCov_Type", "", "areaPoly", "areaRect areaPoly"},
        {"XmlResInfo_FindSites_Type", "", "areaPoly", "areaRect areaPoly"},
        {"XmlResInfo_BestSensor_Type", "", "areaPoly", "areaRect areaPoly"},
        {"XmlArvBtType", "deployments aois knownEmitters receivers dfs resFindSite resCep resDetectProb resDfCov", "",
         ""},
    };
    static const Reading ruled = {"", "", "", ""};
    const auto row = std::find_if(table.cbegin(), table.cend(), [className](const Reading& reading) {
        return qstrcmp(reading.className, className) == 0;
    });
    return row != table.cend() ? *row : ruled;
}

/// Which things were seen to be treated as told, where another treatment would have been another result.
struct Treated {
    Census replaced, kept, added, entered, dropped;
};

template <typename Value>
QString textOf(const Value& value)
{
    if constexpr (std::is_same_v<Value, QString>)
        return value;
    else if constexpr (std::is_same_v<Value, QDateTime>)
        return value.toString(Qt::ISODateWithMs);
    else
        return QString::number(static_cast<double>(value), 'g', 17);
}

/// Verifies what an element holds after it was read into.
template <typename T>
class ReadingInto : public Visitor<ReadingInto<T>> {
public:
    /// \a before holds what \a after did, and \a read what a new element like \a empty holds of the document.
    ReadingInto(const char* className, const T& empty, const T& before, const T& read, const T& after, Treated& treated)
        : m_className(className)
        , m_reading(readingOf(className))
        , m_empty(empty)
        , m_before(before)
        , m_read(read)
        , m_after(after)
        , m_treated(treated)
    {
    }

    template <typename Get, typename Set>
    void child(const char* name, Get get, Set)
    {
        using Child = ChildOf<T, Get>;
        if constexpr (std::is_same_v<Child, XmlNameAllMultiType> || std::is_same_v<Child, XmlAreaPolyType>) {
            const Child* before = pointerTo(std::invoke(get, m_before));
            const Child* read = pointerTo(std::invoke(get, m_read));
            const Child* after = pointerTo(std::invoke(get, m_after));
            if (Reading::names(m_reading.entered, name) && before && read) {
                QVERIFY2(after, where(name).constData());
                const auto* childName =
                    std::is_same_v<Child, XmlAreaPolyType> ? "XmlAreaPolyType" : "XmlNameAllMultiType";
                Treated treated;
                const Child empty;
                ReadingInto<Child> inside(childName, empty, *before, *read, *after, treated);
                visit<Child>(inside);
                m_treated.entered.note(name, shown(*after) != shown(*read));
                return;
            }
        }
        heldOne(name, get);
    }
    template <typename Get, typename Set>
    void optional(const char* name, Get get, Set set)
    {
        m_isOptional = true;
        child(name, get, set);
        m_isOptional = false;
    }
    template <typename Get, typename Set>
    void unwritten(const char* name, Get get, Set)
    {
        verify(name, textOfHeld(get));
    }
    template <typename Get>
    void heldOne(const char* name, Get get)
    {
        const bool isReplaced = verify(name, textOfHeld(get));
        if (!Reading::names(m_reading.entered, name))
            m_treated.replaced.note(name, isReplaced);
    }
    template <typename Get, typename Set, typename Rule>
    void value(const char* name, Get get, Set, const Rule&)
    {
        verify(name, [get](const T& object) { return textOf<ValueOf<T, Get>>(std::invoke(get, object)); });
    }
    template <typename Has, typename Get, typename Set, typename Rule>
    void parameter(const char* name, Has has, Get get, Set, const Rule&)
    {
        m_isOptional = true;
        const bool isReplaced = verify(name, [has, get](const T& object) {
            return std::invoke(has, object) ? textOf<ValueOf<T, Get>>(std::invoke(get, object)) : QString();
        });
        m_treated.replaced.note(name, isReplaced);
        m_isOptional = false;
    }
    template <typename Get>
    void held(const char* name, Get get)
    {
        const auto textsOf = [get](const T& object) {
            QStringList texts;
            for (const auto* item : std::invoke(get, object))
                texts.append(ElementTest::written(*item, tag()));
            if (std::is_same_v<T, XmlAreaPolyType>) // they go by their numbers
                texts.sort();
            return texts;
        };
        if (!Reading::names(m_reading.added, name)) {
            m_treated.replaced.note(
                name, verify(name, [textsOf](const T& object) { return textsOf(object).join(QLatin1Char('\n')); }));
            return;
        }
        const QStringList before = textsOf(m_before);
        const QStringList read = textsOf(m_read);
        const bool isDropped = read.isEmpty() && Reading::names(m_reading.dropped, name);
        QStringList expected = isDropped ? QStringList() : before + read;
        if (std::is_same_v<T, XmlAreaPolyType>)
            expected.sort();
        QVERIFY2(textsOf(m_after) == expected, where(name).constData());
        m_treated.added.note(name, !before.isEmpty() && !read.isEmpty());
    }

private:
    template <typename Get>
    static auto textOfHeld(Get get)
    {
        return [get](const T& object) {
            const auto* held = pointerTo(std::invoke(get, object));
            return held ? shown(*held) : QString();
        };
    }
    QByteArray where(const char* name) const { return QByteArray(m_className) + "." + name; }
    /// Returns whether it was seen that the document replaces what was held.
    template <typename Text>
    bool verify(const char* name, Text text)
    {
        const QString empty = text(m_empty);
        const QString before = text(m_before);
        const QString read = text(m_read);
        const bool isMentioned = read != empty;
        const bool isDropped = Reading::names(m_reading.dropped, name);
        const QString expected = isMentioned || isDropped ? read : before;
        if (text(m_after) != expected)
            QTest::qFail(where(name).constData(), __FILE__, __LINE__);
        const bool isTold = before != empty && before != read;
        if (isDropped || m_isOptional)
            (isDropped ? m_treated.dropped : m_treated.kept).note(name, isTold && !isMentioned);
        return isTold && isMentioned;
    }

    const char* m_className;
    const Reading& m_reading;
    const T& m_empty;
    const T& m_before;
    const T& m_read;
    const T& m_after;
    Treated& m_treated;
    bool m_isOptional = false;
};

// Operations that run out of memory

/// Tries \a operation on copies of \a original, each time with one allocation more, until it succeeds. Whenever it
/// fails, nothing is lost, and the element can still be used.
template <typename T, typename Operation>
void tryWithoutMemory(const T& original, Operation operation, const char* name)
{
    bool isDone = false;
    for (long allowed = 0; !isDone; ++allowed) {
        const long before = FailingMemory::held();
        {
            T object(original);
            isDone = FailingMemory::run(allowed, [&] { operation(object); });
            use(object);
            object = original;
            Samples::reset(object);
        }
        QVERIFY2(FailingMemory::held() == before, name);
    }
}

/// The same with reading a document. The stream is made beforehand: Qt's constructor loses memory when it fails.
template <typename T>
void tryReadingWithoutMemory(const T& original, const QString& xml, const char* name)
{
    bool isDone = false;
    for (long allowed = 0; !isDone; ++allowed) {
        QXmlStreamReader reader(xml);
        reader.readNextStartElement();
        const QString ownTag = reader.name().toString();
        const long before = FailingMemory::held();
        {
            T object(original);
            isDone = FailingMemory::run(allowed, [&] { object.processXml(reader, ownTag); });
            if constexpr (std::is_same_v<T, XmlAreaPolyType>) {
                const QVector<XmlNumCoordType*> vertices = object.vertices();
                const auto comesBefore = [](auto* a, auto* b) { return a->number() < b->number(); };
                QVERIFY(std::is_sorted(vertices.begin(), vertices.end(), comesBefore));
            }
            use(object);
        }
        QVERIFY2(FailingMemory::held() == before, name);
    }
}

/// Hands everything that an element holds to the setters of another of its class, without memory for it.
template <typename T>
class SettingWithoutMemory : public Visitor<SettingWithoutMemory<T>> {
public:
    SettingWithoutMemory(const T& source, const T& target)
        : m_source(source)
        , m_target(target)
    {
    }
    template <typename Get, typename Set>
    void child(const char* name, Get get, Set set)
    {
        if (const auto* held = pointerTo(std::invoke(get, m_source)))
            tryWithoutMemory(
                m_target, [&](T& object) { std::invoke(set, object, *held); }, name);
    }
    template <typename Get, typename Set, typename Rule>
    void value(const char* name, Get get, Set set, const Rule&)
    {
        if constexpr (std::is_same_v<T, XmlCmdAdmin>)
            return; // what it asks is set by reading, which is tried elsewhere
        tryWithoutMemory(
            m_target, [&](T& object) { std::invoke(set, object, std::invoke(get, m_source)); }, name);
    }
    template <typename Has, typename Get, typename Set, typename Rule>
    void parameter(const char* name, Has, Get get, Set set, const Rule& rule)
    {
        value(name, get, set, rule);
    }
    template <typename Get, typename Set>
    void list(const char* name, Get get, Set set)
    {
        const auto items = std::invoke(get, m_source);
        const QString before = shown(m_target);
        bool isDone = false;
        for (long allowed = 0; !isDone; ++allowed) {
            T object(m_target);
            isDone = FailingMemory::run(allowed, [&] { std::invoke(set, object, items); });
            if (!isDone)
                QVERIFY2(shown(object) == before, name); // a list is replaced as a whole, or not at all
        }
        tryWithoutMemory(
            m_target, [&](T& object) { std::invoke(set, object, items); }, name);
    }
    template <typename Get, typename Add>
    void added(const char* name, Get get, Add add)
    {
        const auto& items = std::invoke(get, m_source);
        if (!items.isEmpty())
            tryWithoutMemory(
                m_target, [&](T& object) { std::invoke(add, object, *items.first()); }, name);
    }
    template <typename Get>
    void held(const char*, Get)
    {
    }
    template <typename Get>
    void heldOne(const char*, Get)
    {
    }

private:
    const T& m_source;
    const T& m_target;
};

} // namespace

class LifetimeTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// The first of all, so that the tables of the classes, which are made when they are first used, run out of memory.
    void memoryRunsOutForTables()
    {
        Samples::forEachClass([](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            const auto isDoneWith = [](long allowed) {
                QString xml;
                QXmlStreamWriter writer(&xml);
                return FailingMemory::run(allowed, [&writer] {
                    T element = Generator::newObject<T>(true);
                    element.syntaxError();
                    element.produceXml(writer, tag());
                    Samples::reset(element);
                });
            };
            long allowed = 0;
            while (!isDoneWith(allowed))
                ++allowed;
            const long held = FailingMemory::held();
            QVERIFY2(isDoneWith(-1), name);
            QVERIFY2(FailingMemory::held() == held, name); // only the tables stay
        });
    }

    void memoryRunsOut()
    {
        Samples::forEachClass([](auto type, const char*) {
            using T = typename decltype(type)::Type;
            for (const Samples::Sample& sample : Samples::samplesOf<T>()) { // makes all tables, which stay
                T element = Generator::newObject<T>(true);
                ElementTest::readError(element, sample.xml);
                use(element);
            }
        });
        Samples::forEachClass([](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            const T fresh = Generator::newObject<T>(true);
            const T used = generated<T>(1, Validity::Faulty);
            for (const int number : {3, 8}) {
                const T source = generated<T>(number, Validity::Faulty);
                for (const T* target : {&fresh, &used}) {
                    tryWithoutMemory(
                        *target, [&](T& object) { object = source; }, name);
                    SettingWithoutMemory<T> setting(source, *target);
                    visit<T>(setting);
                }
                tryWithoutMemory(
                    source, [](T& object) { T copy(object); }, name);
                tryWithoutMemory(
                    source, [](T& object) { object = T(std::move(object)); }, name);
                tryWithoutMemory(
                    source, [](T& object) { object.isValid(); }, name);
                tryWithoutMemory(
                    source, [](T& object) { object.syntaxError(); }, name);
                tryWithoutMemory(
                    source, [](T& object) { Samples::reset(object); }, name);
                QString xml;
                QXmlStreamWriter writer(&xml);
                tryWithoutMemory(
                    source, [&](T& object) { object.produceXml(writer, tag()); }, name);
            }
            for (const Samples::Sample& sample : Samples::samplesOf<T>()) {
                tryReadingWithoutMemory(fresh, sample.xml, name);
                tryReadingWithoutMemory(used, sample.xml, name);
            }
        });
    }

    void verticesStayInOrderWithoutMemory()
    {
        const QString xml = QStringLiteral("<A version='1.0'>%1%2%3</A>");
        const auto vertex = [](int number) {
            return QStringLiteral("<Vertex version='1.0' number='%1'><Longitude>8</Longitude><Latitude>47</Latitude>"
                                  "</Vertex>")
                .arg(number);
        };
        XmlAreaPolyType polygon;
        QCOMPARE(ElementTest::readError(polygon, xml.arg(vertex(8), vertex(4), vertex(2))), QString());
        tryReadingWithoutMemory(polygon, xml.arg(vertex(9), vertex(5), vertex(1)), "between those held");
        tryReadingWithoutMemory(XmlAreaPolyType(), xml.arg(vertex(5), vertex(3), vertex(1)), "in a new polygon");
    }

    void ownThings()
    {
        Samples::forEachClass([](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            for (const Validity validity : {Validity::Valid, Validity::Faulty}) {
                Census given;
                for (const int number : numbersOf<T>()) {
                    const T object = generated<T>(number, validity);
                    GivingBack<T> giving(object, given);
                    visit<T>(giving);
                }
                verifyComplete(given, name); // each setter was given something
            }
        });
    }

    // The tag may be a text inside something that reading removes first.
    void textInsideAsTag()
    {
        const auto readUnder = [](IXmlElement& element, const QString& xml, const QString& textInside) {
            QXmlStreamReader reader(xml);
            reader.readNextStartElement();
            element.processXml(reader, textInside);
            return reader.errorString();
        };
        const auto named = [](const char* text) {
            XmlObjNameType name;
            name.setObjName(QString::fromLatin1(text)); // not a constant: its memory goes with the last copy
            return name;
        };
        const QString everyObject = QStringLiteral("<%1><DF><All/></DF><Reference>1</Reference></%1>");

        XmlCmdDelete referring;
        XmlReferenceType reference;
        reference.setReference(QString::fromLatin1("Wipe"));
        referring.setCmdReference(reference);
        reference.setReference(QString());
        QCOMPARE(readUnder(referring, everyObject.arg(QStringLiteral("Wipe")), referring.cmdReference().reference()),
                 QString());
        QVERIFY(referring.isValid());

        XmlCmdDelete deleting;
        {
            XmlNameAllType emitter;
            emitter.setObjName(named("Erase"));
            deleting.setEmitter(emitter);
        }
        QCOMPARE(
            readUnder(deleting, everyObject.arg(QStringLiteral("Erase")), deleting.emitter()->objName()->objName()),
            QString());
        QVERIFY(!deleting.hasEmitter() && deleting.hasDf());

        XmlDeviceListType list;
        {
            XmlDeviceType device;
            device.setObjName(named("Devices"));
            list.setDeviceList({&device});
        }
        QCOMPARE(readUnder(list, QStringLiteral("<Devices/>"), list.deviceList().first()->objName()->objName()),
                 QStringLiteral("in XmlDeviceListType (line 1, column 10): Unexpected token \"EndElement\"."));
        QVERIFY(list.deviceList().isEmpty());
    }

    void ownTextAsTag()
    {
        QStringList classes;
        Samples::forEachClass([&classes](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            int texts = 0;
            for (const Samples::Sample& sample : Samples::samplesOf<T>()) {
                OwnTag<T> ownTag(sample.xml);
                visit<T>(ownTag);
                texts += ownTag.texts();
            }
            if (texts > 0)
                classes.append(QLatin1String(name));
        });
        // Those with a text of which the getter gives a reference.
        QCOMPARE(
            classes,
            QStringList({QStringLiteral("XmlLengthType"), QStringLiteral("XmlPowerType"), QStringLiteral("XmlFreqType"),
                         QStringLiteral("XmlBandwidthType"), QStringLiteral("XmlFieldstrengthType"),
                         QStringLiteral("XmlObjNameType"), QStringLiteral("XmlReferenceType"),
                         QStringLiteral("XmlOrderDef"), QStringLiteral("XmlDfPrecisionType"),
                         QStringLiteral("XmlInterlinkPlanningType"), QStringLiteral("XmlGridResultType"),
                         QStringLiteral("XmlGridValuesType"), QStringLiteral("XmlInterlinkResultType"),
                         QStringLiteral("XmlAutoRespType"), QStringLiteral("XmlArvBtType")}));
    }

    void copiesOutliveTheirSource()
    {
        Samples::forEachClass([](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            Census sources;
            Census targets;
            for (const int number : numbersOf<T>()) {
                auto source = std::make_unique<T>(generated<T>(number));
                auto target = std::make_unique<T>(generated<T>(number + 1, Validity::Faulty));
                count(*source, sources);
                count(*target, targets);
                const QString expected = shown(*source);
                T copy(*source);
                *target = *source;
                source.reset();
                QVERIFY2(shown(copy) == expected, name);
                QVERIFY2(shown(*target) == expected, name);
                use(copy);
                QVERIFY2(shown(*target) == expected, name);
                use(*target);
            }
            verifyComplete(sources, name);
            verifyComplete(targets, name);
        });
    }

    void readingIntoUsedElements()
    {
        QStringList unseen;
        Samples::forEachClass([&](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            Treated treated;
            Census usedOnes;
            QStringList documents = {QStringLiteral("<%1/>").arg(Samples::tagOf(Samples::samplesOf<T>().front()))};
            for (const Samples::Sample& sample : Samples::samplesOf<T>())
                documents.append(sample.xml);
            for (const QString& document : std::as_const(documents)) {
                T readable = Generator::newObject<T>(true);
                if (!ElementTest::readError(readable, document).isEmpty())
                    continue; // what is left of those is told below
                for (const int number : numbersOf<T>()) {
                    T used = generated<T>(number);
                    count(used, usedOnes);
                    T fresh = Generator::newObject<T>(isCommand(used));
                    const QString freshError = ElementTest::readError(fresh, document);
                    const T before(used);
                    const QString error = ElementTest::readError(used, document);
                    QVERIFY2(error == freshError, name);
                    const T empty = Generator::newObject<T>(isCommand(used));
                    ReadingInto<T> reading(name, empty, before, fresh, used, treated);
                    visit<T>(reading);
                    QVERIFY2(ElementTest::readError(used, document) == error, name);
                    use(used);
                    // What was reset reads like new.
                    ElementTest::readError(used, document);
                    if (ElementTest::written(used, tag()) != ElementTest::written(fresh, tag())) {
                        // But for what reset() leaves: an order of the best sensor coverage in its command.
                        QVERIFY2((std::is_same_v<T, XmlCmdCalc>), name);
                    }
                }
            }
            verifyComplete(usedOnes, name);
            for (const Census& census :
                 {treated.replaced, treated.kept, treated.added, treated.entered, treated.dropped}) {
                if (!census.missing().isEmpty())
                    unseen.append(QLatin1String(name) + QLatin1String(census.missing()));
            }
        });
        // Whatever holds these cannot be read; and without a link there is no interactive answer that can.
        QCOMPARE(unseen,
                 QStringList({QStringLiteral("XmlAutoRespType gridResult"),
                              QStringLiteral("XmlInteractRespType gridResult result"),
                              QStringLiteral("XmlInteractRespType interlinkResult")}));
    }

    void readingThatFails()
    {
        QStringList texts;
        QStringList elements;
        Samples::forEachClass([&](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            constexpr int deepest = 3;
            int number = 0;
            int deep = 0;
            Census held;
            for (const Samples::Sample& sample : Samples::samplesOf<T>()) {
                T whole = Generator::newObject<T>(true);
                ElementTest::readError(whole, sample.xml);
                if (sample.finish)
                    sample.finish(whole); // what cannot be read
                count(whole, held);
                for (const Damage& damage : damagesOf(sample.xml)) {
                    // What is deep inside is told by the class of the element there; here by some of it.
                    if (damage.depth > deepest && deep++ % 8 != 0)
                        continue;
                    if (number++ > 0 && !TestEffort::isNextTaken())
                        continue;
                    for (const bool isNew : {true, false}) {
                        T element = isNew ? Generator::newObject<T>(true) : generatedCommand<T>(number);
                        const QString error = ElementTest::readError(element, damage.xml);
                        if (error.isEmpty()) {
                            QVERIFY2(damage.kind != Damage::Cut, qPrintable(damage.xml));
                            (damage.kind == Damage::WrongText ? texts : elements).append(damage.tag);
                        }
                        use(element);
                        // Again, and without a reset: what the failure left is no hindrance.
                        ElementTest::readError(element, damage.xml);
                        ElementTest::readError(element, sample.xml);
                        use(element);
                        const QString again = ElementTest::readError(element, sample.xml);
                        QVERIFY2(again == sample.error, qPrintable(damage.xml + again));
                        // An order of the best sensor coverage stays in its command.
                        if (!sample.finish && !std::is_same_v<T, XmlCmdCalc>)
                            QVERIFY2(ElementTest::written(element, Samples::tagOf(sample)) == sample.expected(), name);
                    }
                }
            }
            verifyComplete(held, name); // each child occurs in some sample
        });
        // The only damages that are none: texts of any kind, coordinates that are no numbers, and what is skipped.
        verifyAccepted(texts,
                       {QStringLiteral("ArvVersion"), QStringLiteral("CommandReference"), QStringLiteral("Comment"),
                        QStringLiteral("ErrorMessage"), QStringLiteral("FirstName"), QStringLiteral("Latitude"),
                        QStringLiteral("Longitude"), QStringLiteral("Name"), QStringLiteral("ORDER_ID"),
                        QStringLiteral("ORDER_SENDER"), QStringLiteral("Reference"),
                        QStringLiteral("ScreenshotFilename"), QStringLiteral("ScreenshotPath"),
                        QStringLiteral("SecondName"), QStringLiteral("Text")});
        verifyAccepted(elements, {QStringLiteral("Reference")});
    }

    void containers()
    {
        Samples::forEachClass([](auto type, const char* name) {
            using T = typename decltype(type)::Type;
            std::vector<T> vector;
            QList<T> list;
            QStringList expected;
            Census moved;
            for (const int number : numbersOf<T>()) {
                T object = generated<T>(number, vector.size() % 4 == 3 ? Validity::Faulty : Validity::Valid);
                count(object, moved);
                expected.append(shown(object));
                list.append(object);
                vector.push_back(std::move(object)); // moves all of them about when it grows
                Samples::reset(object);
                object = list.last();
                QVERIFY2(shown(object) == expected.last(), name);
            }
            verifyComplete(moved, name);
            const auto verify = [&](const auto& container) {
                int index = 0;
                for (const T& object : container)
                    QVERIFY2(shown(object) == expected.at(index++), name);
            };
            verify(vector);
            verify(list);

            std::rotate(vector.begin(), vector.begin() + 1, vector.end());
            std::reverse(list.begin(), list.end());
            std::reverse(list.begin(), list.end());
            expected.append(expected.takeFirst());
            verify(vector);
            list.append(list.takeFirst());
            QList<T> shared(list);
            shared.removeLast();
            verify(list);
            vector.erase(vector.begin());
            vector.insert(vector.begin(), list.first());
            verify(vector);

            T& first = vector[0];
            T& second = vector[1];
            std::swap(first, second);
            QVERIFY2(shown(first) == expected.at(1) && shown(second) == expected.at(0), name);
            std::swap(first, second);
            T& itself = first;
            std::swap(first, itself);
            verify(vector);

            std::optional<T> optional(std::move(first));
            QVERIFY2(shown(*optional) == expected.at(0), name);
            optional = std::move(second); // into one that holds something
            QVERIFY2(shown(*optional) == expected.at(1), name);
            std::optional<T> other(std::move(optional));
            optional = list.first();
            optional.swap(other);
            QVERIFY2(shown(*optional) == expected.at(1) && shown(*other) == expected.at(0), name);
            other.reset();
            QVERIFY2(shown(*optional) == expected.at(1), name);

            // Those that were moved from can be reset, and assigned to with or without that.
            Samples::reset(first);
            first = list.at(0);
            second = std::move(*optional);
            verify(vector);
            *optional = second;
            use(*optional);
            verify(vector);
        });
    }

private:
    /// Everything that an object may hold was there in one of those counted.
    static void verifyComplete(const Census& census, const char* name)
    {
        QVERIFY2(census.missing().isEmpty(), qPrintable(QLatin1String(name) + QLatin1String(census.missing())));
    }
    /// The damages in just these elements were read without an error.
    static void verifyAccepted(QStringList tags, const QStringList& expected)
    {
        tags.sort();
        tags.removeDuplicates();
        if (TestEffort::divisor() == 1) {
            QCOMPARE(tags, expected);
        } else {
            for (const QString& tag : std::as_const(tags))
                QVERIFY2(expected.contains(tag), qPrintable(tag));
        }
    }
    /// Of the class that need not be a command, one that is.
    template <typename T>
    static T generatedCommand(int number)
    {
        T object = generated<T>(number);
        return isCommand(object) ? object : generatedCommand<T>(number + 1);
    }
    template <typename T>
    static bool isCommand(const T& object)
    {
        if constexpr (std::is_same_v<T, XmlPropModelType>)
            return object.isCommand();
        else
            return true;
    }
};

QTEST_APPLESS_MAIN(LifetimeTest)
#include "lifetime_test.moc"
