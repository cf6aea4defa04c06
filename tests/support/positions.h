#pragma once

#include "support/elementtest.h"

/// \file
/// The reading of elements that do not look at where the reader stands.

namespace ElementTest {

/// An element, and what its reading from elsewhere than its own start tag ends in.
struct Elsewhere {
    QString className;
    QString tag;
    QString xml;           ///< a valid one, with characters behind its start tag
    QString newXml;        ///< a new one, which is not valid
    QString onDocument;    ///< the error when the reader stands on the start of the document
    QString behindEnd;     ///< the error when it goes on behind the end tag
    QString otherTag;      ///< a tag that is not the element's own
    QString underOtherTag; ///< the error of reading under that tag
};

/// There is no check of the position: the reading goes on from wherever the reader stands.
template <typename Element>
void checkReadingFromElsewhere(const Elsewhere& expected)
{
    Element element;

    QXmlStreamReader fresh(expected.xml);
    element.processXml(fresh, expected.tag);
    QVERIFY(fresh.errorString().startsWith(QStringLiteral("in %1 (line 1, column ").arg(expected.className)));
    QVERIFY(fresh.errorString().endsWith(QLatin1String("): Unexpected token \"StartDocument\".")));

    QXmlStreamReader atStart(expected.xml);
    atStart.readNext();
    element.processXml(atStart, expected.tag);
    QCOMPARE(atStart.errorString(), expected.onDocument);
    QCOMPARE(written(element, expected.tag), expected.newXml);
    QVERIFY(!element.isValid());

    QXmlStreamReader onText(expected.xml);
    onText.readNextStartElement();
    onText.readNext();
    QVERIFY(onText.isCharacters());
    element.processXml(onText, expected.tag);
    QCOMPARE(onText.errorString(), QString());
    QVERIFY(element.isValid());
    element.processXml(onText, expected.tag);
    QCOMPARE(onText.errorString(), expected.behindEnd);

    // At the end there is nothing to read, and nothing to complain of.
    QXmlStreamReader atEnd(expected.xml);
    while (!atEnd.atEnd())
        atEnd.readNext();
    Element untouched;
    untouched.processXml(atEnd, expected.tag);
    QVERIFY(!atEnd.hasError());
    QCOMPARE(written(untouched, expected.tag), expected.newXml);
    QVERIFY(!untouched.isValid());

    QXmlStreamReader otherTag(expected.xml);
    otherTag.readNextStartElement();
    element.processXml(otherTag, expected.otherTag);
    QCOMPARE(otherTag.errorString(), expected.underOtherTag);

    // Nothing behind the element's own end tag is touched.
    QXmlStreamReader inDocument(QStringLiteral("<Doc>%1<Next/></Doc>").arg(expected.xml));
    inDocument.readNextStartElement();
    inDocument.readNextStartElement();
    element.processXml(inDocument, expected.tag);
    QVERIFY(inDocument.readNextStartElement());
    QCOMPARE(inDocument.name().toString(), QStringLiteral("Next"));
}

} // namespace ElementTest
