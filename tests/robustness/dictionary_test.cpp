#include <QtCore/QDirIterator>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtTest/QTest>

/// \file
/// The fuzzer's dictionary holds the words of the protocol, all of them and no others: those in the sources of the
/// library.

namespace {

QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The texts in the code, with where they stand: between quotes, or the code of a character, such as the degree sign.
/// Neither those of comments nor what is included.
QMap<QString, QString> literalsOf(const QString& folder)
{
    static const QRegularExpression comment(QStringLiteral(R"(^\s*(//|#include).*|\s// .*)"));
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
    static const QRegularExpression character(QStringLiteral(R"(\bQChar\(0x([0-9A-F]{4})\))"));
    QMap<QString, QString> literals;
    QDirIterator files(folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        int number = 0;
        for (QString line : contentOf(path).split(QLatin1Char('\n'))) {
            ++number;
            line.remove(comment);
            const QString place = QStringLiteral("%1:%2").arg(path).arg(number);
            auto found = literal.globalMatch(line);
            while (found.hasNext())
                literals.insert(found.next().captured(1), place);
            found = character.globalMatch(line);
            while (found.hasNext())
                literals.insert(QChar(found.next().captured(1).toUShort(nullptr, 16)), place);
        }
    }
    return literals;
}

/// The sources also hold what no document does: the names of classes, messages, and patterns of dates.
bool isNoWord(const QString& literal)
{
    static const QRegularExpression form(QStringLiteral(
        R"re(^Xml\w+|%[1-9]|^(Has|If|Illegal|Invalid|Missing|Must|Neither|No|Only|Unexpected|Version) )re"
        R"re(|^(Too|Type) .* |^Type not |^Uninitialized\.$|^d[dT:-]+$|^(%0[2-4]d[T:-]?)+$|)re"
        R"re( (is empty|not defined\.|not set\.?|out of bounds|\((min|max)\. [0-9]+\)\.?|\(wrong position\))$)re"));
    return form.match(literal).hasMatch();
}

/// The words of the dictionary, as they stand in documents; what XML itself is made of, numbers and times left out.
QSet<QString> wordsOf(const QString& dictionary)
{
    static const QSet<QString> titles = {QStringLiteral("Tags"), QStringLiteral("Attributes"), QStringLiteral("Units"),
                                         QStringLiteral("Texts of choices, and tags that are only written")};
    QSet<QString> words;
    QString title;
    for (const QString& line : dictionary.split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1String("# ")))
            title = line.mid(2);
        else if (line.startsWith(QLatin1Char('"')) && titles.contains(title))
            words.insert(line.mid(1, line.size() - 2).replace(QLatin1String("\\xc2\\xb0"), QChar(0x00B0)));
    }
    return words;
}

} // namespace

class DictionaryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void wordsOfTheProtocol()
    {
        const QMap<QString, QString> literals = literalsOf(QStringLiteral(SOURCES));
        const QSet<QString> words = wordsOf(contentOf(QStringLiteral(DICTIONARY)));
        QStringList wrong;
        for (auto literal = literals.cbegin(); literal != literals.cend(); ++literal) {
            if (!isNoWord(literal.key()) && !words.contains(literal.key()))
                wrong.append(QStringLiteral("%1: \"%2\" is not in the dictionary").arg(literal.value(), literal.key()));
        }
        for (const QString& word : words) {
            if (!literals.contains(word))
                wrong.append(QStringLiteral("\"%1\" stands in the dictionary only").arg(word));
        }
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
        QVERIFY(words.size() > 200);
    }
};

QTEST_APPLESS_MAIN(DictionaryTest)
#include "dictionary_test.moc"
