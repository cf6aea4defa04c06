#pragma once

#include <QtCore/QString>

class QXmlStreamWriter;

/// \file
/// The attribute "version" of the elements that have it.

namespace ArvXml {

class ElementReader;

/// The only one that there is: "1.0".
QString supportedVersion();
bool isSupportedVersion(const QString& version);
/// The problem with \a version, or nothing.
QString versionError(const QString& version);

/// Puts the version of the start tag into \a version, or the supported one where the tag has none. Returns whether the
/// stream stands on a start tag, and raises an error if not.
bool readVersion(ElementReader& in, QString& version);
/// Raises an error if \a version is not supported.
void refuseOtherVersions(ElementReader& in, const QString& version);
void writeVersion(QXmlStreamWriter& writer, const QString& version);

} // namespace ArvXml
