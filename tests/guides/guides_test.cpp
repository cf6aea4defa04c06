#include "pages.h"
#include "support/wire.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <iterator>

/// \file
/// What the pages in docs/ show is true. The word behind a fence tells what the block is:
///
/// - `cpp NAME`: a whole program. The build takes it from the page and compiles it.
/// - `text`: what the block before it prints, or the error or the problems of the sample before it.
/// - `sh run`: commands, run by bash in a new folder that holds the page's programs.
/// - `xml CLASS`: an element of that class. It is read, acceptable, and written as it stands, indentation apart.
///   A further word says what else comes of it: `read` (it is written otherwise), `refused` (reading ends with the
///   error in the `text` block that follows), `judged` (it is read, and that block holds its problems).
/// - `wire CLASS`: readings of new elements, line by line, see tests/wire/README.md.
/// - `sh`, `cmake`: for people; not checked.
///
/// Anything else fails, so that nothing is left out.

using namespace ArvXml;
using Pages::Block;
using Pages::Page;

namespace {

constexpr int patienceMs = 120000;

const QString docs = QStringLiteral(DOCS_FOLDER);
/// Only these pages show programs of users; the others show pieces of the library's own source.
const QStringList guides = {QStringLiteral("getting-started.md"), QStringLiteral("documents.md"),
                            QStringLiteral("oddities.md"), QStringLiteral("errors.md")};

/// A row of a table: a class, whatever, and a sample of it.
const QRegularExpression sampleRow(QStringLiteral("^\\| `(Xml\\w+)` \\|.*\\| `(<[^`]+>)` \\|$"));
/// A row of a table: a class, what it reads, and the error of the reader.
const QRegularExpression errorRow(QStringLiteral("^\\| `(Xml\\w+)` \\| `(<[^`]+>)` \\| `([^`]+)` \\|"));

const std::vector<Page>& pages()
{
    static const std::vector<Page> all = [] {
        std::vector<Page> found;
        const QDir folder(docs);
        const QStringList names = folder.entryList({QStringLiteral("*.md")});
        for (const QString& name : names)
            found.push_back(Pages::read(folder.filePath(name)));
        return found;
    }();
    return all;
}

QString nameOf(const Page& page)
{
    return QFileInfo(page.path).fileName();
}

Samples::Element newElement(const QString& className)
{
    const Samples::ElementClass* const found = Wire::classNamed(className);
    return found ? found->create() : nullptr;
}

/// \a xml without the lines' ends and indentation that are for people. Within a text they count.
QString withoutIndentation(QString xml)
{
    static const QRegularExpression breaks(QStringLiteral(">\\s*\\n\\s*<"));
    return xml.replace(breaks, QStringLiteral("><")).trimmed();
}

/// What runs under the name of bash or of a program.
struct Run {
    bool ended = false;
    QString output;
    QString errors;
};

Run run(const QString& program, const QStringList& arguments, const QString& folder)
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(program, arguments);
    const bool ended = process.waitForFinished(patienceMs) && process.exitStatus() == QProcess::NormalExit;
    return {ended, QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

bool isProgram(const Block& block)
{
    return block.kind() == QLatin1String("cpp") && block.text().contains(QLatin1String("int main("));
}

/// The relative links of a page: path and anchor, as written.
QStringList linksIn(const Page& page)
{
    static const QRegularExpression link(QStringLiteral("\\]\\(([^)]+)\\)"));
    static const QRegularExpression code(QStringLiteral("`[^`]*`"));
    QStringList found;
    for (QString line : page.prose) {
        auto matches = link.globalMatch(line.remove(code));
        while (matches.hasNext()) {
            const QString target = matches.next().captured(1);
            if (!target.contains(QLatin1String("://")))
                found.append(target);
        }
    }
    return found;
}

} // namespace

class GuidesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pagesAreWhole()
    {
        QStringList names;
        for (const Page& page : pages()) {
            QVERIFY2(page.isWhole, qPrintable(page.path));
            names.append(nameOf(page));
        }
        for (const QString& guide : guides)
            QVERIFY2(names.contains(guide), qPrintable(guide));
    }

