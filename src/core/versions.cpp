#include "core/versions.h"

#include "core/elementreader.h"

#include <QtCore/QXmlStreamWriter>

namespace ArvXml {

QString supportedVersion()
{
    return QStringLiteral("1.0");
}

bool isSupportedVersion(const QString& version)
{
    return isSameText(version, supportedVersion());
}

QString versionError(const QString& version)
{
    return isSupportedVersion(version) ? QString() : QStringLiteral("Version \"%1\" not supported").arg(version);
}

bool readVersion(ElementReader& in, QString& version)
{
    if (!isSupportedVersion(version))
        version = supportedVersion();
    if (!in.requireStartTag())
        return false;
    assignUnlessEmpty(in.attribute(versionAttribute()), version);
    return true;
}

void refuseOtherVersions(ElementReader& in, const QString& version)
{
    if (!isSupportedVersion(version))
        in.fail(QStringLiteral("Version not supported: %1").arg(version));
}

void writeVersion(QXmlStreamWriter& writer, const QString& version)
{
    writer.writeAttribute(versionAttribute(), version);
}

} // namespace ArvXml
