#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <type_traits>
#include <utility>

/// \file
/// What the tests of devices and signal paths share.

namespace ObjectTest {

// What users may call

template <typename T, typename = void>
struct HasVersion : std::false_type {
};
template <typename T>
struct HasVersion<T, std::void_t<decltype(std::declval<T&>().version())>> : std::true_type {
};

template <typename T, typename = void>
struct HasSetVersion : std::false_type {
};
template <typename T>
struct HasSetVersion<T, std::void_t<decltype(std::declval<T&>().setVersion(QString()))>> : std::true_type {
};

template <typename T, typename = void>
struct ShowsSupportsVersion : std::false_type {
};
template <typename T>
struct ShowsSupportsVersion<T, std::void_t<decltype(std::declval<T&>().supportsVersion())>> : std::true_type {
};

// What elements look like

inline QString block(const char* className, const QString& problems)
{
    return QStringLiteral("+++ in %1 Begin:\n%2\n--- in %1 End").arg(QLatin1String(className), problems);
}

inline QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// A child: its tag, the children after any of which it is refused, how it is read here, how it is
/// written then, and how it is written by a new element.
struct GatedChild {
    QString tag;
    QStringList refusedAfter;
    QString xml;
    QString written;
    QString byDefault;
};

} // namespace ObjectTest
