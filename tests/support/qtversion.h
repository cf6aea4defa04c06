#pragma once

#include <QtCore/QVersionNumber>

/// Whether the Qt that runs is this one or a later one: some of what it reads and writes has changed.
inline bool isQtFrom(int major, int minor)
{
    return QVersionNumber::fromString(QLatin1String(qVersion())) >= QVersionNumber(major, minor);
}
