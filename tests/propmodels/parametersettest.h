#pragma once

#include "support/elementtest.h"

#include <arvxml/element.h>

#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

/// \file
/// The checks that the parameter sets of all propagation models have in common, driven by a table.
///
/// The test of a set derives ParameterSetTest, hands it the table of the set, and adds slots for what is
/// particular to the set. It ends with two includes: "moc_parametersettest.cpp" and its own "<file>.moc".
///
///     ParameterSet table()
///     {
///         using Set = XmlPropModelOLOSType;
///         return parameterSet<Set>("XmlPropModelOLOSType",
///                                  {real(accessors(&Set::setKfactor, &Set::Kfactor, &Set::hasKfactor),
///                                  "K-factor", 1.0)
///                                       .reads({{"2.5", 2.5, "2.5000"}, {"0.1", 0.1, "0.1000"}})
///                                       .bounds(0.1, 5.0, "K-factor out of bounds")
///                                       .fails("Illegal K-factor value (must be numeric)"),
///                                   ...},
///                                  {"++", "--"})
///             .keptBeforeReading();
///     }
///
/// All values pass through the table as double, enumerators and integers too. The sets are written and read
/// under the tag "Set".

namespace ParameterSets {

using ArvXml::IXmlElement;

// The accessors of one parameter, for a set of any class.

struct Accessors {
    std::function<void(IXmlElement&, double)> set;
    std::function<double(IXmlElement&)> get; ///< as declared; another than constGet for enumerations
    std::function<double(const IXmlElement&)> constGet;
    std::function<bool(const IXmlElement&)> has;
};

template <typename Set, typename Value>
Accessors accessors(void (Set::*set)(Value), Value (Set::*get)(), Value (Set::*constGet)() const,
                    bool (Set::*has)() const)
{
    return {[set](IXmlElement& element, double value) {
                if constexpr (std::is_same_v<Value, double>)
                    (static_cast<Set&>(element).*set)(value);
                else
                    (static_cast<Set&>(element).*set)(static_cast<Value>(static_cast<int>(value)));
            },
            [get](IXmlElement& element) { return static_cast<double>((static_cast<Set&>(element).*get)()); },
            [constGet](const IXmlElement& element) {
                return static_cast<double>((static_cast<const Set&>(element).*constGet)());
            },
            [has](const IXmlElement& element) { return (static_cast<const Set&>(element).*has)(); }};
}

/// Of a parameter with one getter, which is const.
template <typename Set, typename Value>
Accessors accessors(void (Set::*set)(Value), Value (Set::*get)() const, bool (Set::*has)() const)
{
    static_assert(std::is_same_v<Value, double> || std::is_same_v<Value, int>);
    Accessors result = accessors<Set, Value>(set, nullptr, get, has);
    result.get = [constGet = result.constGet](IXmlElement& element) { return constGet(element); };
    return result;
}

/// A text that is read, the value it gives, and the text written for that value.
struct Text {
    const char* read;
    double value;
    const char* written;
};

/// A value and the text written for it.
struct Written {
    double value;
    const char* text;
};

/// One parameter: a row of the table.
struct Parameter {
    enum Kind { Real, Integer, Choice };

    Kind kind;
    Accessors access;
    QString tag;        ///< read under this tag
    QString writtenTag; ///< written under this one
    double byDefault;
    double afterBadText;
    QString readError;
    int badTextClears = -1; ///< the parameter whose flag a bad text clears; -1 for its own
    QString rangeError;
    std::vector<Text> texts; ///< at least two values, one of them another than the default
    std::vector<Written> writtenTexts;
    std::vector<QString> badTexts;
    std::vector<double> inside;  ///< values that are valid
    std::vector<double> outside; ///< values that are not

    /// Texts that are read; those of an enumeration are all listed.
    Parameter& reads(const std::vector<Text>& list)
    {
        texts = list;
        return *this;
    }
    /// Texts written for values that a setter stores, beside those of reads().
    Parameter& writes(const std::vector<Written>& list)
    {
        writtenTexts.insert(writtenTexts.end(), list.begin(), list.end());
        return *this;
    }
    /// The text written for values that an enumeration does not have; reads() comes first.
    Parameter& otherwiseWrites(const char* text)
    {
        for (const double value : {-1.0, 8.0, 99.0, -2147483648.0, 2147483647.0})
            writtenTexts.push_back({value, text});
        for (double value = 2.0; value < 8.0; ++value) {
            bool isListed = false;
            for (const Text& listed : texts)
                isListed = isListed || listed.value == value;
            if (!isListed)
                writtenTexts.push_back({value, text});
        }
        return *this;
    }
    Parameter& writtenAs(const char* otherTag)
    {
        writtenTag = QLatin1String(otherTag);
        return *this;
    }
    /// The message for a text that is not accepted.
    Parameter& fails(const char* message)
    {
        readError = QLatin1String(message);
        return *this;
    }
    /// Texts that are not accepted, beside those that no parameter of the kind accepts.
    Parameter& refuses(const std::vector<const char*>& list)
    {
        for (const char* text : list)
            badTexts.push_back(QString::fromLatin1(text));
        return *this;
    }
    Parameter& keepsAfterBadText(double value)
    {
        afterBadText = value;
        return *this;
    }
    /// A bad text makes another parameter absent, and this one present.
    Parameter& clearsAfterBadText(int parameter)
    {
        badTextClears = parameter;
        return *this;
    }
    /// The range of a number; both bounds belong to it.
    Parameter& bounds(double min, double max, const char* message)
    {
        const double infinity = std::numeric_limits<double>::infinity();
        rangeError = QLatin1String(message);
        if (kind == Integer) {
            inside = {min, min + 1.0, max - 1.0, max};
            outside = {min - 1.0, max + 1.0, -2147483648.0, 2147483647.0};
        } else {
            const double notANumber = std::numeric_limits<double>::quiet_NaN();
            inside = {min, std::nextafter(min, infinity), std::nextafter(max, -infinity), max, notANumber};
            outside = {std::nextafter(min, -infinity), std::nextafter(max, infinity), -infinity, infinity};
        }
        return *this;
    }
    /// Value 0 of the enumeration is invalid.
    Parameter& undefined(const char* message)
    {
        rangeError = QLatin1String(message);
        outside = {0.0};
        inside = {1.0, 2.0, 3.0, -1.0, 99.0};
        return *this;
    }

