#pragma once

#include "support/elementtest.h"
#include "support/samples.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <vector>

/// \file
/// Cases as text: what an element reads and what comes of it, a line a fact. tests/wire/README.md describes the lines.

namespace Wire {

/// One case: texts read into one new element, and the facts after the last one.
struct Case {
    QString className;
    QString heading;
    int line = 0; ///< where it begins
    QStringList xml;
    QString error;
    QStringList problems;
    QString valid;
    QString written;

    /// Whether isValid() and syntaxError() are compared: always, but after an error only if the case speaks of them.
    bool isJudged() const { return error.isEmpty() || !problems.isEmpty() || !valid.isEmpty(); }
    /// What the element writes: what it read last, if the case does not say otherwise; empty where it says nothing.
    QString expectedXml() const { return !written.isEmpty() ? written : error.isEmpty() ? xml.last() : QString(); }
};

/// The cases of a text; \a className is their class until a line names another. Returns what is wrong with it.
inline QString parse(const QStringList& lines, QString className, std::vector<Case>& cases)
{
    QString heading;
    QString* open = nullptr; // the text that a line beginning with "|" continues
    for (int number = 0; number < lines.size(); ++number) {
        const QString& line = lines.at(number);
        const QString word = line.section(QLatin1Char(' '), 0, 0);
        const QString rest = line.mid(word.size()).trimmed();
        const auto mistake = [&](const char* text) {
            return QStringLiteral("line %1 %2: %3").arg(QString::number(number + 1), QLatin1String(text), line);
        };
        if (line.startsWith(QLatin1Char('|'))) {
            if (!open)
                return mistake("continues nothing");
            *open += QLatin1Char('\n') + line.mid(1);
            continue;
        }
        open = nullptr;
        if (line.isEmpty() || word == QLatin1String("#"))
            continue;
        if (word == QLatin1String("class")) {
            className = rest;
        } else if (word == QLatin1String("=")) {
            heading = rest;
        } else if (word == QLatin1String("read")) {
            Case next;
            next.className = className;
            next.heading = heading;
            next.line = number + 1;
            next.xml.append(rest);
            cases.push_back(next);
            open = &cases.back().xml.last();
            heading.clear();
        } else if (cases.empty() || !heading.isEmpty()) {
            return mistake("stands before the reading");
        } else if (word == QLatin1String("again")) {
            cases.back().xml.append(rest);
            open = &cases.back().xml.last();
        } else if (word == QLatin1String("error")) {
            cases.back().error = rest;
        } else if (word == QLatin1String("problem")) {
            cases.back().problems.append(rest);
        } else if (word == QLatin1String("valid") && (rest == QLatin1String("yes") || rest == QLatin1String("no"))) {
            cases.back().valid = rest;
        } else if (word == QLatin1String("written")) {
            cases.back().written = rest;
            open = &cases.back().written;
        } else {
            return mistake("is no line of a case");
        }
    }
    return cases.empty() ? QStringLiteral("there is no case") : QString();
}

/// The problems one by one, without the frames of the classes.
inline QStringList problemsIn(const QString& syntaxError)
{
    static const QRegularExpression frame(QStringLiteral("^(\\+\\+\\+|---) in \\w+ (Begin:|End)$"));
    QStringList problems = syntaxError.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    problems.erase(std::remove_if(problems.begin(), problems.end(),
                                  [](const QString& line) { return frame.match(line).hasMatch(); }),
                   problems.end());
    return problems;
}

inline const Samples::ElementClass* classNamed(const QString& title)
{
    const auto& classes = Samples::classes();
    const auto found = std::find_if(classes.begin(), classes.end(), [&title](const Samples::ElementClass& one) {
        return one.name == title || one.title() == title;
    });
    return found == classes.end() ? nullptr : &*found;
}

/// An element after a case: what it says and writes.
struct Outcome {
    QString error;
    QStringList problems;
    bool isValid = false;
    QString xml;

