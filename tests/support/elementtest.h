#pragma once

#include <QtCore/QString>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>
#include <QtTest/QtTest>

/// \file
/// What the tests of all families share: an element read from a text, and written to one.

namespace ElementTest {

/// Reads \a element from \a xml, whose outermost tag is passed to it as its own. Returns the reader's
/// error, empty for none.
template <typename Element>
QString readError(Element& element, const QString& xml)
{
    QXmlStreamReader reader(xml);
    reader.readNextStartElement();
    const QString tag = reader.name().toString();
    element.processXml(reader, tag);
    return reader.errorString();
}

/// \a element as it stands on the wire under \a tag.
template <typename Element>
QString written(const Element& element, const QString& tag)
{
    QString xml;
    QXmlStreamWriter writer(&xml);
    element.produceXml(writer, tag);
    return xml;
}

/// A new element read from \a xml; the test fails if the reader reports an error.
template <typename Element>
Element readFrom(const QString& xml)
{
    Element element;
    const QString error = readError(element, xml);
    if (!error.isEmpty())
        QTest::qFail(qPrintable(error), __FILE__, __LINE__);
    return element;
}

} // namespace ElementTest
