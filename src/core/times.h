#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace ArvXml {

/// The ISO 8601 time in \a text, as QDateTime::fromString() reads it; invalid if it is not one. The plain form, such as
/// 2024-03-05T14:07:09, takes a fast path.
QDateTime toDateTime(const QString& text);
/// The fast path of this; invalid for all other forms.
QDateTime fastDateTime(const QString& text);

/// The text of a time as QDateTime::toString(Qt::ISODate) returns it: to the second, UTC with a "Z", local time without
/// a zone; empty if it is invalid. In Qt 5, QDateTime itself returns nothing at the very end of a program.
QString isoText(const QDateTime& time);
/// A time as yyMMddhhmmsszzz, in ASCII digits whatever the locale.
QString timeDigits(const QDateTime& time);

} // namespace ArvXml
