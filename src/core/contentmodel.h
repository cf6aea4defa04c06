#pragma once

#include "core/content.h"
#include "core/neverdestroyed.h"

#include <initializer_list>
#include <utility>
#include <vector>

/// \file
/// The wire form of a composite element: a table with a row for each child tag.
///
/// A row says under which tag the child stands, which marks must not (or must) be set when it comes,
/// which marks it sets, and what the operations do with it. Marks are bits that an element names for
/// itself, most often one for each child ("has been read").

namespace ArvXml {

using Marks = quint32;

/// A child tag and its gate.
struct Row {
    QString tag;
    QString writtenTag;
    Marks sets;         ///< marks set by reading it
    Marks refusedAfter; ///< refused when any of these is set
    Marks needs;        ///< refused unless all of these are set
    Content content;

    Row(const char* name, Marks marks, Marks refusing, const Content& held, Marks needed = 0)
        : tag(QString::fromLatin1(name))
        , writtenTag(held.writtenTag ? QString::fromLatin1(held.writtenTag) : tag)
        , sets(marks)
        , refusedAfter(refusing)
        , needs(needed)
        , content(held)
    {
    }

    bool isOpen(Marks read) const { return (read & refusedAfter) == 0 && (read & needs) == needs; }
};

/// An end tag that is not the element's own: that of a child which the element reads itself.
struct InnerEnd {
    QString tag;
    Marks needs;
    Marks clears;
    Marks sets;
    void (*effect)(XmlElementBase& owner);

    InnerEnd(
        const char* name, Marks needed, Marks cleared, Marks marks,
        void (*action)(XmlElementBase&) = [](XmlElementBase&) {})
        : tag(QString::fromLatin1(name))
        , needs(needed)
        , clears(cleared)
        , sets(marks)
        , effect(action)
    {
    }
};

/// A particle of a content model: a child, or a choice between several, with how often it may come.
struct Particle {
    struct Child {
        const char* tag;
        Content content;
    };

    std::vector<Child> alternatives; ///< which share one place: only one of them comes
    bool isRequired;
    bool isRepeated;
};
inline Particle required(const char* tag, const Content& content)
{
    return {{{tag, content}}, true, false};
}
inline Particle optional(const char* tag, const Content& content)
{
    return {{{tag, content}}, false, false};
}
/// Any number of them, none included.
inline Particle repeated(const char* tag, const Content& content)
{
    return {{{tag, content}}, false, true};
}
/// One of these children, and only one.
inline Particle oneOf(std::vector<Particle::Child> alternatives)
{
    return {std::move(alternatives), true, false};
}
inline Particle optional(Particle particle)
{
    particle.isRequired = false;
    return particle;
}

/// The wire form of an element. Built once for each class, by chained calls.
class ElementForm {
public:
    /// Handles character data; returns the marks to set.
    using CharactersHandler = Marks (*)(XmlElementBase& owner, ElementReader& in, Marks read);

    explicit ElementForm(const Wording& wording)
        : m_wording(wording)
    {
    }

    /// The children in the order of writing, each with its gate. Given again, they follow those before.
    ElementForm& children(std::initializer_list<Row> rows)
    {
        m_rows.insert(m_rows.end(), rows);
        return *this;
    }

    /// Children that come in this order, each at most once but for the repeated: a child is refused once it or one
    /// after it has been read. The end tag needs the required ones; so a required child may be passed over at first,
    /// but the end tag is refused then.
    ElementForm& sequence(std::initializer_list<Particle> particles);

    /// The same, but a child is refused, too, until the required ones before it have been read. Given again, the
    /// particles follow those before.
    ElementForm& strictSequence(std::initializer_list<Particle> particles);

    /// A child that may come at any place, any number of times.
    ElementForm& anywhere(const char* tag, const Content& content);

    /// At least one \a tag, any number of them. \a tooFew is the problem of an empty list.
    ElementForm& listOf(const char* tag, const Content& content, const char* tooFew);

    /// The end tag may come when all of \a marks are set. Given several times: when any of them fits.
    ElementForm& completeWith(Marks marks) { return completeWhen(marks, marks); }
    /// The end tag may come when of \a among exactly \a marks are set.
    ElementForm& completeWhen(Marks among, Marks marks)
    {
        m_completions.push_back({among, marks});
        return *this;
    }
    /// The end tag is refused, whatever has been read.
    ElementForm& neverComplete()
    {
        m_completions.clear();
        return *this;
    }
    /// Called when the element's own end tag has been accepted.
    ElementForm& whenComplete(void (*effect)(XmlElementBase&))
    {
        m_whenComplete = effect;
        return *this;
    }

    ElementForm& innerEnds(std::initializer_list<InnerEnd> ends)
    {
        m_innerEnds = ends;
        return *this;
    }

    /// Character data is ignored unless this is given.
    ElementForm& onCharacters(CharactersHandler handler)
    {
        m_onCharacters = handler;
        return *this;
    }

    /// Another version than "1.0" is an error while reading, not only when judged.
    ElementForm& refusesOtherVersions()
    {
        m_refusesOtherVersions = true;
        return *this;
    }

private:
    friend class XmlComposite;
    friend class XmlVersionedComposite;
    friend class XmlList;

    struct Completion {
        Marks among;
        Marks marks;
    };

    void addParticle(const Particle& particle, Marks needed);

    const Wording& m_wording;
    std::vector<Row> m_rows;
    Marks m_nextMark = 1;          ///< of the particles
    Marks m_requiredParticles = 0; ///< all marks of those
    std::vector<Completion> m_completions;
    std::vector<InnerEnd> m_innerEnds;
    CharactersHandler m_onCharacters = [](XmlElementBase&, ElementReader&, Marks) { return Marks(0); };
    void (*m_whenComplete)(XmlElementBase&) = [](XmlElementBase&) {};
    bool m_refusesOtherVersions = false;
    QString m_tooFew;
};

} // namespace ArvXml
