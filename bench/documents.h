#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <vector>

/// \file
/// The documents that are measured. They are generated, the same every time, in the compact form in
/// which the library writes, and are read without an error and valid.

namespace Bench {

/// What a document element is.
enum class Root { Commands, Snapshot, Response };

struct Document {
    Root root;
    QByteArray text;
};

enum class Kind {
    Devices,   ///< commands that create devices with long lists of values
    Creates,   ///< commands that create planning objects of all kinds, as in a real plan
    Polygons,  ///< commands that create areas of many vertices
    Responses, ///< a snapshot request of half the size, and small responses that make up the other half
    Snapshot,  ///< the snapshot request alone
    Answers,   ///< the responses alone: each holds one answer, so they are many small documents
};

/// The four kinds that every measurement covers.
const std::vector<Kind>& mainKinds();
QString nameOf(Kind kind);

/// Documents of a kind of \a bytes or a little more, in all.
std::vector<Document> generate(Kind kind, qint64 bytes);

/// The order in which the vertices of a polygon stand in its document.
enum class VertexOrder { Rising, Falling, Random };
QString nameOf(VertexOrder order);

/// One area of \a vertices vertices.
Document polygonDocument(int vertices, VertexOrder order);

/// The size of all documents together.
qint64 bytesOf(const std::vector<Document>& documents);

} // namespace Bench
