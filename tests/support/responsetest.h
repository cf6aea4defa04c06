#pragma once

#include "support/elementtest.h"

/// \file
/// What the tests of the responses share: documents that are refused, and checks that are the same for all.

namespace ResponseTest {

/// A document that is refused, and the error.
struct Refusal {
    QString xml;
    QString error;
};

/// "|" in \a marked shows up to where the document has been read when \a message is raised.
inline Refusal refusal(const QString& marked, const QString& className, const QString& message)
{
    const int mark = int(marked.indexOf(QLatin1Char('|')));
    const QString before = marked.left(mark);
    const qint64 line = before.count(QLatin1Char('\n')) + 1;
    const qint64 column = mark - (before.lastIndexOf(QLatin1Char('\n')) + 1);
    return {before + marked.mid(mark + 1),
            QStringLiteral("in %1 (line %2, column %3): %4.")
                .arg(className, QString::number(line), QString::number(column), message)};
}

/// A new element that reads under \a tag refuses the document.
template <typename Element>
void checkRefused(const Refusal& document, const QString& tag)
{
    QXmlStreamReader reader(document.xml);
    reader.readNextStartElement();
    Element element;
    element.processXml(reader, tag);
    QCOMPARE(reader.errorString(), document.error);
}

/// The error text that \a source keeps is copied and assigned with it, and reset. Its type shows it.
template <typename Probe>
void checkKeptErrorText(const Probe& source, const QString& error)
{
    Probe copy(source);
    QCOMPARE(copy.mySyntaxError(), error);
    Probe assigned;
    assigned = source;
    QCOMPARE(assigned.mySyntaxError(), error);
    assigned.reset();
    QCOMPARE(assigned.mySyntaxError(), QString());
}

/// Rows for a reader that stands elsewhere than on a start tag: how many tokens it has read of an XML declaration
/// and an element with a text and a comment, and which place it reports.
inline void addWrongPositions(const char* text, const char* comment, const char* end)
{
    QTest::addColumn<int>("tokens");
    QTest::addColumn<QString>("place");

    QTest::newRow("before the first token") << 0 << QStringLiteral("line 1, column 0");
    QTest::newRow("on the start of the document") << 1 << QStringLiteral("line 1, column 21");
    QTest::newRow("on characters") << 3 << QString::fromLatin1(text);
    QTest::newRow("on a comment") << 4 << QString::fromLatin1(comment);
    QTest::newRow("on an end tag") << 5 << QString::fromLatin1(end);
    QTest::newRow("at the end of the document") << 6 << QString::fromLatin1(end);
}

} // namespace ResponseTest