    /// A text whose value is not the default, and one with yet another value.
    const Text& sample() const { return otherThan(byDefault); }
    const Text& otherSample() const { return otherThan(sample().value); }

private:
    const Text& otherThan(double value) const
    {
        for (const Text& text : texts) {
            if (text.value != value)
                return text;
        }
        qFatal("The table lists too few texts of a parameter.");
    }
};

inline Parameter parameter(Parameter::Kind kind, const Accessors& access, const char* tag, double byDefault)
{
    Parameter result;
    result.kind = kind;
    result.access = access;
    result.tag = result.writtenTag = QLatin1String(tag);
    result.byDefault = result.afterBadText = byDefault;
    return result;
}
/// A real number. A text after which blanks and a unit follow is none, for example.
inline Parameter real(const Accessors& access, const char* tag, double byDefault)
{
    return parameter(Parameter::Real, access, tag, byDefault)
        .refuses({"", " ", "abc", "1,5", "1.5 km", "1.2.3", "--1", "1e"});
}
inline Parameter integer(const Accessors& access, const char* tag, int byDefault)
{
    return parameter(Parameter::Integer, access, tag, byDefault)
        .refuses({"", " ", "abc", "329.5", "300.0", "3e2", "0x140", "300 m", "2147483648", "-2147483649"});
}
/// An enumeration; every value is valid unless undefined() says otherwise.
inline Parameter choice(const Accessors& access, const char* tag, int byDefault)
{
    Parameter result = parameter(Parameter::Choice, access, tag, byDefault).refuses({"", " ", "0", "1", "2"});
    result.inside = {0.0, 1.0, 2.0, 3.0, -1.0, 99.0};
    return result;
}

/// A set whose resets are counted and whose problems kept from the last syntaxError() can be seen.
class Probe {
public:
    virtual ~Probe() = default;
    virtual IXmlElement& element() = 0;
    virtual int resets() const = 0;
    virtual QString keptProblems() = 0;
    virtual QString className() const = 0;
    virtual std::unique_ptr<Probe> copy() const = 0;
    virtual std::unique_ptr<Probe> assigned() const = 0;
};

template <typename Set>
class ProbeOf : public Probe {
public:
    IXmlElement& element() override { return m_set; }
    int resets() const override { return m_set.resets; }
    QString keptProblems() override { return m_set.problems(); }
    QString className() const override { return m_set.name(); }
    std::unique_ptr<Probe> copy() const override { return std::make_unique<ProbeOf>(*this); }
    std::unique_ptr<Probe> assigned() const override
    {
        auto other = std::make_unique<ProbeOf>();
        other->m_set = m_set;
        return other;
    }

private:
    struct Watched : Set {
        int resets = 0;
        void reset() override
        {
            ++resets;
            Set::reset();
        }
        QString problems() { return this->mySyntaxError(); }
        QString name() const { return this->classname(); }
    };
    Watched m_set;
};

using SetPointer = std::shared_ptr<IXmlElement>;

/// The table of one set.
struct ParameterSet {
    QString className; ///< as messages show it
    std::vector<Parameter> parameters;
    /// A row for each parameter, a sign for each that may come next: '+' is read, '-' refused.
    std::vector<const char*> gates;
    std::vector<int> reportOrder;
    bool isResetBeforeReading = true;
    bool resetForgetsProblems = true;

    std::function<SetPointer()> make;
    std::function<SetPointer(const IXmlElement&)> copy;
    std::function<void(IXmlElement&, const IXmlElement&)> assign;
    std::function<std::unique_ptr<Probe>()> makeProbe;

    /// Problems are reported in another order than that of the table.
    ParameterSet& reportedInOrder(const std::vector<int>& order)
    {
        reportOrder = order;
        return *this;
    }
    /// Reading does not reset the set.
    ParameterSet& keptBeforeReading()
    {
        isResetBeforeReading = false;
        return *this;
    }
    /// reset() leaves the problems found by the last syntaxError().
    ParameterSet& resetKeepsProblems()
    {
        resetForgetsProblems = false;
        return *this;
    }
};

template <typename Set>
ParameterSet parameterSet(const char* className, const std::vector<Parameter>& parameters,
                          const std::vector<const char*>& gates)
{
    static_assert(std::is_base_of_v<ArvXml::XmlElementBase, Set>);
    static_assert(std::is_default_constructible_v<Set> && std::is_copy_constructible_v<Set>);
    static_assert(std::has_virtual_destructor_v<Set>);
    static_assert(std::is_same_v<decltype(std::declval<Set&>() = std::declval<const Set&>()), Set&>);

    ParameterSet result;
    result.className = QLatin1String(className);
    result.parameters = parameters;
    result.gates = gates;
    for (int parameter = 0; parameter < static_cast<int>(parameters.size()); ++parameter)
        result.reportOrder.push_back(parameter);
    result.make = [] { return std::make_shared<Set>(); };
    result.copy = [](const IXmlElement& other) { return std::make_shared<Set>(static_cast<const Set&>(other)); };
    result.assign = [](IXmlElement& set, const IXmlElement& other) {
        static_cast<Set&>(set) = static_cast<const Set&>(other);
    };
    result.makeProbe = [] { return std::make_unique<ProbeOf<Set>>(); };
    return result;
}

/// What a set holds: the value and the flag of each parameter.
class State {
public:
    /// The state of a new set.
    explicit State(const ParameterSet& set)
    {
        for (const Parameter& parameter : set.parameters)
            m_entries.push_back({parameter.tag, parameter.byDefault, false});
    }
    /// The state of \a element.
    State(const ParameterSet& set, const IXmlElement& element)
    {
        for (const Parameter& parameter : set.parameters)
            m_entries.push_back({parameter.tag, parameter.access.constGet(element), parameter.access.has(element)});
    }
    State& with(int parameter, double value, bool isPresent = true)
    {
        m_entries[static_cast<std::size_t>(parameter)].value = value;
        m_entries[static_cast<std::size_t>(parameter)].isPresent = isPresent;
        return *this;
    }
    State& without(int parameter)
    {
        m_entries[static_cast<std::size_t>(parameter)].isPresent = false;
        return *this;
    }
    /// The state to the last bit, for comparisons that tell what differs.
    QString text() const
    {
        QString result;
        for (const Entry& entry : m_entries) {
            result += entry.tag + QLatin1Char('=') + QString::number(entry.value, 'g', 17);
            result += entry.isPresent ? QLatin1String("; ") : QLatin1String(" (absent); ");
        }
        return result;
    }

private:
    struct Entry {
        QString tag;
        double value;
        bool isPresent;
    };
    std::vector<Entry> m_entries;
};

} // namespace ParameterSets