    bool operator==(const Outcome& other) const
    {
        return error == other.error && problems == other.problems && isValid == other.isValid && xml == other.xml;
    }
};

inline Outcome outcomeOf(ArvXml::IXmlElement& element, const QString& error, const QString& tag)
{
    return {error, problemsIn(element.syntaxError()), element.isValid(), ElementTest::written(element, tag)};
}

/// Reads the texts of a case; empty, or what went wrong before the last one.
inline QString readAll(const Case& wireCase, ArvXml::IXmlElement& element, QString& error)
{
    for (const QString& xml : wireCase.xml) {
        if (!error.isEmpty())
            return QStringLiteral("an earlier reading fails: ") + error;
        error = ElementTest::readError(element, xml);
    }
    return {};
}

/// Whatever was read, the element can be reset and read again. Returns the first difference.
inline QString checkUseAfter(const Samples::ElementClass& elementClass, ArvXml::IXmlElement& element,
                             const Outcome& fresh, const QString& tag)
{
    // The range of values keeps version and unit, the calculate command its order for the best sensor; a map entry
    // loses its key and value.
    static const QRegularExpression keeping(QStringLiteral("^Xml(GridValuesType|ResInfo_.*|CmdCalc|MapType)$"));
    Samples::reset(element);
    if (keeping.match(elementClass.name).hasMatch())
        return {};
    if (!(outcomeOf(element, {}, tag) == fresh))
        return QStringLiteral("a reset element is not as new");
    const Samples::Sample& sample = elementClass.samples.front();
    const QString error = ElementTest::readError(element, sample.xml);
    const Samples::Element other = elementClass.create();
    const QString expected = ElementTest::readError(*other, sample.xml);
    if (!(outcomeOf(element, error, tag) == outcomeOf(*other, expected, tag)))
        return QStringLiteral("a reset element reads otherwise than a new one");
    return {};
}

/// Runs a case, and what must hold in any case: copies and assigned elements are the same, assigning a new element
/// leaves nothing, and the same reading has the same outcome again. Returns the first difference.
inline QString check(const Case& wireCase)
{
    const Samples::ElementClass* const elementClass = classNamed(wireCase.className);
    if (!elementClass)
        return QStringLiteral("no such class: ") + wireCase.className;
    const QString tag = Samples::tagOf({"", wireCase.xml.last()});
    const Samples::Element element = elementClass->create();
    const Outcome fresh = outcomeOf(*element, {}, tag);

    QString error;
    const QString earlier = readAll(wireCase, *element, error);
    if (!earlier.isEmpty())
        return earlier;
    const Outcome outcome = outcomeOf(*element, error, tag);
    const auto differ = [](const char* what, const QString& found, const QString& expected) {
        return QStringLiteral("%1\n   found:    %2\n   expected: %3").arg(QLatin1String(what), found, expected);
    };
    if (outcome.error != wireCase.error)
        return differ("the reader's error", outcome.error, wireCase.error);
    if (wireCase.isJudged()) {
        if (outcome.problems != wireCase.problems)
            return differ("the problems", outcome.problems.join(QLatin1Char('\n')),
                          wireCase.problems.join(QLatin1Char('\n')));
        const bool isValid =
            wireCase.valid.isEmpty() ? wireCase.problems.isEmpty() : wireCase.valid == QLatin1String("yes");
        if (outcome.isValid != isValid)
            return QStringLiteral("isValid() is %1").arg(outcome.isValid);
    }
    if (const QString expected = wireCase.expectedXml(); !expected.isEmpty() && outcome.xml != expected)
        return differ("what is written", outcome.xml, expected);

    const Samples::Element copy = elementClass->copy(*element);
    if (!(outcomeOf(*copy, error, tag) == outcome))
        return QStringLiteral("a copy is another");
    const Samples::Element assigned = elementClass->create();
    elementClass->assign(*assigned, *element);
    if (!(outcomeOf(*assigned, error, tag) == outcome))
        return QStringLiteral("an assigned element is another");
    elementClass->assign(*assigned, *elementClass->create());
    if (!(outcomeOf(*assigned, {}, tag) == fresh))
        return QStringLiteral("assigning a new element leaves something");
    if (const QString difference = checkUseAfter(*elementClass, *copy, fresh, tag); !difference.isEmpty())
        return difference;
    QString errorAgain;
    const Samples::Element other = elementClass->create();
    if (!readAll(wireCase, *other, errorAgain).isEmpty() || !(outcomeOf(*other, errorAgain, tag) == outcome))
        return QStringLiteral("reading it again has another outcome");
    return {};
}

} // namespace Wire