    // Every block says what it is; and every text belongs to what stands before it.
    void everyBlockIsMarked()
    {
        for (const Page& page : pages()) {
            const bool isGuide = guides.contains(nameOf(page));
            for (std::size_t i = 0; i < page.blocks.size(); ++i) {
                const Block& block = page.blocks[i];
                const QString where = QStringLiteral("%1:%2").arg(page.path).arg(block.line);
                const QString mark = block.mark.join(QLatin1Char(' '));
                static const QRegularExpression known(
                    QStringLiteral("^(sh( run)?|cmake|text|cpp( \\w+)?|wire \\w+|xml \\w+( (read|refused|judged))?)$"));
                QVERIFY2(known.match(mark).hasMatch(), qPrintable(where));
                if (isGuide && block.kind() == QLatin1String("cpp"))
                    QVERIFY2(isProgram(block) && block.mark.size() == 2, qPrintable(where));
                const Block* behind = i + 1 < page.blocks.size() ? &page.blocks[i + 1] : nullptr;
                const bool hasOutcome = isProgram(block) || block.mark.last() == QLatin1String("run")
                    || block.mark.last() == QLatin1String("refused") || block.mark.last() == QLatin1String("judged");
                const bool isTold = behind && behind->kind() == QLatin1String("text");
                QVERIFY2(!isGuide || hasOutcome == isTold, qPrintable(where));
            }
            QVERIFY2(!isGuide || page.blocks.front().kind() != QLatin1String("text"), qPrintable(page.path));
        }
    }

    void samples_data() { addBlocks("xml"); }

    void samples()
    {
        const Block& block = currentBlock();
        const QString className = block.mark.at(1);
        const QString outcome = block.mark.value(2);
        const Samples::Element element = newElement(className);
        QVERIFY2(element, qPrintable(className));
        QString error = ElementTest::readError(*element, block.text());
        if (outcome == QLatin1String("refused") || outcome == QLatin1String("judged")) {
            const Block* text = blockBehind();
            QVERIFY(text && text->kind() == QLatin1String("text"));
            QCOMPARE(outcome == QLatin1String("refused") ? error : element->syntaxError(), text->text());
            QVERIFY(!text->text().isEmpty());
            if (outcome == QLatin1String("judged"))
                QCOMPARE(error, QString());
            return;
        }
        QCOMPARE(error, QString());
        QCOMPARE(element->syntaxError(), QString());
        QVERIFY(element->isValid());
        const QString shown = withoutIndentation(block.text());
        const QString written = ElementTest::written(*element, Samples::tagOf({"", shown}));
        if (outcome == QLatin1String("read"))
            QVERIFY(written != shown);
        else
            QCOMPARE(written, shown);
    }

    // Rows of tables that begin with a class and end with a sample of it.
    void samplesInTables()
    {
        int count = 0;
        for (const Page& page : pages()) {
            for (const QString& line : page.prose) {
                const QRegularExpressionMatch match = sampleRow.match(line);
                if (!match.hasMatch())
                    continue;
                const QString xml = match.captured(2);
                if (xml.startsWith(QLatin1String("<arvxml/")))
                    continue; // a header
                const Samples::Element element = newElement(match.captured(1));
                QVERIFY2(element, qPrintable(line));
                QCOMPARE(ElementTest::readError(*element, xml), QString());
                QCOMPARE(element->syntaxError(), QString());
                QVERIFY2(element->isValid(), qPrintable(line));
                QCOMPARE(ElementTest::written(*element, Samples::tagOf({"", xml})), xml);
                ++count;
            }
        }
        QVERIFY(count > 0);
    }

    // Rows of tables that begin with a class, what it reads, and the error of the reader.
    void errorsInTables()
    {
        int count = 0;
        for (const Page& page : pages()) {
            for (const QString& line : page.prose) {
                const QRegularExpressionMatch match = errorRow.match(line);
                if (!match.hasMatch())
                    continue;
                const Samples::Element element = newElement(match.captured(1));
                QVERIFY2(element, qPrintable(line));
                QCOMPARE(ElementTest::readError(*element, match.captured(2)), match.captured(3));
                ++count;
            }
        }
        QVERIFY(count > 0);
    }