#define COMPARE_STATE(element, expected) QCOMPARE(State(this->set(), (element)).text(), (expected).text())

/// The common checks.
class ParameterSetTest : public QObject {
    Q_OBJECT

protected:
    using Parameter = ParameterSets::Parameter;
    using ParameterSet = ParameterSets::ParameterSet;
    using SetPointer = ParameterSets::SetPointer;
    using State = ParameterSets::State;
    using Text = ParameterSets::Text;
    using IXmlElement = ArvXml::IXmlElement;

    explicit ParameterSetTest(ParameterSet set)
        : m_set(std::move(set))
    {
    }

    const ParameterSet& set() const { return m_set; }
    int size() const { return static_cast<int>(m_set.parameters.size()); }
    const Parameter& row(int parameter) const { return m_set.parameters[static_cast<std::size_t>(parameter)]; }

    static QString tag() { return QStringLiteral("Set"); }
    static QString text(const char* latin1) { return QString::fromLatin1(latin1); }

    /// `<tag>text</tag>`
    static QString child(const QString& tag, const QString& text)
    {
        return QLatin1Char('<') + tag + QLatin1Char('>') + text + QLatin1String("</") + tag + QLatin1Char('>');
    }
    /// The set with \a content.
    static QString document(const QString& content) { return child(tag(), content); }
    /// The parameter as it is read.
    QString asRead(int parameter, const Text& text) const
    {
        return child(row(parameter).tag, QString::fromLatin1(text.read));
    }
    /// The parameter as it is written.
    QString asWritten(int parameter, const char* text) const
    {
        return child(row(parameter).writtenTag, QString::fromLatin1(text));
    }
    static QString write(const IXmlElement& element) { return ElementTest::written(element, tag()); }
    static QString read(IXmlElement& element, const QString& xml) { return ElementTest::readError(element, xml); }

    /// A reader's error as the set frames it.
    QString framed(const char* position, const QString& message) const
    {
        return QLatin1String("in ") + m_set.className + QLatin1String(" (") + QLatin1String(position)
            + QLatin1String("): ") + message + QLatin1Char('.');
    }
    /// Problems as the set frames them; nothing for none.
    QString block(const QStringList& problems) const
    {
        if (problems.isEmpty())
            return QString();
        return QLatin1String("+++ in ") + m_set.className + QLatin1String(" Begin:\n")
            + problems.join(QLatin1Char('\n')) + QLatin1String("\n--- in ") + m_set.className + QLatin1String(" End");
    }

    SetPointer full() const
    {
        const SetPointer element = m_set.make();
        for (int parameter = 0; parameter < size(); ++parameter)
            row(parameter).access.set(*element, row(parameter).sample().value);
        return element;
    }
    State fullState() const
    {
        State state(m_set);
        for (int parameter = 0; parameter < size(); ++parameter)
            state.with(parameter, row(parameter).sample().value);
        return state;
    }
    QString fullDocument() const
    {
        QString content;
        for (int parameter = 0; parameter < size(); ++parameter)
            content += asRead(parameter, row(parameter).sample());
        return document(content);
    }

private:
    static QByteArray rowName(const QString& name, int number = -1)
    {
        QByteArray result = name.toLatin1();
        result.replace('\n', ' ');
        if (number >= 0)
            result += " [" + QByteArray::number(number) + ']';
        return result;
    }

    const ParameterSet m_set;

private Q_SLOTS:
    // The table itself, so that no check below goes through an empty list.

    void theTableIsComplete()
    {
        QVERIFY(size() > 0);
        QCOMPARE(static_cast<int>(m_set.gates.size()), size());
        QCOMPARE(static_cast<int>(m_set.reportOrder.size()), size());
        for (int parameter = 0; parameter < size(); ++parameter) {
            QCOMPARE(static_cast<int>(qstrlen(m_set.gates[static_cast<std::size_t>(parameter)])), size());
            QVERIFY(!row(parameter).readError.isEmpty());
            QVERIFY(!row(parameter).badTexts.empty());
            QVERIFY(!row(parameter).inside.empty());
            QCOMPARE(row(parameter).outside.empty(), row(parameter).rangeError.isEmpty());
            QVERIFY(row(parameter).kind == Parameter::Choice || !row(parameter).outside.empty());
            QVERIFY(row(parameter).sample().value != row(parameter).byDefault);
            QVERIFY(row(parameter).sample().value != row(parameter).otherSample().value);
        }
        QCOMPARE(m_set.makeProbe()->className(), m_set.className);
    }

    // Values and flags

    void aNewSetHoldsDefaultsAndWritesNoChildren()
    {
        const SetPointer element = m_set.make();
        COMPARE_STATE(*element, State(m_set));
        QCOMPARE(write(*element), QStringLiteral("<Set/>"));
        QVERIFY(element->isValid());
        QCOMPARE(element->syntaxError(), QString());
    }

