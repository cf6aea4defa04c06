#include "core/times.h"

#include <algorithm>

namespace ArvXml {

namespace {

/// Whether \a character is what the form asks for: a digit for each 'd', anything else itself.
bool fits(QChar character, char form)
{
    return form == 'd' ? character >= QLatin1Char('0') && character <= QLatin1Char('9')
                       : character == QLatin1Char(form);
}

/// The number that the \a count digits from \a at on make.
int numberOf(const QString& text, int at, int count)
{
    int number = 0;
    for (int i = at; i < at + count; ++i)
        number = 10 * number + (text[i].unicode() - '0');
    return number;
}

} // namespace

QDateTime fastDateTime(const QString& text)
{
    const QLatin1String form("dddd-dd-ddTdd:dd:dd");
    if (!std::equal(text.cbegin(), text.cend(), form.begin(), form.end(), fits))
        return {};
    const QDate date(numberOf(text, 0, 4), numberOf(text, 5, 2), numberOf(text, 8, 2));
    const QTime time(numberOf(text, 11, 2), numberOf(text, 14, 2), numberOf(text, 17, 2));
    return date.isValid() && time.isValid() ? QDateTime(date, time) : QDateTime();
}

QDateTime toDateTime(const QString& text)
{
    const QDateTime time = fastDateTime(text);
    return time.isValid() ? time : QDateTime::fromString(text, Qt::ISODate);
}

QString isoText(const QDateTime& time)
{
    const QDate date = time.date();
    const bool isPlain = time.isValid() && (time.timeSpec() == Qt::LocalTime || time.timeSpec() == Qt::UTC)
        && date.year() > 0 && date.year() <= 9999;
    if (!isPlain)
        return time.toString(Qt::ISODate);
    const QTime clock = time.time();
    QString text = QString::asprintf("%04d-%02d-%02dT%02d:%02d:%02d", date.year(), date.month(), date.day(),
                                     clock.hour(), clock.minute(), clock.second());
    if (time.timeSpec() == Qt::UTC)
        text += QLatin1Char('Z');
    return text;
}

QString timeDigits(const QDateTime& time)
{
    const QDate date = time.date();
    const QTime clock = time.time();
    return QString::asprintf("%02d%02d%02d%02d%02d%02d%03d", date.year() % 100, date.month(), date.day(), clock.hour(),
                             clock.minute(), clock.second(), clock.msec());
}

} // namespace ArvXml
