#include "core/contentmodel.h"

#include <algorithm>

namespace ArvXml {

/// A particle has one mark, which each of its children sets. Those of later particles are all the greater ones.
void ContentModel::addParticle(const Particle& particle, Marks needed, const QString& wrapper)
{
    const bool isRepeated = particle.occurrence == Occurrence::Repeated;
    const Marks itselfAndLater = ~(m_nextMark - 1);
    const bool isChoice = particle.alternatives.size() > 1;
    if (isChoice)
        ++m_choices;
    for (const Particle::Child& child : particle.alternatives) {
        Row row(child.tag, child.binding);
        row.marks(m_nextMark)
            .refusedAfter(isRepeated ? itselfAndLater & ~m_nextMark : itselfAndLater)
            .onlyAfter(needed);
        row.occurrence = particle.occurrence;
        row.choice = isChoice ? m_choices : 0;
        row.wrapper = wrapper;
        m_rows.push_back(row);
    }
    if (particle.occurrence == Occurrence::Required)
        m_requiredParticles |= m_nextMark;
    m_nextMark <<= 1;
}

ContentModel& ContentModel::sequence(std::initializer_list<Particle> particles)
{
    for (const Particle& particle : particles)
        addParticle(particle, 0);
    m_completions.clear();
    return completeWith(m_requiredParticles);
}

ContentModel& ContentModel::strictSequence(std::initializer_list<Particle> particles)
{
    for (const Particle& particle : particles)
        addParticle(particle, m_requiredParticles);
    m_completions.clear();
    return completeWith(m_requiredParticles);
}

ContentModel& ContentModel::within(const char* tag, Marks open, std::initializer_list<Particle> particles)
{
    for (const Particle& particle : particles)
        addParticle(particle, open, QString::fromLatin1(tag));
    return *this;
}

ContentModel& ContentModel::anywhere(const char* tag, const Binding& binding)
{
    m_rows.push_back(Row(tag, binding).repeated());
    return *this;
}

ContentModel& ContentModel::listOf(const char* tag, const Binding& binding, const char* tooFew)
{
    constexpr Marks item = 1;
    m_rows.push_back(Row(tag, binding).marks(item).atLeastOnce());
    m_areItemsReplaced = true;
    m_tooFew = QString::fromLatin1(tooFew);
    return completeWith(item);
}

ContentModel& ContentModel::rows(std::initializer_list<Row> rows)
{
    m_rows.insert(m_rows.end(), rows);
    for (const Row& row : rows) {
        while (((row.sets | row.bars | row.needs) & ~(m_nextMark - 1)) != 0)
            m_nextMark <<= 1;
    }
    return *this;
}

bool ContentModel::mayEnd(const XmlElementBase& owner, Marks read) const
{
    return m_condition(owner)
        && std::any_of(m_completions.cbegin(), m_completions.cend(),
                       [read](const Completion& completion) { return (read & completion.among) == completion.marks; });
}

ContentModel& ContentModel::reportedFirst(std::initializer_list<const char*> tags)
{
    for (const char* tag : tags) {
        for (std::size_t row = 0; row < m_rows.size(); ++row) {
            if (m_rows[row].tag == QLatin1String(tag)) {
                m_rows[row].isReportedFirst = true;
                m_reportedFirst.push_back(row);
            }
        }
    }
    return *this;
}

} // namespace ArvXml