    void settersStoreTheValueAndSetTheFlag_data()
    {
        QTest::addColumn<int>("parameter");
        QTest::addColumn<double>("value");
        for (int parameter = 0; parameter < size(); ++parameter) {
            std::vector<double> values = row(parameter).inside;
            values.insert(values.end(), row(parameter).outside.begin(), row(parameter).outside.end());
            for (const Text& text : row(parameter).texts)
                values.push_back(text.value);
            values.push_back(row(parameter).byDefault);
            int number = 0;
            for (const double value : values)
                QTest::newRow(rowName(row(parameter).tag + QLatin1Char(' ') + QString::number(value, 'g', 17), number++)
                                  .constData())
                    << parameter << value;
        }
    }
    void settersStoreTheValueAndSetTheFlag()
    {
        QFETCH(int, parameter);
        QFETCH(double, value);
        const SetPointer element = m_set.make();
        row(parameter).access.set(*element, value);
        COMPARE_STATE(*element, State(m_set).with(parameter, value));
        QCOMPARE(QString::number(row(parameter).access.get(*element), 'g', 17), QString::number(value, 'g', 17));

        // A second value takes the place of the first, beside all other parameters.
        const SetPointer used = full();
        row(parameter).access.set(*used, value);
        COMPARE_STATE(*used, fullState().with(parameter, value));
    }

    void aDefaultIsWrittenWhenItWasSet()
    {
        for (int parameter = 0; parameter < size(); ++parameter) {
            const SetPointer element = m_set.make();
            row(parameter).access.set(*element, row(parameter).byDefault);
            QCOMPARE(write(*element).count(QLatin1Char('<') + row(parameter).writtenTag + QLatin1Char('>')),
                     row(parameter).writtenTag == tag() ? 2 : 1);
            COMPARE_STATE(*element, State(m_set).with(parameter, row(parameter).byDefault));
        }
    }

    void copiesHoldAllValuesAndFlags()
    {
        const SetPointer original = full();
        const SetPointer copy = m_set.copy(*original);
        COMPARE_STATE(*copy, fullState());
        for (int parameter = 0; parameter < size(); ++parameter)
            row(parameter).access.set(*copy, row(parameter).otherSample().value);
        COMPARE_STATE(*original, fullState());
        original->reset();
        State others(m_set);
        for (int parameter = 0; parameter < size(); ++parameter)
            others.with(parameter, row(parameter).otherSample().value);
        COMPARE_STATE(*copy, others);

        const SetPointer empty = m_set.make();
        COMPARE_STATE(*m_set.copy(*empty), State(m_set));
    }

    void copiesAndAssignmentsOfOneParameter_data()
    {
        QTest::addColumn<int>("parameter");
        for (int parameter = 0; parameter < size(); ++parameter)
            QTest::newRow(rowName(row(parameter).tag).constData()) << parameter;
    }
    void copiesAndAssignmentsOfOneParameter()
    {
        QFETCH(int, parameter);
        const double value = row(parameter).otherSample().value;
        const SetPointer one = m_set.make();
        row(parameter).access.set(*one, value);
        const State oneState = State(m_set).with(parameter, value);
        COMPARE_STATE(*m_set.copy(*one), oneState);

        const SetPointer overEmpty = m_set.make();
        m_set.assign(*overEmpty, *one);
        COMPARE_STATE(*overEmpty, oneState);

        const SetPointer overFull = full();
        m_set.assign(*overFull, *one);
        COMPARE_STATE(*overFull, oneState);

        m_set.assign(*one, *full());
        COMPARE_STATE(*one, fullState());
        m_set.assign(*one, *m_set.make());
        COMPARE_STATE(*one, State(m_set));
    }

    void assignmentToItselfChangesNothing()
    {
        const SetPointer element = full();
        m_set.assign(*element, *element);
        COMPARE_STATE(*element, fullState());
        const SetPointer other = m_set.make();
        m_set.assign(*other, *element);
        element->reset();
        COMPARE_STATE(*other, fullState());
    }

    void copiesKeepTheProblemsFound()
    {
        for (int parameter = 0; parameter < size(); ++parameter) {
            if (row(parameter).outside.empty())
                continue;
            const std::unique_ptr<ParameterSets::Probe> probe = m_set.makeProbe();
            QCOMPARE(probe->keptProblems(), QString());
            row(parameter).access.set(probe->element(), row(parameter).outside.front());
            QCOMPARE(probe->keptProblems(), QString());
            QVERIFY(!probe->element().isValid());
            QCOMPARE(probe->keptProblems(), QString());
            const QString problems = block({row(parameter).rangeError});
            QCOMPARE(probe->element().syntaxError(), problems);
            QCOMPARE(probe->keptProblems(), problems);
            QCOMPARE(probe->copy()->keptProblems(), problems);
            QCOMPARE(probe->assigned()->keptProblems(), problems);
            QCOMPARE(probe->copy()->className(), m_set.className);
            QCOMPARE(probe->assigned()->className(), m_set.className);

            probe->element().reset();
            QCOMPARE(probe->keptProblems(), m_set.resetForgetsProblems ? QString() : problems);
        }
    }

    void resetRestoresTheDefaults()
    {
        const SetPointer element = full();
        element->reset();
        COMPARE_STATE(*element, State(m_set));
        QCOMPARE(write(*element), QStringLiteral("<Set/>"));
        QVERIFY(element->isValid());
        QCOMPARE(element->syntaxError(), QString());

        for (int parameter = 0; parameter < size(); ++parameter) {
            row(parameter).access.set(*element, row(parameter).sample().value);
            element->reset();
            COMPARE_STATE(*element, State(m_set));
        }
    }

    // Writing

    void writing_data()
    {
        QTest::addColumn<int>("parameter");
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("expected");
        for (int parameter = 0; parameter < size(); ++parameter) {
            int number = 0;
            const auto add = [&](double value, const char* text) {
                const QString name = row(parameter).writtenTag + QLatin1Char(' ') + QString::number(value, 'g', 17);
                QTest::newRow(rowName(name, number++).constData())
                    << parameter << value << document(asWritten(parameter, text));
            };
            for (const Text& text : row(parameter).texts)
                add(text.value, text.written);
            for (const ParameterSets::Written& written : row(parameter).writtenTexts)
                add(written.value, written.text);
        }
    }
    void writing()
    {
        QFETCH(int, parameter);
        QFETCH(double, value);
        QFETCH(QString, expected);
        const SetPointer element = m_set.make();
        row(parameter).access.set(*element, value);
        QCOMPARE(write(*element), expected);
        COMPARE_STATE(*element, State(m_set).with(parameter, value)); // as it was
    }

