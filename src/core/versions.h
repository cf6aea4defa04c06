#pragma once

#include <QtCore/QString>

class QXmlStreamWriter;

/// \file
/// The attribute "version".

namespace ArvXml {

class ElementReader;

/// The only supported version: "1.0".
QString supportedVersion();
bool isSupportedVersion(const QString& version);
/// The problem of \a version, empty if there is none.
QString versionError(const QString& version);

/// Reads the version in the start tag into \a version; the supported one if it is missing or empty. Returns whether the
/// stream is at a start tag, and raises an error otherwise.
bool readVersion(ElementReader& in, QString& version);
/// Raises an error if \a version is not supported.
void refuseOtherVersions(ElementReader& in, const QString& version);
void writeVersion(QXmlStreamWriter& writer, const QString& version);

} // namespace ArvXml
