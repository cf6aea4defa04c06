#pragma once

#include <arvxml/names.h>
#include <arvxml/orderdef.h>
#include <arvxml/resultgrid.h>

#include <QtCore/QDateTime>
#include <QtCore/QString>
#include <QtCore/QTimeZone>

/// \file
/// Small values that the tests of several families need.

namespace TestValues {

/// The text of a literal.
inline QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

/// The time that stands in the documents as "2024-03-05T14:07:09".
inline QDateTime someTime()
{
    return QDateTime(QDate(2024, 3, 5), QTime(14, 7, 9));
}

/// A time so many seconds ahead of UTC.
inline QDateTime timeAhead(QDate date, QTime time, int seconds)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 5, 0)
    return QDateTime(date, time, QTimeZone::fromSecondsAheadOfUtc(seconds));
#else
    return QDateTime(date, time, Qt::OffsetFromUTC, seconds);
#endif
}
/// A time in UTC.
inline QDateTime timeInUtc(QDate date, QTime time)
{
    return timeAhead(date, time, 0);
}

/// A reference with this text.
inline ArvXml::XmlReferenceType reference(const QString& text)
{
    ArvXml::XmlReferenceType reference;
    reference.setReference(text);
    return reference;
}

/// An envelope from this sender.
inline ArvXml::XmlOrderDef envelope(const QString& sender)
{
    ArvXml::XmlOrderDef envelope;
    envelope.setOrderId(QStringLiteral("ARV240305140709042"));
    envelope.setOrderSender(sender);
    return envelope;
}

/// A name with this text.
inline ArvXml::XmlObjNameType objName(const QString& text)
{
    ArvXml::XmlObjNameType name;
    name.setObjName(text);
    return name;
}

/// A list with one name; an empty name makes it invalid.
inline ArvXml::XmlNameAllMultiType names(const QString& name)
{
    ArvXml::XmlObjNameType objName;
    objName.setObjName(name);
    ArvXml::XmlNameAllMultiType names;
    names.setObjNames({&objName});
    return names;
}

/// A grid with the size of this number, which need not be one of the enumeration.
inline ArvXml::XmlResultGridType grid(int size)
{
    ArvXml::XmlResultGridType grid;
    grid.setSize(static_cast<ArvXml::XmlResultGridType::GridSize>(size));
    return grid;
}

} // namespace TestValues