    void childrenAreWrittenInTheOrderOfTheTable()
    {
        const SetPointer element = m_set.make();
        for (int parameter = size() - 1; parameter >= 0; --parameter)
            row(parameter).access.set(*element, row(parameter).sample().value);
        const QString xml = write(*element);
        int position = 0;
        for (int parameter = 0; parameter < size(); ++parameter) {
            const QString start = QLatin1Char('<') + row(parameter).writtenTag + QLatin1Char('>');
            const int found = int(xml.indexOf(start, position + 1));
            QVERIFY2(found > position, qPrintable(xml));
            position = found;
        }
        QVERIFY(xml.startsWith(QStringLiteral("<Set>")));
        QVERIFY(xml.endsWith(QStringLiteral("</Set>")));
    }

    // Reading

    void reading_data()
    {
        QTest::addColumn<int>("parameter");
        QTest::addColumn<QString>("content");
        QTest::addColumn<double>("value");
        for (int parameter = 0; parameter < size(); ++parameter) {
            int number = 0;
            for (const Text& text : row(parameter).texts) {
                const QString content = QString::fromLatin1(text.read);
                const auto add = [&](const QString& form) {
                    QTest::newRow(rowName(row(parameter).tag + QLatin1Char(' ') + form, number++).constData())
                        << parameter << form << text.value;
                };
                add(content);
                add(content.left(1) + QLatin1String("<!-- cut -->") + content.mid(1));
                add(content.left(1) + QLatin1String("<?cut here?>") + content.mid(1));
                add(QLatin1String("<![CDATA[") + content + QLatin1String("]]>"));
                add(QString(QLatin1String("&#%1;")).arg(content.at(0).unicode()) + content.mid(1));
                if (row(parameter).kind != Parameter::Choice)
                    add(QLatin1String(" \n") + content + QLatin1String("\t "));
            }
        }
    }
    void reading()
    {
        QFETCH(int, parameter);
        QFETCH(QString, content);
        QFETCH(double, value);
        const QString childXml = child(row(parameter).tag, content);
        const SetPointer element = m_set.make();
        QCOMPARE(read(*element, document(childXml)), QString());
        COMPARE_STATE(*element, State(m_set).with(parameter, value));

        // Blanks, texts, comments and attributes around it mean nothing.
        const SetPointer surrounded = m_set.make();
        QCOMPARE(read(*surrounded,
                      QLatin1String("<Set version=\"2.0\" unit=\"km\">\n some text <!-- c --><?p i?>") + childXml
                          + QLatin1String("<![CDATA[1]]>\n<!-- c --> </Set>")),
                 QString());
        COMPARE_STATE(*surrounded, State(m_set).with(parameter, value));
    }

    void allParametersAreReadInOrder()
    {
        const SetPointer element = m_set.make();
        QCOMPARE(read(*element, fullDocument()), QString());
        COMPARE_STATE(*element, fullState());
    }

    void attributesOfAParameterAreIgnored()
    {
        for (int parameter = 0; parameter < size(); ++parameter) {
            const SetPointer element = m_set.make();
            const QString& name = row(parameter).tag;
            QCOMPARE(
                read(*element,
                     document(QLatin1Char('<') + name + QLatin1String(" version=\"2.0\">")
                              + text(row(parameter).sample().read) + QLatin1String("</") + name + QLatin1Char('>'))),
                QString());
            COMPARE_STATE(*element, State(m_set).with(parameter, row(parameter).sample().value));
        }
    }

