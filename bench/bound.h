#pragma once

#include "documents.h"

#include <arvxml/element.h>

#include <memory>
#include <vector>

class QXmlStreamReader;

/// \file
/// What the library is measured with: documents read into its objects, and written from them.

namespace Bench {

/// The root element of each document.
using Trees = std::vector<std::unique_ptr<ArvXml::IXmlElement>>;

std::unique_ptr<ArvXml::IXmlElement> newTree(Root root);
std::unique_ptr<ArvXml::IXmlElement> copyOf(const ArvXml::IXmlElement& tree, Root root);
/// The tag under which a document element stands.
QString tagOf(Root root);

/// Reads a document to its end. Returns what was wrong, normally nothing.
QString readDocument(const Document& document, ArvXml::IXmlElement& tree);
QByteArray writeDocument(const ArvXml::IXmlElement& tree, Root root, int reserve);

/// Reads \a documents, which must go well.
Trees readAll(const std::vector<Document>& documents);

} // namespace Bench