    // Samples in the lines of a guide stand in such rows only.
    void samplesInLines()
    {
        static const QRegularExpression sample(QStringLiteral("`<[^`]*(</|/>)[^`]*`"));
        for (const Page& page : pages()) {
            for (const QString& line : page.prose) {
                if (guides.contains(nameOf(page)) && sample.match(line).hasMatch())
                    QVERIFY2(sampleRow.match(line).hasMatch() || errorRow.match(line).hasMatch(), qPrintable(line));
                QVERIFY2(!line.contains(QLatin1String("```")) && !line.contains(QLatin1String("~~~")),
                         qPrintable(line)); // no other fences
            }
        }
    }

    void wire_data() { addBlocks("wire"); }

    void wire()
    {
        const Block& block = currentBlock();
        std::vector<Wire::Case> cases;
        const QString mistake = Wire::parse(block.lines, block.mark.at(1), cases);
        QVERIFY2(mistake.isEmpty(), qPrintable(mistake));
        for (const Wire::Case& wireCase : cases) {
            const QString difference = Wire::check(wireCase);
            QVERIFY2(difference.isEmpty(), qPrintable(wireCase.xml.last() + QLatin1Char('\n') + difference));
        }
    }

    // What programs and commands print is what the page says, in the order of the page.
    void programs_data()
    {
        QTest::addColumn<int>("page");
        for (std::size_t i = 0; i < pages().size(); ++i) {
            const auto& blocks = pages()[i].blocks;
            if (guides.contains(nameOf(pages()[i])) && std::any_of(blocks.begin(), blocks.end(), isProgram))
                QTest::newRow(qPrintable(nameOf(pages()[i]))) << int(i);
        }
    }

    void programs()
    {
        QFETCH(int, page);
        const Page& shown = pages()[std::size_t(page)];
        const QString built = QStringLiteral(PROGRAMS_FOLDER "/") + QFileInfo(shown.path).completeBaseName();
        QTemporaryDir folder;
        QVERIFY(folder.isValid());
        QString output;
        for (const Block& block : shown.blocks) {
            const QString where = QStringLiteral("%1:%2").arg(shown.path).arg(block.line);
            if (isProgram(block)) {
                QVERIFY2(block.mark.size() == 2, qPrintable(where));
                const QString name = block.mark.at(1);
                const QString source = QStringLiteral("%1/%2.cpp").arg(built, name);
                QCOMPARE(contentOf(source).trimmed(), block.text().trimmed());
                const QString program = QStringLiteral("%1/%2").arg(built, name);
                QVERIFY2(QFile::link(program, folder.filePath(name)), qPrintable(program));
                const Run ran = run(program, {}, folder.path());
                QVERIFY2(ran.ended, qPrintable(where + ran.errors));
                output = ran.output;
            } else if (block.mark == QStringList({QStringLiteral("sh"), QStringLiteral("run")})) {
                const Run ran = run(QStringLiteral("bash"), {QStringLiteral("-c"), block.text()}, folder.path());
                QVERIFY2(ran.ended, qPrintable(where + ran.errors));
                QCOMPARE(ran.errors, QString());
                output = ran.output;
            } else if (block.kind() == QLatin1String("text") && !output.isNull()) {
                QCOMPARE(output.trimmed(), block.text().trimmed());
                output = QString();
            }
        }
    }

    // The index of documents.md names every class, with its header, and the section that tells about it.
    void everyClassIsNamed()
    {
        const Page page = Pages::read(docs + QStringLiteral("/documents.md"));
        static const QRegularExpression row(
            QStringLiteral("^\\| `(\\w+)` \\| `<arvxml/(\\w+\\.h)>` \\| \\[[^]]+\\]\\(#([^)]+)\\) \\|$"));
        const QStringList targets = Pages::anchors(page);
        QStringList named;
        for (const QString& line : page.prose) {
            const QRegularExpressionMatch match = row.match(line);
            if (!match.hasMatch())
                continue;
            named.append(match.captured(1));
            const QString header = contentOf(QStringLiteral(HEADERS_FOLDER "/") + match.captured(2));
            QVERIFY2(header.contains(QStringLiteral("class ARVXML_EXPORT %1 ").arg(match.captured(1))),
                     qPrintable(line));
            // The section speaks of the class.
            QVERIFY2(targets.contains(match.captured(3)), qPrintable(line));
            QVERIFY2(section(page, match.captured(3)).contains(QStringLiteral("`%1`").arg(match.captured(1))),
                     qPrintable(line));
        }
        QStringList expected = QStringLiteral(ARVXML_CLASSES).split(QLatin1Char(','));
        std::sort(expected.begin(), expected.end());
        QVERIFY(expected.size() > 90);
        QCOMPARE(named, expected);
    }

