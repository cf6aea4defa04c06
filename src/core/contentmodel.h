#pragma once

#include "core/binding.h"
#include "core/neverdestroyed.h"

#include <initializer_list>
#include <utility>
#include <vector>

/// \file
/// Content models: which children an element has, in which order, how often, and what they are bound to.
///
/// Nearly all are made of particles: sequence, choice (oneOf) and repetition. Where the protocol is odd, a model lists
/// rows instead. A row is a child tag with a gate: which marks must not, or must, be set when the child comes, and
/// which it sets. Marks are bits that an element names for itself, most often one for each child ("has been read").

namespace ArvXml {

using Marks = quint32;

enum class Occurrence { Optional, Required, Repeated, AtLeastOnce };

/// A child tag, its gate, and what is bound to it.
struct Row {
    QString tag;
    Binding binding;
    QString writtenTag;
    Marks sets = 0;
    Marks bars = 0;
    Marks needs = 0;
    Occurrence occurrence = Occurrence::Optional;
    int choice = 0;  ///< rows with the same number, other than 0, exclude each other
    QString wrapper; ///< the tag around it, if the element reads that itself
    bool isReportedFirst = false;

    Row(const char* name, const Binding& held)
        : tag(QString::fromLatin1(name))
        , binding(held)
        , writtenTag(held.writtenTag ? QString::fromLatin1(held.writtenTag) : tag)
    {
    }

    /// The marks that reading the child sets.
    Row& marks(Marks marks) { return sets = marks, *this; }
    /// The child is refused when any of these is set.
    Row& refusedAfter(Marks marks) { return bars = marks, *this; }
    /// The child is refused unless all of these are set.
    Row& onlyAfter(Marks marks) { return needs = marks, *this; }

    // How often it comes, and which tag is around it, for those who read the model: the gates alone decide what is
    // read.
    Row& required() { return occurrence = Occurrence::Required, *this; }
    Row& repeated() { return occurrence = Occurrence::Repeated, *this; }
    Row& atLeastOnce() { return occurrence = Occurrence::AtLeastOnce, *this; }
    Row& alternative(int number) { return choice = number, *this; }
    Row& within(const char* tagAround) { return wrapper = QString::fromLatin1(tagAround), *this; }

    bool isOpen(Marks read) const { return (read & bars) == 0 && (read & needs) == needs; }
};

/// The end tag of a child that the element reads itself.
struct WrapperEnd {
    QString tag;
    Marks needs = 0;
    Marks cleared = 0;
    Marks sets = 0;
    void (*effect)(XmlElementBase& owner) = [](XmlElementBase&) {};

    explicit WrapperEnd(const char* name)
        : tag(QString::fromLatin1(name))
    {
    }

    /// The tag is refused unless all of these are set.
    WrapperEnd& onlyAfter(Marks marks) { return needs = marks, *this; }
    WrapperEnd& clears(Marks marks) { return cleared = marks, *this; }
    WrapperEnd& marks(Marks marks) { return sets = marks, *this; }
    /// What happens then.
    WrapperEnd& then(void (*action)(XmlElementBase&)) { return effect = action, *this; }
};

/// A particle of a content model: a child, or a choice between several, with how often it may come.
struct Particle {
    struct Child {
        const char* tag;
        Binding binding;
    };

    std::vector<Child> alternatives; ///< which share one place: only one of them comes
    Occurrence occurrence;
};
inline Particle required(const char* tag, const Binding& binding)
{
    return {{{tag, binding}}, Occurrence::Required};
}
inline Particle optional(const char* tag, const Binding& binding)
{
    return {{{tag, binding}}, Occurrence::Optional};
}
/// Any number of them, none included.
inline Particle repeated(const char* tag, const Binding& binding)
{
    return {{{tag, binding}}, Occurrence::Repeated};
}
/// One of these children, and only one.
inline Particle oneOf(std::vector<Particle::Child> alternatives)
{
    return {std::move(alternatives), Occurrence::Required};
}
inline Particle optional(Particle particle)
{
    particle.occurrence = Occurrence::Optional;
    return particle;
}

/// The content model of an element, with its attributes. Built once for each class, by chained calls.
class ContentModel {
public:
    /// Handles character data; returns the marks to set.
    using CharactersHandler = Marks (*)(XmlElementBase& owner, ElementReader& in, Marks read);

    explicit ContentModel(const Wording& wording)
        : m_wording(wording)
    {
    }

    // What stands in the start tag

    /// How attributes other than the version are read, and written behind it.
    ContentModel& attributes(void (*read)(XmlElementBase& owner, ElementReader& in),
                             void (*write)(const XmlElementBase& owner, QXmlStreamWriter& writer))
    {
        m_readAttributes = read;
        m_writeAttributes = write;
        return *this;
    }
    /// Another version than "1.0" is an error while reading, not only when judged.
    ContentModel& refusesOtherVersions()
    {
        m_refusesOtherVersions = true;
        return *this;
    }
    /// Reading resets the element first.
    ContentModel& resetBeforeReading()
    {
        m_isResetBeforeReading = true;
        return *this;
    }

