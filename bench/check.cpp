#include "check.h"

#include "plain.h"
#include "tally.h"
#include "tasks.h"

#include <QtCore/QTextStream>

namespace Bench {

namespace {

/// The checks of one subject. Tells what fails.
class SubjectCheck {
public:
    SubjectCheck(Subject& subject, QTextStream& out)
        : m_subject(subject)
        , m_out(out)
    {
    }

    bool run()
    {
        if (!isRead())
            return false; // the others need the trees
        isJudgedValid();
        isReadAlikeByHand();
        isCopiedAlike();
        isWrittenAlike();
        if (m_isGood)
            m_out << m_subject.name() << ": " << m_subject.bytes() << " bytes in "
                  << static_cast<qulonglong>(m_subject.documents().size()) << " documents, good\n";
        return m_isGood;
    }

private:
    void expect(bool isTrue, const QString& otherwise)
    {
        if (isTrue)
            return;
        m_out << m_subject.name() << ": " << otherwise << '\n';
        m_isGood = false;
    }

    bool isRead()
    {
        for (const Document& document : m_subject.documents()) {
            const QString error = readDocument(document, *newTree(document.root));
            expect(error.isEmpty(), QStringLiteral("not read: %1").arg(error));
        }
        return m_isGood;
    }

    void isJudgedValid()
    {
        for (const auto& tree : m_subject.trees()) {
            expect(tree->isValid(), QStringLiteral("not valid"));
            expect(tree->syntaxError().isEmpty(), QStringLiteral("a problem: %1").arg(tree->syntaxError()));
        }
    }

    void isReadAlikeByHand()
    {
        Plain::Contents contents;
        for (const Document& document : m_subject.documents()) {
            const QString error = Plain::readDocument(document, contents);
            expect(error.isEmpty(), QStringLiteral("not read by hand: %1").arg(error));
        }
        const Tally plain = tallyOf(contents);
        const Tally bound = tallyOf(m_subject.trees(), m_subject.documents());
        expect(plain == bound,
               QStringLiteral("%1 values with the sum %2 read by hand, %3 with %4 by the library")
                   .arg(plain.values())
                   .arg(plain.sum(), 0, 'g', 17)
                   .arg(bound.values())
                   .arg(bound.sum(), 0, 'g', 17));
    }

    void isCopiedAlike()
    {
        Trees copies;
        for (size_t i = 0; i < m_subject.trees().size(); ++i)
            copies.push_back(copyOf(*m_subject.trees()[i], m_subject.documents()[i].root));
        expect(tallyOf(copies, m_subject.documents()) == tallyOf(m_subject.trees(), m_subject.documents()),
               QStringLiteral("the copy differs"));
    }

    void isWrittenAlike()
    {
        for (size_t i = 0; i < m_subject.trees().size(); ++i) {
            const QByteArray written = writeDocument(*m_subject.trees()[i], m_subject.documents()[i].root, 0);
            expect(written == replayEvents(m_subject.events()[i], 0), QStringLiteral("the writing floor differs"));
        }
    }

    Subject& m_subject;
    QTextStream& m_out;
    bool m_isGood = true;
};

} // namespace

bool check(QTextStream& out)
{
    bool isGood = true;
    for (const Kind kind : mainKinds()) {
        Subject subject(nameOf(kind), generate(kind, 300000));
        isGood = SubjectCheck(subject, out).run() && isGood;
    }
    for (const VertexOrder order : {VertexOrder::Rising, VertexOrder::Falling, VertexOrder::Random}) {
        std::vector<Document> documents;
        documents.push_back(polygonDocument(1000, order));
        Subject subject(subjectName(1000, order), std::move(documents));
        isGood = SubjectCheck(subject, out).run() && isGood;
    }
    return isGood;
}

} // namespace Bench
