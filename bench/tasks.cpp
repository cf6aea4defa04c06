#include "tasks.h"

#include "plain.h"

#include <QtCore/QXmlStreamReader>
#include <QtXml/QDomDocument>

#include <malloc.h>

#include <utility>

namespace Bench {

namespace {

/// A result that no one looks at must have been right all the same.
void require(bool isRight, const char* what)
{
    if (!isRight)
        qFatal("%s", what);
}

qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks) + static_cast<qint64>(info.hblkhd);
}

class SubjectTask : public Task {
public:
    explicit SubjectTask(Subject& subject)
        : m_subject(subject)
    {
    }

protected:
    Subject& m_subject;
};

// Reading

class ReadFloorTask : public SubjectTask {
public:
    using SubjectTask::SubjectTask;

    void run() override
    {
        for (const Document& document : m_subject.documents()) {
            QXmlStreamReader reader(document.text);
            while (!reader.atEnd())
                reader.readNext();
            require(!reader.hasError(), "The document is not well-formed.");
        }
    }
};

class ReadDomTask : public SubjectTask {
public:
    using SubjectTask::SubjectTask;

    void prepare() override { m_results.reserve(m_subject.documents().size()); }
    void run() override
    {
        for (const Document& document : m_subject.documents()) {
            m_results.emplace_back();
            require(m_results.back().setContent(document.text), "The document cannot be parsed.");
        }
    }
    void tidy() override { std::exchange(m_results, {}); }

private:
    std::vector<QDomDocument> m_results;
};

class ReadPlainTask : public SubjectTask {
public:
    using SubjectTask::SubjectTask;

    void run() override
    {
        for (const Document& document : m_subject.documents())
            require(Plain::readDocument(document, m_contents).isEmpty(), "The loops cannot read the document.");
    }
    void tidy() override { std::exchange(m_contents, {}); }

private:
    Plain::Contents m_contents;
};

class ReadTask : public SubjectTask {
public:
    using SubjectTask::SubjectTask;

    void run() override { m_trees = readAll(m_subject.documents()); }
    void tidy() override { std::exchange(m_trees, {}); }

private:
    Trees m_trees;
};

// Writing

/// How much room the output is given.
int reserveFor(const Document& document)
{
    return document.text.size() + document.text.size() / 8 + 1024;
}

class WriteFloorTask : public SubjectTask {
public:
    explicit WriteFloorTask(Subject& subject)
        : SubjectTask(subject)
    {
        subject.events();
    }

    void run() override
    {
        size_t i = 0;
        for (const Events& events : m_subject.events())
            replayEvents(events, reserveFor(m_subject.documents()[i++]));
    }
};

class WriteTask : public SubjectTask {
public:
    explicit WriteTask(Subject& subject)
        : SubjectTask(subject)
    {
        subject.trees();
    }

    void run() override
    {
        size_t i = 0;
        for (const auto& tree : m_subject.trees()) {
            const Document& document = m_subject.documents()[i++];
            writeDocument(*tree, document.root, reserveFor(document));
        }
    }
};

// Judging

class IsValidTask : public SubjectTask {
public:
    explicit IsValidTask(Subject& subject)
        : SubjectTask(subject)
    {
        subject.trees();
    }

    void run() override
    {
        for (const auto& tree : m_subject.trees())
            require(tree->isValid(), "The document is not valid.");
    }
};

class SyntaxErrorTask : public SubjectTask {
public:
    explicit SyntaxErrorTask(Subject& subject)
        : SubjectTask(subject)
    {
        subject.trees();
    }

    void run() override
    {
        for (const auto& tree : m_subject.trees())
            require(tree->syntaxError().isEmpty(), "The document has a problem.");
    }
};

// Copying and destroying

class CopyTask : public SubjectTask {
public:
    explicit CopyTask(Subject& subject)
        : SubjectTask(subject)
    {
        subject.trees();
    }

