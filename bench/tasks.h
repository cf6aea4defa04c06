#pragma once

#include "bound.h"
#include "documents.h"
#include "events.h"

#include <QtCore/QString>

#include <memory>
#include <optional>
#include <vector>

namespace Bench {

/// What is measured of each subject.
enum class Figure {
    ReadFloor,   ///< the documents through the stream reader, nothing bound
    ReadDom,     ///< the documents parsed into a QDomDocument
    ReadPlain,   ///< the documents read by hand-written loops into plain structs
    Read,        ///< the documents read into the library's objects
    WriteFloor,  ///< the same output from ready-made texts through the stream writer
    Write,       ///< the library's objects written
    IsValid,     ///< the library's objects judged by isValid()
    SyntaxError, ///< the library's objects judged by syntaxError()
    Copy,        ///< the library's objects copied
    Destroy,     ///< the library's objects destroyed
    Heap,        ///< bytes that the library's objects take; this one is no task
};

QString nameOf(Figure figure);
/// All figures that are tasks.
const std::vector<Figure>& tasks();

/// The documents that a group of tasks works on, with what they are read into and the events that write
/// them. The two are made when first asked for, and shared.
class Subject {
public:
    Subject(QString name, std::vector<Document> documents);

    const QString& name() const { return m_name; }
    const std::vector<Document>& documents() const { return m_documents; }
    qint64 bytes() const { return m_bytes; }

    const Trees& trees();
    const std::vector<Events>& events();
    /// How many bytes are held by the objects alone, the reader being gone.
    qint64 heapBytes();

private:
    QString m_name;
    std::vector<Document> m_documents;
    qint64 m_bytes;
    std::optional<Trees> m_trees;
    std::optional<std::vector<Events>> m_events;
};

/// Something to measure. Only run() counts; prepare() comes before it, tidy() takes away what it left.
class Task {
public:
    virtual ~Task() = default;

    virtual void prepare() { }
    virtual void run() = 0;
    virtual void tidy() { }

protected:
    Task() = default;
    Q_DISABLE_COPY(Task)
};

std::unique_ptr<Task> makeTask(Figure figure, Subject& subject);

/// A name for documents of a kind and size: "devices 10 MB".
QString subjectName(Kind kind, int megabytes);
/// A name for a polygon: "1000000 vertices, falling".
QString subjectName(int vertices, VertexOrder order);

} // namespace Bench
