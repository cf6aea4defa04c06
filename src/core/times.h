#pragma once

#include <QtCore/QDateTime>
#include <QtCore/QString>

namespace ArvXml {

/// A time in ISO 8601, as QDateTime::fromString() reads it; invalid when \a text is none. The plain form, such
/// as 2024-03-05T14:07:09, goes a short way.
QDateTime toDateTime(const QString& text);
/// The same by the short way; invalid for every other form.
QDateTime plainDateTime(const QString& text);

/// A time as QDateTime::toString(Qt::ISODate) writes it: to the second, UTC with a "Z", local time without a zone;
/// empty when it is invalid. With Qt 5, QDateTime writes nothing in the last moments of a program.
QString isoText(const QDateTime& time);
/// A time as the digits yyMMddhhmmsszzz, whatever the digits of the locale.
QString timeDigits(const QDateTime& time);

} // namespace ArvXml