    void prepare() override { m_copies.reserve(m_subject.documents().size()); }
    void run() override
    {
        size_t i = 0;
        for (const auto& tree : m_subject.trees())
            m_copies.push_back(copyOf(*tree, m_subject.documents()[i++].root));
    }
    void tidy() override { std::exchange(m_copies, {}); }

private:
    Trees m_copies;
};

class DestroyTask : public SubjectTask {
public:
    using SubjectTask::SubjectTask;

    void prepare() override { m_trees = readAll(m_subject.documents()); }
    void run() override { std::exchange(m_trees, {}); }

private:
    Trees m_trees;
};

} // namespace

QString nameOf(Figure figure)
{
    switch (figure) {
    case Figure::ReadFloor:
        return QStringLiteral("reading floor");
    case Figure::ReadDom:
        return QStringLiteral("QDomDocument");
    case Figure::ReadPlain:
        return QStringLiteral("hand-written loop");
    case Figure::Read:
        return QStringLiteral("reading");
    case Figure::WriteFloor:
        return QStringLiteral("writing floor");
    case Figure::Write:
        return QStringLiteral("writing");
    case Figure::IsValid:
        return QStringLiteral("isValid()");
    case Figure::SyntaxError:
        return QStringLiteral("syntaxError()");
    case Figure::Copy:
        return QStringLiteral("deep copy");
    case Figure::Destroy:
        return QStringLiteral("destruction");
    case Figure::Heap:
        return QStringLiteral("heap of the tree");
    }
    Q_UNREACHABLE();
}

const std::vector<Figure>& tasks()
{
    static const std::vector<Figure> figures = {
        Figure::ReadFloor, Figure::ReadDom, Figure::ReadPlain,   Figure::Read, Figure::WriteFloor,
        Figure::Write,     Figure::IsValid, Figure::SyntaxError, Figure::Copy, Figure::Destroy,
    };
    return figures;
}

Subject::Subject(QString name, std::vector<Document> documents)
    : m_name(std::move(name))
    , m_documents(std::move(documents))
    , m_bytes(bytesOf(m_documents))
{
}

const Trees& Subject::trees()
{
    if (!m_trees)
        m_trees = readAll(m_documents);
    return *m_trees;
}

const std::vector<Events>& Subject::events()
{
    if (!m_events) {
        m_events.emplace();
        size_t i = 0;
        for (const auto& tree : trees())
            m_events->push_back(recordEvents(writeDocument(*tree, m_documents[i++].root, 0)));
    }
    return *m_events;
}

qint64 Subject::heapBytes()
{
    // Once for nothing: what the library keeps for itself is no part of a tree.
    readAll(m_documents);
    const qint64 before = heapInUse();
    const Trees trees = readAll(m_documents);
    return heapInUse() - before;
}

std::unique_ptr<Task> makeTask(Figure figure, Subject& subject)
{
    switch (figure) {
    case Figure::ReadFloor:
        return std::make_unique<ReadFloorTask>(subject);
    case Figure::ReadDom:
        return std::make_unique<ReadDomTask>(subject);
    case Figure::ReadPlain:
        return std::make_unique<ReadPlainTask>(subject);
    case Figure::Read:
        return std::make_unique<ReadTask>(subject);
    case Figure::WriteFloor:
        return std::make_unique<WriteFloorTask>(subject);
    case Figure::Write:
        return std::make_unique<WriteTask>(subject);
    case Figure::IsValid:
        return std::make_unique<IsValidTask>(subject);
    case Figure::SyntaxError:
        return std::make_unique<SyntaxErrorTask>(subject);
    case Figure::Copy:
        return std::make_unique<CopyTask>(subject);
    case Figure::Destroy:
        return std::make_unique<DestroyTask>(subject);
    case Figure::Heap:
        break;
    }
    Q_UNREACHABLE();
}

QString subjectName(Kind kind, int megabytes)
{
    return QStringLiteral("%1 %2 MB").arg(nameOf(kind)).arg(megabytes);
}

QString subjectName(int vertices, VertexOrder order)
{
    return QStringLiteral("%1 vertices, %2").arg(vertices).arg(nameOf(order));
}

} // namespace Bench
