#include "core/times.h"

namespace ArvXml {

namespace {

/// Reads the \a count digits at \a at into \a number. Returns whether they are digits.
bool takeDigits(const QString& text, int at, int count, int& number)
{
    number = 0;
    for (int i = at; i < at + count; ++i) {
        const int digit = text[i].unicode() - '0';
        if (digit < 0 || digit > 9)
            return false;
        number = 10 * number + digit;
    }
    return true;
}

} // namespace

QDateTime plainDateTime(const QString& text)
{
    const QLatin1String form("dddd-dd-ddTdd:dd:dd");
    if (text.size() != form.size())
        return {};
    for (int i = 0; i < form.size(); ++i) {
        if (form[i] != QLatin1Char('d') && text[i] != form[i])
            return {};
    }
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (!takeDigits(text, 0, 4, year) || !takeDigits(text, 5, 2, month) || !takeDigits(text, 8, 2, day)
        || !takeDigits(text, 11, 2, hour) || !takeDigits(text, 14, 2, minute) || !takeDigits(text, 17, 2, second))
        return {};
    const QDate date(year, month, day);
    const QTime time(hour, minute, second);
    return date.isValid() && time.isValid() ? QDateTime(date, time) : QDateTime();
}

QDateTime toDateTime(const QString& text)
{
    const QDateTime time = plainDateTime(text);
    return time.isValid() ? time : QDateTime::fromString(text, Qt::ISODate);
}

} // namespace ArvXml
