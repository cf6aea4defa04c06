#include <arvxml/arvxml.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>
#include <QtTest/QtTest>

#include <memory>

/// \file
/// Whole documents, one case a file: commands/, responses/ and snapshots/ hold documents NAME.xml. Beside each stand
/// - NAME.error: the reader's error, if there is one,
/// - NAME.problems: what syntaxError() says, if it says anything,
/// - NAME.written: the document as the library writes it, if that differs from NAME.xml.

using namespace ArvXml;

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString textOf(const QString& path)
{
    return QString::fromUtf8(contentOf(path)).trimmed();
}

/// An empty document root of the kind that the folder holds.
std::unique_ptr<IXmlElement> newRoot(const QString& folder)
{
    if (folder == QLatin1String("commands"))
        return std::make_unique<XmlCmdRoot>();
    if (folder == QLatin1String("snapshots"))
        return std::make_unique<XmlArvBtType>();
    return std::make_unique<XmlRespRoot>();
}

struct Reading {
    QString error;
    QString tag;
};

Reading read(IXmlElement& root, const QByteArray& document)
{
    QXmlStreamReader reader(document);
    reader.readNextStartElement();
    const QString tag = reader.name().toString();
    root.processXml(reader, tag);
    return {reader.errorString(), tag};
}

QByteArray written(const IXmlElement& root, const QString& tag)
{
    QByteArray document;
    QXmlStreamWriter writer(&document);
    writer.setAutoFormatting(true);
    writer.writeStartDocument();
    root.produceXml(writer, tag);
    writer.writeEndDocument();
    return document;
}

} // namespace

class DocumentsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void documents_data()
    {
        QTest::addColumn<QString>("folder");
        QTest::addColumn<QString>("path");
        int count = 0;
        for (const char* folder : {"commands", "responses", "snapshots"}) {
            const QDir dir(QStringLiteral(DOCUMENTS) + QLatin1Char('/') + QLatin1String(folder));
            const QStringList names = dir.entryList({QStringLiteral("*.xml")});
            for (const QString& name : names) {
                QTest::addRow("%s/%s", folder, qPrintable(name)) << QString::fromLatin1(folder) << dir.filePath(name);
                ++count;
            }
        }
        QVERIFY2(count > 0, "no documents found");
    }

    void documents()
    {
        QFETCH(QString, folder);
        QFETCH(QString, path);
        const QByteArray document = contentOf(path);
        const QString stem = path.chopped(4);

        const std::unique_ptr<IXmlElement> root = newRoot(folder);
        const Reading reading = read(*root, document);
        QCOMPARE(reading.error, textOf(stem + QLatin1String(".error")));
        QCOMPARE(root->syntaxError(), textOf(stem + QLatin1String(".problems")));

        const QString other = stem + QLatin1String(".written");
        QCOMPARE(written(*root, reading.tag), QFile::exists(other) ? contentOf(other) : document);
    }

    void prefixes_data() { documents_data(); }

    // Cut anywhere, a document is an error of the reader, and what was read can still be used.
    void prefixes()
    {
        QFETCH(QString, folder);
        QFETCH(QString, path);
        const QByteArray document = contentOf(path);
        const int end = int(document.lastIndexOf('>'));
        for (int length = 0; length < end; ++length) {
            const std::unique_ptr<IXmlElement> root = newRoot(folder);
            const Reading reading = read(*root, document.left(length));
            QVERIFY2(!reading.error.isEmpty(), document.left(length).constData());
            root->syntaxError();
            QVERIFY(!written(*root, QStringLiteral("Again")).isEmpty());
            root->reset();
        }
    }
};

QTEST_APPLESS_MAIN(DocumentsTest)
#include "documents_test.moc"
