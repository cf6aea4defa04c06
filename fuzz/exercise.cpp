#include "exercise.h"

#include "departures.h"

#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

#include <cstdio>
#include <cstdlib>
#include <map>

using ArvXml::IXmlElement;
using Samples::Element;
using Samples::ElementClass;

namespace Fuzz {

namespace {

/// How a reading ended.
struct Reading {
    QString error;
    QString tag;
    bool isOnOwnEnd = false; ///< whether the reader was left on an end tag of the element's name
    bool isOutermost = true; ///< whether that was the tag that ends the document element
};

/// All that can be seen of an element without changing it, but for the problems it keeps.
struct Shown {
    QByteArray written;
    QString problems;
    QString unseen;
    bool valid;
};

/// One input, and the checks of what comes of it.
class Exercise {
public:
    Exercise(const ElementClass& elementClass, const QByteArray& document)
        : m_class(elementClass)
        , m_document(document)
    {
    }

    void run();

private:
    void judgeTwice(IXmlElement& element) const;
    void copyAndAssign(IXmlElement& element) const;
    void readBack(const IXmlElement& element) const;
    void resetAndReadAgain(IXmlElement& element) const;

    Reading read(IXmlElement& element, const QByteArray& document) const;
    QByteArray written(const IXmlElement& element) const;
    Shown shown(IXmlElement& element) const;

    void check(bool holds, const char* what, const QByteArray& found = {}, const QByteArray& expected = {}) const;
    void checkShown(IXmlElement& element, const char* what) const;
    void checkReading(const Reading& reading) const;

    const ElementClass& m_class;
    const QByteArray& m_document;
    Reading m_reading;
    Shown m_shown;
};

/// An element of the class that holds something, to be overwritten: each sample in turn.
const IXmlElement& filled(const ElementClass& elementClass, int which)
{
    static std::map<const ElementClass*, std::vector<Element>> table;
    std::vector<Element>& elements = table[&elementClass];
    if (elements.empty()) {
        for (const Samples::Sample& sample : elementClass.samples)
            elements.push_back(Samples::newFrom(elementClass, sample));
    }
    return *elements.at(static_cast<std::size_t>(which) % elements.size());
}

/// A response has the time of its making or resetting, which is another one each time.
void fixTime(IXmlElement& element)
{
    if (auto* root = dynamic_cast<ArvXml::XmlRespRoot*>(&element))
        root->setTimestamp(TestValues::someTime());
}

void Exercise::run()
{
    Element element = m_class.create();
    fixTime(*element);
    m_reading = read(*element, m_document);
    checkReading(m_reading);
    judgeTwice(*element);
    m_shown = shown(*element);
    copyAndAssign(*element);
    if (m_reading.error.isEmpty()) {
        check(m_shown.valid || !m_shown.problems.isEmpty() || mayBeInvalidInSilence(*element, m_shown.written),
              "what was read is not acceptable, and nothing says why", m_shown.written);
        readBack(*element);
    }
    resetAndReadAgain(*element);
}

/// Explaining changes nothing, and says the same each time.
void Exercise::judgeTwice(IXmlElement& element) const
{
    const bool valid = element.isValid();
    const QString problems = element.syntaxError();
    check(element.isValid() == valid, "syntaxError() changed isValid()");
    check(element.syntaxError() == problems, "syntaxError() says something else the second time",
          element.syntaxError().toUtf8(), problems.toUtf8());
}

void Exercise::copyAndAssign(IXmlElement& element) const
{
    const Element copy = m_class.copy(element);
    checkShown(*copy, "a copy differs");

    const Element fresh = m_class.create();
    check(m_class.assign(*fresh, element) == fresh.get(), "an assignment returns something else");
    checkShown(*fresh, "what was assigned to a new element differs");

    const Element used = m_class.copy(filled(m_class, m_document.size()));
    check(m_class.assign(*used, element) == used.get(), "an assignment returns something else");
    checkShown(*used, "what was assigned to a filled element differs");

    check(m_class.assign(element, element) == &element, "an assignment to itself returns something else");
    checkShown(element, "an assignment to itself changed the element");

    // Nothing that happens to a copy reaches the original.
    Samples::reset(*copy);
    read(*used, m_document);
    checkShown(element, "what happened to its copies changed the element");
}

/// What the reader accepted, is, written and read back, the same: but for the rules that prevent it.
void Exercise::readBack(const IXmlElement& element) const
{
    const Element second = m_class.create();
    fixTime(*second);
    const Reading reading = read(*second, m_shown.written);
    if (!reading.error.isEmpty()) {
        check(isKnownRefusal(m_shown.written, reading.error), "what was read cannot be read back",
              reading.error.toUtf8());
        return;
    }
    check(!mustBeRefused(element, m_reading.tag, m_shown.written), "what the protocol refuses was read back");
    checkReading(reading);
    const QByteArray again = written(*second);
    check(isSameContent(m_shown.written, again), "what was read back is something else", again, m_shown.written);
}

void Exercise::resetAndReadAgain(IXmlElement& element) const
{
    Samples::reset(element);
    fixTime(element);
    const Element fresh = m_class.create();
    fixTime(*fresh);
    const bool isLeft = isLeftByReset(m_class);
    if (!isLeft) {
        check(written(element) == written(*fresh), "reset() left something", written(element), written(*fresh));
        check(element.isValid() == fresh->isValid(), "a reset element is judged otherwise than a new one");
    }
    written(element);

    const Reading again = read(element, m_document);
    checkReading(again);
    if (!isLeft) {
        check(again.error == m_reading.error, "the second reading ends otherwise", again.error.toUtf8(),
              m_reading.error.toUtf8());
        checkShown(element, "the second reading gives something else");
    }
    // And once more without a reset: lists may grow, nothing may break.
    checkReading(read(element, m_document));
    judgeTwice(element);
    written(element);
}

Reading Exercise::read(IXmlElement& element, const QByteArray& document) const
{
    Reading reading;
    QXmlStreamReader reader(document);
    reader.readNextStartElement();
    reading.tag = reader.name().toString();
    element.processXml(reader, reading.tag);
    reading.error = reader.errorString();
    if (reader.hasError())
        return reading;
    reading.isOnOwnEnd = reader.isEndElement() && reader.name() == reading.tag;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement() || reader.isEndElement())
            reading.isOutermost = false;
    }
    return reading;
}

