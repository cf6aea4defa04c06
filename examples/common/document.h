#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

class QXmlStreamReader;

namespace ArvXml {
class IXmlElement;
}

/// \file
/// Whole documents. The library's elements read and write themselves only; what stands around the
/// document element is their caller's business, and is done here once. Take this file along when you
/// write a program of your own.

namespace Document {

/// What ended the reading of a document, and where.
struct ReadError {
    QString text; ///< empty when the document was read
    qint64 line = 0;
    qint64 column = 0;

    explicit operator bool() const { return !text.isEmpty(); }

    /// The text behind its place: "at line 3, column 7: TEXT". The errors of the library's elements begin
    /// with their place, "in CLASS (line 3, column 7): ...", and are returned as they are.
    QString withPlace() const;
};

/// Brings \a reader to the start tag of the document element. Returns false, with an error on the
/// reader, when there is none or when the document has a document type declaration.
///
/// Such a declaration can define entities, which is how a small document is made to unfold into a
/// huge one. The protocol needs none, so a program that reads from strangers refuses them all.
bool goToRoot(QXmlStreamReader& reader);

/// Reads \a document into \a root, to the very end: an element stops at its own end tag, and rubbish
/// behind it would go unnoticed otherwise.
///
/// A document that could be read is well-formed and has the shape of the protocol. Whether its values
/// are acceptable is the next question, see problems().
ReadError read(const QByteArray& document, ArvXml::IXmlElement& root);

/// What is not acceptable in \a root, with that of the delete commands of a command document, which the
/// root itself leaves out. Empty when all is well, and never empty when something is wrong.
QString problems(ArvXml::IXmlElement& root);

/// \a root as a document whose document element has the tag \a tag. Indenting is for human readers: it
/// adds white space, which a few elements refuse.
QByteArray written(const ArvXml::IXmlElement& root, const QString& tag, bool indent = false);

} // namespace Document
