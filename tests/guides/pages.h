#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <vector>

/// \file
/// The pages of the documentation, cut into what is told and what is shown.

namespace Pages {

/// A block between two fences.
struct Block {
    int line = 0;     ///< of the opening fence, from 1
    QStringList mark; ///< the words behind the opening fence
    QStringList lines;

    QString kind() const { return mark.isEmpty() ? QString() : mark.first(); }
    QString text() const { return lines.join(QLatin1Char('\n')); }
};

struct Page {
    QString path;
    bool isWhole = false; ///< it exists, and its last fence is closed
    QStringList prose;    ///< its lines; those of blocks are empty
    std::vector<Block> blocks;
};

inline Page read(const QString& path)
{
    Page page;
    page.path = path;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return page;
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    bool isInside = false;
    for (const QString& line : std::as_const(lines)) {
        const bool isFence = line.startsWith(QLatin1String("```"));
        page.prose.append(isFence || isInside ? QString() : line);
        if (isFence && !isInside)
            page.blocks.push_back(
                {int(page.prose.size()), line.mid(3).split(QLatin1Char(' '), Qt::SkipEmptyParts), {}});
        else if (isInside && !isFence)
            page.blocks.back().lines.append(line);
        isInside = isFence ? !isInside : isInside;
    }
    page.isWhole = !isInside;
    return page;
}

/// The anchor by which a heading can be linked.
inline QString anchorOf(const QString& heading)
{
    QString anchor;
    for (const QChar letter : heading.toLower()) {
        if (letter == QLatin1Char(' '))
            anchor += QLatin1Char('-');
        else if (letter.isLetterOrNumber() || letter == QLatin1Char('-') || letter == QLatin1Char('_'))
            anchor += letter;
    }
    return anchor;
}

inline QStringList anchors(const Page& page)
{
    QStringList found;
    for (const QString& line : page.prose) {
        if (line.startsWith(QLatin1Char('#')))
            found.append(anchorOf(line.mid(line.indexOf(QLatin1Char(' ')) + 1)));
    }
    return found;
}

} // namespace Pages