    void twoParametersInARow_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<bool>("isRead");
        for (int first = 0; first < size(); ++first) {
            for (int second = 0; second < size(); ++second) {
                const bool isRead = m_set.gates[static_cast<std::size_t>(first)][second] == '+';
                QTest::newRow(rowName(row(second).tag + QLatin1String(isRead ? " is read" : " is refused")
                                      + QLatin1String(" after ") + row(first).tag)
                                  .constData())
                    << first << second << isRead;
            }
        }
    }
    void twoParametersInARow()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(bool, isRead);
        const SetPointer element = m_set.make();
        const QString error = read(*element,
                                   QLatin1String("<Set>\n") + asRead(first, row(first).sample()) + QLatin1String("\n<")
                                       + row(second).tag + QLatin1String("\n>") + text(row(second).otherSample().read)
                                       + QLatin1String("</") + row(second).tag + QLatin1String("></Set>"));
        State expected(m_set);
        expected.with(first, row(first).sample().value);
        if (isRead) {
            QCOMPARE(error, QString());
            expected.with(second, row(second).otherSample().value);
        } else {
            QCOMPARE(
                error,
                framed("line 4, column 1", QLatin1String("Unexpected token \"StartElement\": ") + row(second).tag));
        }
        COMPARE_STATE(*element, expected);
    }

    void theOrderIsThatOfOneReading()
    {
        // What was read, or set, before does not keep a parameter from being read.
        const SetPointer element = full();
        QCOMPARE(read(*element, fullDocument()), QString());
        QCOMPARE(read(*element, fullDocument()), QString());
        for (int parameter = size() - 1; parameter >= 0; --parameter) {
            QCOMPARE(read(*element, document(asRead(parameter, row(parameter).otherSample()))), QString());
            QVERIFY(row(parameter).access.has(*element));
            QCOMPARE(row(parameter).access.constGet(*element), row(parameter).otherSample().value);
        }
    }

    void otherChildrenAreRefused_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("before");
        QStringList names = {QStringLiteral("Unknown"), QStringLiteral("Set"), QStringLiteral("Reference")};
        for (int parameter = 0; parameter < size(); ++parameter) {
            const Parameter& named = row(parameter);
            names += {named.tag.toLower(), named.tag.toUpper(), named.tag.chopped(1), named.tag + QLatin1Char('s')};
            if (named.writtenTag != named.tag && !named.writtenTag.contains(QLatin1Char(' ')))
                names += named.writtenTag;
        }
        for (int parameter = 0; parameter < size(); ++parameter)
            names.removeAll(row(parameter).tag);
        names.removeDuplicates();
        for (const QString& name : std::as_const(names)) {
            QTest::newRow(rowName(name + QLatin1String(" as the first child")).constData()) << name << QString();
            QTest::newRow(rowName(name + QLatin1String(" after a parameter")).constData())
                << name << asRead(0, row(0).sample());
        }
    }
    void otherChildrenAreRefused()
    {
        QFETCH(QString, name);
        QFETCH(QString, before);
        const SetPointer element = m_set.make();
        QCOMPARE(read(*element,
                      QLatin1String("<Set>\n") + before + QLatin1Char('<') + name + QLatin1String("\n></") + name
                          + QLatin1String("></Set>")),
                 framed("line 3, column 1", QLatin1String("Unexpected token \"StartElement\": ") + name));
        State expected(m_set);
        if (!before.isEmpty())
            expected.with(0, row(0).sample().value);
        COMPARE_STATE(*element, expected);
    }

    void badTexts_data()
    {
        QTest::addColumn<int>("parameter");
        QTest::addColumn<QString>("bad");
        QTest::addColumn<bool>("afterOthers");
        for (int parameter = 0; parameter < size(); ++parameter) {
            const Parameter& failing = row(parameter);
            QStringList texts;
            for (const QString& bad : failing.badTexts)
                texts += bad;
            if (failing.kind == Parameter::Choice) {
                // The texts of the others, and everything that nearly is one of its own.
                for (const Parameter& other : m_set.parameters) {
                    if (other.kind != Parameter::Choice)
                        continue;
                    for (const Text& close : other.texts) {
                        const QString exact = QString::fromLatin1(close.read);
                        texts += {exact,
                                  exact.toLower(),
                                  exact.toUpper(),
                                  QLatin1Char(' ') + exact,
                                  exact + QLatin1Char(' '),
                                  QLatin1Char('\n') + exact,
                                  exact + QLatin1Char('s'),
                                  exact.chopped(1)};
                        if (exact.contains(QLatin1Char(' ')))
                            texts += QString(exact).replace(QLatin1Char(' '), QLatin1String("  "));
                    }
                }
                for (const Text& good : failing.texts)
                    texts.removeAll(QString::fromLatin1(good.read));
            }
            texts.removeDuplicates();
            int number = 0;
            for (const QString& bad : std::as_const(texts)) {
                const QString name = failing.tag + QLatin1String(" \"") + bad + QLatin1Char('"');
                QTest::newRow(rowName(name, number).constData()) << parameter << bad << false;
                QTest::newRow(rowName(name + QLatin1String(" after the others"), number++).constData())
                    << parameter << bad << true;
            }
        }
    }
    void badTexts()
    {
        QFETCH(int, parameter);
        QFETCH(QString, bad);
        QFETCH(bool, afterOthers);
        bad.replace(QLatin1Char('\n'), QLatin1String("&#10;")); // keeps the lines countable
        State expected(m_set);
        QString content;
        for (int before = 0; afterOthers && before < parameter; ++before) {
            content += asRead(before, row(before).sample());
            expected.with(before, row(before).sample().value);
        }
        content += QLatin1String("\n<") + row(parameter).tag + QLatin1Char('>') + bad + QLatin1String("</")
            + row(parameter).tag + QLatin1String("\n>");
        for (int after = parameter + 1; after < size(); ++after)
            content += asRead(after, row(after).sample());

        if (row(parameter).badTextClears < 0)
            expected.with(parameter, row(parameter).afterBadText, false);
        else
            expected.with(parameter, row(parameter).afterBadText).without(row(parameter).badTextClears);
        const SetPointer element = m_set.make();
        QCOMPARE(read(*element, document(content)), framed("line 3, column 1", row(parameter).readError));
        COMPARE_STATE(*element, expected);

        // The same for a parameter that was present before.
        const SetPointer used = m_set.make();
        row(parameter).access.set(*used, row(parameter).sample().value);
        QCOMPARE(read(*used, document(content)), framed("line 3, column 1", row(parameter).readError));
        COMPARE_STATE(*used, expected);
    }

    void anElementInAParameter()
    {
        for (int parameter = 0; parameter < size(); ++parameter) {
            // What stands before it is taken; the error is the reader's own.
            const QString before = text(row(parameter).sample().read);
            const SetPointer element = m_set.make();
            QCOMPARE(read(*element, document(child(row(parameter).tag, before + QLatin1String("<Inner/>9")))),
                     QStringLiteral("Expected character data."));
            COMPARE_STATE(*element, State(m_set).with(parameter, row(parameter).sample().value));

            // When that says nothing, the set's error replaces the reader's.
            State expected(m_set);
            expected.with(parameter, row(parameter).afterBadText, row(parameter).badTextClears >= 0);
            for (const QString& nothing : {QString(), QStringLiteral("?")}) {
                const SetPointer failed = m_set.make();
                QCOMPARE(read(*failed,
                              QLatin1String("<Set>\n<") + row(parameter).tag + QLatin1Char('>') + nothing
                                  + QLatin1String("<Inner\n>") + before + QLatin1String("</Inner></")
                                  + row(parameter).tag + QLatin1String("></Set>")),
                         framed("line 3, column 1", row(parameter).readError));
                COMPARE_STATE(*failed, expected);
            }
        }
    }

    void aDocumentThatEndsInAParameter()
    {
        for (int parameter = 0; parameter < size(); ++parameter) {
            const QString start = QLatin1String("<Set>\n<") + row(parameter).tag + QLatin1String(">");
            const SetPointer failed = m_set.make();
            const QString error = read(*failed, start);
            QVERIFY2(error.startsWith(QLatin1String("in ") + m_set.className + QLatin1String(" (line 2, column "))
                         && error.endsWith(QLatin1String("): ") + row(parameter).readError + QLatin1Char('.')),
                     qPrintable(error));
            COMPARE_STATE(*failed,
                          State(m_set).with(parameter, row(parameter).afterBadText, row(parameter).badTextClears >= 0));

            const SetPointer element = m_set.make();
            QCOMPARE(read(*element, start + text(row(parameter).sample().read) + QLatin1String("<!-- c -->")),
                     QStringLiteral("Premature end of document."));
            COMPARE_STATE(*element, State(m_set).with(parameter, row(parameter).sample().value));
        }
    }

    void aDocumentThatEndsBetweenParameters()
    {
        const SetPointer element = m_set.make();
        QCOMPARE(read(*element, QLatin1String("<Set>") + asRead(0, row(0).sample())),
                 QStringLiteral("Premature end of document."));
        COMPARE_STATE(*element, State(m_set).with(0, row(0).sample().value));
    }

    void numbersOutOfRangeAreRead()
    {
        for (int parameter = 0; parameter < size(); ++parameter) {
            if (row(parameter).kind == Parameter::Choice)
                continue;
            for (const double value : row(parameter).outside) {
                const SetPointer element = m_set.make();
                const QString number = QString::number(value, 'g', 17);
                QCOMPARE(read(*element, document(child(row(parameter).tag, number))), QString());
                COMPARE_STATE(*element, State(m_set).with(parameter, value));
                QVERIFY(!element->isValid());
                QCOMPARE(element->syntaxError(), block({row(parameter).rangeError}));
            }
        }
    }

    void theEndTagEndsTheReading()
    {
        QXmlStreamReader reader(QStringLiteral("<Sets><Set>") + asRead(0, row(0).sample())
                                + QStringLiteral("</Set><Set/><Next/></Sets>"));
        QVERIFY(reader.readNextStartElement());
        QVERIFY(reader.readNextStartElement());
        const SetPointer first = m_set.make();
        first->processXml(reader, tag());
        COMPARE_STATE(*first, State(m_set).with(0, row(0).sample().value));
        QVERIFY(reader.isEndElement());
        QCOMPARE(reader.name().toString(), tag());
        QVERIFY(reader.readNextStartElement());
        const SetPointer second = m_set.make();
        second->processXml(reader, tag());
        COMPARE_STATE(*second, State(m_set));
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.name().toString(), QStringLiteral("Next"));
        QVERIFY(!reader.hasError());
    }

    void theTagIsTheCallers()
    {
        const SetPointer element = full();
        const QString xml = ElementTest::written(*element, QStringLiteral("Other"));
        QVERIFY(xml.startsWith(QStringLiteral("<Other>")));
        QVERIFY(xml.endsWith(QStringLiteral("</Other>")));

        const SetPointer other = m_set.make();
        QCOMPARE(read(*other, child(QStringLiteral("Other"), asRead(0, row(0).sample()))), QString());
        COMPARE_STATE(*other, State(m_set).with(0, row(0).sample().value));
    }

    void anotherEndTagIsRefused()
    {
        for (const QString& name : {QStringLiteral("Other"), QStringLiteral("set"), row(0).tag}) {
            QXmlStreamReader reader(QLatin1Char('<') + name + QLatin1String(">\n") + asRead(0, row(0).sample())
                                    + QLatin1String("\n</") + name + QLatin1String("\n>"));
            QVERIFY(reader.readNextStartElement());
            const SetPointer element = m_set.make();
            element->processXml(reader, tag());
            QCOMPARE(reader.errorString(),
                     framed("line 4, column 1", QLatin1String("Unexpected token \"EndElement\": ") + name));
            COMPARE_STATE(*element, State(m_set).with(0, row(0).sample().value));
        }
    }

    // The reader at other positions: none is refused, reading goes on with the next token.

    void beforeTheFirstToken()
    {
        QXmlStreamReader reader(QStringLiteral("<?xml version=\"1.0\"?>") + fullDocument());
        const SetPointer element = m_set.make();
        element->processXml(reader, tag());
        QCOMPARE(reader.errorString(),
                 framed("line 1, column 21", QStringLiteral("Unexpected token \"StartDocument\"")));
        COMPARE_STATE(*element, State(m_set));
    }
    void onTheStartOfTheDocument()
    {
        QXmlStreamReader reader(fullDocument());
        QCOMPARE(reader.readNext(), QXmlStreamReader::StartDocument);
        const SetPointer element = m_set.make();
        element->processXml(reader, tag());
        QCOMPARE(reader.errorString(),
                 framed("line 1, column 5", QStringLiteral("Unexpected token \"StartElement\": Set")));
    }
    void onCharacters()
    {
        QXmlStreamReader reader(QStringLiteral("<Set> ") + asRead(0, row(0).sample()) + QStringLiteral("</Set>"));
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.readNext(), QXmlStreamReader::Characters);
        const SetPointer element = m_set.make();
        element->processXml(reader, tag());
        QCOMPARE(reader.errorString(), QString());
        COMPARE_STATE(*element, State(m_set).with(0, row(0).sample().value));
    }
    void onTheLastEndTag()
    {
        QXmlStreamReader reader(QStringLiteral("<Set></Set>\n"));
        QVERIFY(reader.readNextStartElement());
        QCOMPARE(reader.readNext(), QXmlStreamReader::EndElement);
        const SetPointer element = m_set.make();
        element->processXml(reader, tag());
        QCOMPARE(reader.errorString(), framed("line 2, column 0", QStringLiteral("Unexpected token \"EndDocument\"")));
    }
    void atTheEndOfTheDocument()
    {
        QXmlStreamReader reader(QStringLiteral("<Set/>"));
        while (!reader.atEnd())
            reader.readNext();
        const SetPointer element = full();
        element->processXml(reader, tag());
        QCOMPARE(reader.errorString(), QString());
        COMPARE_STATE(*element, m_set.isResetBeforeReading ? State(m_set) : fullState());
    }
    void onAReaderWithAnError()
    {
        QXmlStreamReader reader(fullDocument());
        QVERIFY(reader.readNextStartElement());
        reader.raiseError(QStringLiteral("An earlier error"));
        const SetPointer element = full();
        element->processXml(reader, tag());
        QCOMPARE(reader.errorString(), QStringLiteral("An earlier error"));
        COMPARE_STATE(*element, m_set.isResetBeforeReading ? State(m_set) : fullState());
    }
    void onTextThatIsNoXml()
    {
        const SetPointer element = m_set.make();
        QXmlStreamReader reader(QLatin1String("<Set>") + asRead(0, row(0).sample()) + QLatin1String("</Sets>"));
        QVERIFY(reader.readNextStartElement());
        element->processXml(reader, tag());
        QCOMPARE(reader.error(), QXmlStreamReader::NotWellFormedError);
        QCOMPARE(reader.errorString(), QStringLiteral("Opening and ending tag mismatch."));
        COMPARE_STATE(*element, State(m_set).with(0, row(0).sample().value));
    }

    // Reading into a used set

    void readingIntoAUsedSet()
    {
        const QStringList documents = {QStringLiteral("<Set/>"), QStringLiteral("<Set><Unknown/></Set>"),
                                       QStringLiteral("<Set>")};
        for (const QString& xml : documents) {
            const SetPointer element = full();
            QCOMPARE(read(*element, xml).isEmpty(), xml == documents.front());
            COMPARE_STATE(*element, m_set.isResetBeforeReading ? State(m_set) : fullState());
        }
        for (int parameter = 0; parameter < size(); ++parameter) {
            const SetPointer element = full();
            QCOMPARE(read(*element, document(asRead(parameter, row(parameter).otherSample()))), QString());
            State expected = m_set.isResetBeforeReading ? State(m_set) : fullState();
            COMPARE_STATE(*element, expected.with(parameter, row(parameter).otherSample().value));
        }
    }

    void readingResetsThroughTheVirtualOperation()
    {
        const std::unique_ptr<ParameterSets::Probe> probe = m_set.makeProbe();
        QCOMPARE(read(probe->element(), fullDocument()), QString());
        QCOMPARE(probe->resets(), m_set.isResetBeforeReading ? 1 : 0);
        QVERIFY(!read(probe->element(), QStringLiteral("<Set><Unknown/></Set>")).isEmpty());
        QCOMPARE(probe->resets(), m_set.isResetBeforeReading ? 2 : 0);
    }

    void afterAFailedReading()
    {
        const SetPointer element = m_set.make();
        QVERIFY(!read(*element, document(asRead(0, row(0).sample()) + QLatin1String("<Unknown/>"))).isEmpty());
        State expected(m_set);
        expected.with(0, row(0).sample().value);
        COMPARE_STATE(*element, expected);
        QVERIFY(element->isValid());
        QCOMPARE(element->syntaxError(), QString());
        QCOMPARE(write(*element), document(asWritten(0, row(0).sample().written)));
        COMPARE_STATE(*m_set.copy(*element), expected);
        QCOMPARE(read(*element, fullDocument()), QString());
        COMPARE_STATE(*element, fullState());
        QVERIFY(!read(*element, QStringLiteral("<Set><Unknown/></Set>")).isEmpty());
        element->reset();
        COMPARE_STATE(*element, State(m_set));
    }

    // Checking

    void validValues_data()
    {
        QTest::addColumn<int>("parameter");
        QTest::addColumn<double>("value");
        QTest::addColumn<bool>("isValid");
        for (int parameter = 0; parameter < size(); ++parameter) {
            const auto add = [&](double value, bool isValid) {
                const QString name = row(parameter).tag + QLatin1Char(' ') + QString::number(value, 'g', 17);
                QTest::newRow(rowName(name + QLatin1String(isValid ? " is valid" : " is not")).constData())
                    << parameter << value << isValid;
            };
            for (const double value : row(parameter).inside)
                add(value, true);
            for (const double value : row(parameter).outside)
                add(value, false);
        }
    }
    void validValues()
    {
        QFETCH(int, parameter);
        QFETCH(double, value);
        QFETCH(bool, isValid);
        const QString problems = isValid ? QString() : block({row(parameter).rangeError});
        const SetPointer alone = m_set.make();
        row(parameter).access.set(*alone, value);
        QCOMPARE(alone->isValid(), isValid);
        QCOMPARE(alone->syntaxError(), problems);
        QCOMPARE(alone->syntaxError(), problems); // told anew, not added
        QCOMPARE(alone->isValid(), isValid);

        const SetPointer amongOthers = m_set.make();
        for (int other = 0; other < size(); ++other)
            row(other).access.set(*amongOthers, row(other).inside[1]);
        row(parameter).access.set(*amongOthers, value);
        QCOMPARE(amongOthers->isValid(), isValid);
        QCOMPARE(amongOthers->syntaxError(), problems);
        row(parameter).access.set(*amongOthers, row(parameter).inside[1]);
        QVERIFY(amongOthers->isValid());
        QCOMPARE(amongOthers->syntaxError(), QString());
    }

    void problemsInOrder()
    {
        // All, then each left out, then each with each.
        const SetPointer element = m_set.make();
        QStringList all;
        for (const int parameter : m_set.reportOrder) {
            if (row(parameter).outside.empty())
                continue;
            row(parameter).access.set(*element, row(parameter).outside.front());
            all += row(parameter).rangeError;
        }
        QVERIFY(!all.isEmpty());
        QVERIFY(!element->isValid());
        QCOMPARE(element->syntaxError(), block(all));

        for (const int left : m_set.reportOrder) {
            if (row(left).outside.empty())
                continue;
            const SetPointer others = m_set.copy(*element);
            row(left).access.set(*others, row(left).inside[1]);
            QStringList problems = all;
            problems.removeOne(row(left).rangeError);
            QCOMPARE(others->isValid(), problems.isEmpty());
            QCOMPARE(others->syntaxError(), block(problems));
        }
        for (std::size_t first = 0; first < m_set.reportOrder.size(); ++first) {
            for (std::size_t second = first + 1; second < m_set.reportOrder.size(); ++second) {
                const Parameter& one = row(m_set.reportOrder[first]);
                const Parameter& two = row(m_set.reportOrder[second]);
                if (one.outside.empty() || two.outside.empty())
                    continue;
                const SetPointer both = m_set.make();
                two.access.set(*both, two.outside.back());
                one.access.set(*both, one.outside.back());
                QVERIFY(!both->isValid());
                QCOMPARE(both->syntaxError(), block({one.rangeError, two.rangeError}));
            }
        }
    }
};