QByteArray Exercise::written(const IXmlElement& element) const
{
    QByteArray document;
    QXmlStreamWriter writer(&document);
    element.produceXml(writer, m_reading.tag.isEmpty() ? QStringLiteral("Tag") : m_reading.tag);
    return document;
}

Shown Exercise::shown(IXmlElement& element) const
{
    return {written(element), element.syntaxError(), m_class.unseen(element), element.isValid()};
}

void Exercise::check(bool holds, const char* what, const QByteArray& found, const QByteArray& expected) const
{
    if (holds)
        return;
    std::fprintf(stderr, "== %s: %s\n-- error of the first reading: %s\n-- input: %s\n", qPrintable(m_class.title()),
                 what, qPrintable(m_reading.error), m_document.constData());
    if (!found.isNull())
        std::fprintf(stderr, "-- found: %s\n", found.constData());
    if (!expected.isNull())
        std::fprintf(stderr, "-- expected: %s\n", expected.constData());
    std::abort();
}

void Exercise::checkShown(IXmlElement& element, const char* what) const
{
    const Shown found = shown(element);
    check(found.written == m_shown.written, what, found.written, m_shown.written);
    check(found.valid == m_shown.valid, what);
    check(found.problems == m_shown.problems, what, found.problems.toUtf8(), m_shown.problems.toUtf8());
    check(found.unseen == m_shown.unseen, what, found.unseen.toUtf8(), m_shown.unseen.toUtf8());
}

void Exercise::checkReading(const Reading& reading) const
{
    if (!reading.error.isEmpty())
        return;
    check(reading.isOnOwnEnd, "a reading without an error does not end on the element's end tag");
    check(reading.isOutermost || mayEndInside(m_class, reading.tag), "a reading ends at an inner end tag");
    check(!isNeverRead(m_class), "what cannot be read was read");
}

} // namespace

const ElementClass& classNamed(const char* name)
{
    for (const ElementClass& elementClass : Samples::classes()) {
        if (elementClass.name == QLatin1String(name))
            return elementClass;
    }
    std::fprintf(stderr, "%s is no class of the table\n", name);
    std::abort();
}

void exercise(const ElementClass& elementClass, const QByteArray& document)
{
    Exercise(elementClass, document).run();
}

} // namespace Fuzz
