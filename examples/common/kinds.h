#pragma once

#include <arvxml/element.h>

#include <QtCore/QString>

#include <memory>

/// \file
/// Which of the protocol's three documents a file holds.

namespace Document {

/// A file with a document, as far as it could be read.
struct Loaded {
    QString problem; ///< why it could not be read, empty when it was
    QString kind;    ///< "command document" for example, empty when it is none of the protocol's
    QString tag;     ///< of the document element
    std::unique_ptr<ArvXml::IXmlElement> root; ///< null when the document is none of the protocol's
};

/// Reads the file, whichever of the protocol's documents it holds.
Loaded load(const QString& fileName);

} // namespace Document