    // Particles

    /// Children that come in this order, each at most once but for the repeated: a child is refused once it or one
    /// after it has been read. The end tag needs the required ones; so a required child may be passed over at first,
    /// but the end tag is refused then. Given again, the particles follow those before.
    ContentModel& sequence(std::initializer_list<Particle> particles);
    /// The same, but a child is refused, too, until the required ones before it have been read.
    ContentModel& strictSequence(std::initializer_list<Particle> particles);
    /// Children in this order inside the wrapper \a tag, while \a open is set; none is required.
    ContentModel& within(const char* tag, Marks open, std::initializer_list<Particle> particles);
    /// A child that may come at any place, any number of times.
    ContentModel& anywhere(const char* tag, const Binding& binding);
    /// At least one \a tag, any number of them; reading deletes those held. \a tooFew is the problem of an empty list.
    ContentModel& listOf(const char* tag, const Binding& binding, const char* tooFew);

    // Rows with gates of their own

    /// The children in the order of writing. Particles that follow get marks above those named here.
    ContentModel& rows(std::initializer_list<Row> rows);
    /// The end tag may come when all of \a marks are set. Given several times: when any of them fits.
    ContentModel& completeWith(Marks marks) { return completeWhen(marks, marks); }
    /// The end tag may come when of \a among exactly \a marks are set.
    ContentModel& completeWhen(Marks among, Marks marks)
    {
        m_completions.push_back({among, marks});
        return *this;
    }
    /// The end tag may come when the element, as it has been read until then, says so.
    ContentModel& completeIf(bool (*condition)(const XmlElementBase& owner))
    {
        m_condition = condition;
        return *this;
    }
    /// The end tag is refused, whatever has been read.
    ContentModel& neverComplete()
    {
        m_completions.clear();
        return *this;
    }
    ContentModel& wrapperEnds(std::initializer_list<WrapperEnd> ends)
    {
        m_wrapperEnds.insert(m_wrapperEnds.end(), ends);
        return *this;
    }
    /// The marks that are set once the start tag has been read.
    ContentModel& startsWith(Marks (*marks)(const XmlElementBase& owner))
    {
        m_firstMarks = marks;
        return *this;
    }
    /// Called when the element's own end tag has been accepted.
    ContentModel& whenComplete(void (*effect)(XmlElementBase&))
    {
        m_whenComplete = effect;
        return *this;
    }
    /// Character data is ignored unless this is given.
    ContentModel& onCharacters(CharactersHandler handler)
    {
        m_onCharacters = handler;
        return *this;
    }

    // Reports

    /// syntaxError() reports these children first, in this order, and the others as they are written.
    ContentModel& reportedFirst(std::initializer_list<const char*> tags);

    const std::vector<Row>& allRows() const { return m_rows; }

private:
    friend class XmlComposite;
    friend class XmlVersionedComposite;
    friend class XmlList;

    struct Completion {
        Marks among;
        Marks marks;
    };

    bool mayEnd(const XmlElementBase& owner, Marks read) const;
    /// Adds the rows of a particle, which are refused unless all of \a needed are set.
    void addParticle(const Particle& particle, Marks needed, const QString& wrapper = {});

    const Wording& m_wording;
    std::vector<Row> m_rows;
    std::vector<std::size_t> m_reportedFirst; ///< where these rows stand
    Marks m_nextMark = 1;                     ///< of the particles
    Marks m_requiredParticles = 0;            ///< all marks of those
    int m_choices = 0;
    std::vector<Completion> m_completions;
    std::vector<WrapperEnd> m_wrapperEnds;
    void (*m_readAttributes)(XmlElementBase&, ElementReader&) = [](XmlElementBase&, ElementReader&) {};
    void (*m_writeAttributes)(const XmlElementBase&, QXmlStreamWriter&) = [](const XmlElementBase&, QXmlStreamWriter&) {
    };
    Marks (*m_firstMarks)(const XmlElementBase&) = [](const XmlElementBase&) { return Marks(0); };
    bool (*m_condition)(const XmlElementBase&) = [](const XmlElementBase&) { return true; };
    CharactersHandler m_onCharacters = [](XmlElementBase&, ElementReader&, Marks) { return Marks(0); };
    void (*m_whenComplete)(XmlElementBase&) = [](XmlElementBase&) {};
    bool m_refusesOtherVersions = false;
    bool m_isResetBeforeReading = false;
    bool m_areItemsReplaced = false;
    QString m_tooFew;
};

} // namespace ArvXml
