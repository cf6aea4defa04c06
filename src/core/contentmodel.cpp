#include "core/elementform.h"

namespace ArvXml {

/// A particle has one mark, which each of its children sets. Those of later particles are all the greater ones.
void ElementForm::addParticle(const Particle& particle, Marks needed)
{
    const Marks itselfAndLater = ~(m_nextMark - 1);
    const Marks refusing = particle.isRepeated ? itselfAndLater & ~m_nextMark : itselfAndLater;
    for (const Particle::Child& child : particle.alternatives)
        m_rows.emplace_back(child.tag, m_nextMark, refusing, child.content, needed);
    if (particle.isRequired)
        m_requiredParticles |= m_nextMark;
    m_nextMark <<= 1;
}

ElementForm& ElementForm::sequence(std::initializer_list<Particle> particles)
{
    for (const Particle& particle : particles)
        addParticle(particle, 0);
    return completeWith(m_requiredParticles);
}

ElementForm& ElementForm::strictSequence(std::initializer_list<Particle> particles)
{
    for (const Particle& particle : particles)
        addParticle(particle, m_requiredParticles);
    m_completions.clear();
    return completeWith(m_requiredParticles);
}

ElementForm& ElementForm::anywhere(const char* tag, const Content& content)
{
    m_rows.emplace_back(tag, 0, 0, content);
    return *this;
}

ElementForm& ElementForm::listOf(const char* tag, const Content& content, const char* tooFew)
{
    constexpr Marks item = 1;
    m_rows.emplace_back(tag, item, 0, content);
    m_tooFew = QString::fromLatin1(tooFew);
    return completeWith(item);
}

} // namespace ArvXml
