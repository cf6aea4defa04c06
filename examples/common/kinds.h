#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>

namespace ArvXml {
class IXmlElement;
}

/// \file
/// Which of the protocol's three documents a file holds.

namespace Document {

/// What is seen of a document without knowing its kind.
struct Outline {
    QString tag; ///< the document element's tag, empty when there is none
    QStringList attributes;
    QStringList children; ///< as far as the document is well-formed
    QString error;
};
Outline outlineOf(const QByteArray& document);

/// A kind of document. The document element's tag is free, so a kind is recognised by any of these
/// attributes of the document element, or any of these children.
struct Kind {
    const char* name;
    QStringList attributes;
    QStringList children;
    std::unique_ptr<ArvXml::IXmlElement> (*make)(); ///< an empty root of this kind
};

/// The kind of a document with this outline, null when it is none of the protocol's.
const Kind* kindOf(const Outline& outline);

} // namespace Document