    // Messages call classes as the table of oddities.md says, and all others by their names.
    void namesInMessages()
    {
        static const QRegularExpression row(QStringLiteral("^\\| `(Xml\\w+)` \\| `(Xml\\w+)` \\|"));
        QMap<QString, QString> table;
        const Page page = Pages::read(docs + QStringLiteral("/oddities.md"));
        for (const QString& line : page.prose) {
            const QRegularExpressionMatch match = row.match(line);
            if (match.hasMatch())
                table.insert(match.captured(1), match.captured(2));
        }
        int differing = 0;
        for (const Samples::ElementClass& one : Samples::classes()) {
            const Samples::Element element = one.create();
            const QString refusal = ElementTest::readError(*element, QStringLiteral("<Tag><NoSuchTag/></Tag>"));
            const QString shown = refusal.section(QLatin1Char(' '), 1, 1);
            QVERIFY2(refusal.startsWith(QLatin1String("in ")), qPrintable(one.name + refusal));
            QCOMPARE(shown, table.value(one.name, one.name));
            differing += int(shown != one.name);
        }
        QCOMPARE(differing, int(table.size()));
        QVERIFY(differing > 0);
    }

    void links_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("target");
        std::vector<Page> all = pages();
        all.push_back(Pages::read(docs + QStringLiteral("/../README.md")));
        for (const Page& page : all) {
            const QStringList targets = linksIn(page);
            for (const QString& target : targets)
                QTest::addRow("%s: %s", qPrintable(nameOf(page)), qPrintable(target)) << page.path << target;
        }
    }

    void links()
    {
        QFETCH(QString, page);
        QFETCH(QString, target);
        const QString path = target.section(QLatin1Char('#'), 0, 0);
        const QString anchor = target.section(QLatin1Char('#'), 1);
        const QString file = path.isEmpty() ? page : QFileInfo(page).dir().filePath(path);
        QVERIFY2(QFileInfo::exists(file), qPrintable(file));
        if (!anchor.isEmpty())
            QVERIFY2(Pages::anchors(Pages::read(file)).contains(anchor), qPrintable(target));
    }

private:
    /// What stands under the heading with this anchor, up to the next of its rank.
    static QString section(const Page& page, const QString& anchor)
    {
        QString text;
        int rank = 0;
        for (const QString& line : page.prose) {
            const QString hashes = line.section(QLatin1Char(' '), 0, 0);
            const int ranked = line.startsWith(QLatin1Char('#')) ? int(hashes.size()) : 0;
            if (rank > 0 && ranked > 0 && ranked <= rank)
                break;
            if (rank == 0 && ranked > 0 && Pages::anchorOf(line.mid(ranked + 1)) == anchor)
                rank = ranked;
            if (rank > 0)
                text += line + QLatin1Char('\n');
        }
        return text;
    }

    static void addBlocks(const char* kind)
    {
        QTest::addColumn<int>("page");
        QTest::addColumn<int>("block");
        int count = 0;
        for (std::size_t i = 0; i < pages().size(); ++i) {
            for (std::size_t j = 0; j < pages()[i].blocks.size(); ++j) {
                const Block& block = pages()[i].blocks[j];
                if (block.kind() != QLatin1String(kind) || block.mark.size() < 2)
                    continue;
                QTest::addRow("%s:%d %s", qPrintable(nameOf(pages()[i])), block.line, qPrintable(block.mark.at(1)))
                    << int(i) << int(j);
                ++count;
            }
        }
        QVERIFY2(count > 0, "nothing to check");
    }

    static const Block& currentBlock()
    {
        return pages()[std::size_t(column("page"))].blocks[std::size_t(column("block"))];
    }
    static const Block* blockBehind()
    {
        const auto& blocks = pages()[std::size_t(column("page"))].blocks;
        const std::size_t next = std::size_t(column("block")) + 1;
        return next < blocks.size() ? &blocks[next] : nullptr;
    }
    static int column(const char* name) { return *static_cast<int*>(QTest::qData(name, qMetaTypeId<int>())); }
};

QTEST_GUILESS_MAIN(GuidesTest)

#include "guides_test.moc"
