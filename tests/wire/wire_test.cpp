#include "support/wire.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

Q_DECLARE_METATYPE(Wire::Case)

/// Runs the cases of the files in this folder; README.md describes them.

namespace {

/// Returns what is wrong with the file.
QString read(const QString& path, std::vector<Wire::Case>& cases)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot be opened");
    return Wire::parse(QString::fromUtf8(file.readAll()).split(QLatin1Char('\n')), {}, cases);
}

} // namespace

class WireTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cases_data()
    {
        QTest::addColumn<Wire::Case>("wireCase");
        QTest::addColumn<QString>("mistake");
        const QDir folder(QStringLiteral(WIRE));
        const QStringList files = folder.entryList({QStringLiteral("*.wire")});
        QVERIFY(!files.isEmpty());
        for (const QString& file : files) {
            std::vector<Wire::Case> cases;
            const QString mistake = read(folder.filePath(file), cases);
            if (!mistake.isEmpty())
                QTest::newRow(qPrintable(file)) << Wire::Case() << mistake;
            for (const Wire::Case& wireCase : cases) {
                const QString name =
                    QStringLiteral("%1:%2 %3").arg(file, QString::number(wireCase.line), wireCase.heading);
                QTest::newRow(qPrintable(name)) << wireCase << QString();
            }
        }
    }

    void cases()
    {
        QFETCH(Wire::Case, wireCase);
        QFETCH(QString, mistake);
        QVERIFY2(mistake.isEmpty(), qPrintable(mistake));
        QVERIFY2(!wireCase.heading.isEmpty(), "a case needs a heading");
        const QString difference = Wire::check(wireCase);
        QVERIFY2(difference.isEmpty(), qPrintable(difference));
    }

    // The runner finds what is wrong.
    void mistakes_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("found");
        const auto row = [](const char* text, const char* found) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(found);
        };
        row("read <N>a</N>", "");
        row("read <N>a</N>\nwritten <N>a</N>\nvalid yes", "");
        row("read <N>a|</N>", "");
        row("read <N>a\n| b</N>", "");
        row("read <N/>", "the problems");
        row("read <N/>\nproblem Object name too short (min. 1).\nwritten <N></N>", "");
        row("read <N/>\nproblem Object name too short (min. 1).\nvalid yes", "isValid() is 0");
        row("read <N>a</N>\nproblem Other", "the problems");
        row("read <N>a</N>\nwritten <N>b</N>", "what is written");
        row("read <N>a</N>\nagain <N>b</N>", "");
        row("read <N><b/></N>\nagain <N>b</N>", "an earlier reading fails");
        row("read <N><b/></N>", "the reader's error");
        row("read <N>a</N>\nerror in XmlObjNameType (line 1, column 1): x.", "the reader's error");
        row("read <N><b/></N>\nerror in XmlObjNameType (line 1, column 7): Unexpected token \"StartElement\".", "");
        row("class XmlGone\nread <N/>", "no such class: XmlGone");
        row("", "there is no case");
        row("error x", "line 1 stands before the reading");
        row("= heading\nproblem x", "line 2 stands before the reading");
        row("read <N>a</N>\nvalid maybe", "line 2 is no line of a case");
        row("read <N>a</N>\n\n| b", "line 3 continues nothing");
    }

    void mistakes()
    {
        QFETCH(QString, text);
        QFETCH(QString, found);
        std::vector<Wire::Case> cases;
        QString mistake = Wire::parse(text.split(QLatin1Char('\n')), QStringLiteral("XmlObjNameType"), cases);
        if (mistake.isEmpty())
            mistake = Wire::check(cases.front());
        QVERIFY2(found.isEmpty() ? mistake.isEmpty() : mistake.startsWith(found), qPrintable(mistake));
    }
};

QTEST_APPLESS_MAIN(WireTest)
#include "wire_test.moc"
