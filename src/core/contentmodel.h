#pragma once

#include "core/binding.h"
#include "core/neverdestroyed.h"

#include <initializer_list>
#include <utility>
#include <vector>

/// \file
/// Content models: the children of an element, their order, how often they appear, and their bindings.
///
/// Most are made of particles: sequence, choice (oneOf) and repetition. Where the protocol is odd, a model lists rows
/// instead. A row is a child tag with a gate: the marks that must not, or must, be set when the child is read, and
/// those that it sets. Marks are bits named by the element, usually one for each child ("has been read").

namespace ArvXml {

using Marks = quint32;

enum class Occurrence { Optional, Required, Repeated, AtLeastOnce };

/// A child tag with its binding and its gate.
struct Row {
    QString tag;
    Binding binding;
    QString writtenTag;
    Marks sets = 0;
    Marks bars = 0;
    Marks needs = 0;
    Occurrence occurrence = Occurrence::Optional;
    int choice = 0;  ///< rows with the same number exclude each other; 0 for none
    QString wrapper; ///< the tag around it, if the element reads that tag itself
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

    // These only describe how often the child appears, and inside which tag: the gates alone decide what is read.
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
    /// Sets a function to call.
    WrapperEnd& then(void (*action)(XmlElementBase&)) { return effect = action, *this; }
};

/// A particle of a content model: a child or a choice, and how often it may appear.
struct Particle {
    struct Child {
        const char* tag;
        Binding binding;
    };

    std::vector<Child> alternatives; ///< of which only one appears
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
/// Any number, including none.
inline Particle repeated(const char* tag, const Binding& binding)
{
    return {{{tag, binding}}, Occurrence::Repeated};
}
/// Exactly one of these children.
inline Particle oneOf(std::vector<Particle::Child> alternatives)
{
    return {std::move(alternatives), Occurrence::Required};
}
inline Particle optional(Particle particle)
{
    particle.occurrence = Occurrence::Optional;
    return particle;
}

/// The content model of an element, including its attributes. Built once for each class, by chained calls.
class ContentModel {
public:
    /// Handles character data; returns the marks to set.
    using CharactersHandler = Marks (*)(XmlElementBase& owner, ElementReader& in, Marks read);

    explicit ContentModel(const Wording& wording)
        : m_wording(wording)
    {
    }

    // Start tag

    /// Functions to read and write the attributes other than the version, which is written first.
    ContentModel& attributes(void (*read)(XmlElementBase& owner, ElementReader& in),
                             void (*write)(const XmlElementBase& owner, QXmlStreamWriter& writer))
    {
        m_readAttributes = read;
        m_writeAttributes = write;
        return *this;
    }
    /// Versions other than "1.0" are refused on reading, too, not only reported as a problem.
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

    /// Children in this order, each at most once unless repeated: a child is refused after itself or a later one. A
    /// required child may be passed over, but then the end tag is refused. Further calls add particles after these.
    ContentModel& sequence(std::initializer_list<Particle> particles);
    /// The same, but a child is also refused until the required ones before it have been read.
    ContentModel& strictSequence(std::initializer_list<Particle> particles);
    /// Children in this order inside the wrapper \a tag, while the mark \a open is set; none is required.
    ContentModel& within(const char* tag, Marks open, std::initializer_list<Particle> particles);
    /// A child that may appear at any place, any number of times.
    ContentModel& anywhere(const char* tag, const Binding& binding);
    /// One or more children with this \a tag; reading deletes the existing ones first. \a tooFew is the problem of an
    /// empty list.
    ContentModel& listOf(const char* tag, const Binding& binding, const char* tooFew);

    // Rows

    /// Children in the order of writing. Particles added later get marks other than those used here.
    ContentModel& rows(std::initializer_list<Row> rows);
    /// The end tag is accepted if all of \a marks are set. Of several such conditions, one is enough.
    ContentModel& completeWith(Marks marks) { return completeWhen(marks, marks); }
    /// The end tag is accepted if, of the marks in \a among, exactly \a marks are set.
    ContentModel& completeWhen(Marks among, Marks marks)
    {
        m_completions.push_back({among, marks});
        return *this;
    }
    /// A further condition for the end tag, on what has been read.
    ContentModel& completeIf(bool (*condition)(const XmlElementBase& owner))
    {
        m_condition = condition;
        return *this;
    }
    /// The end tag is always refused.
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
    /// A function that returns the marks to begin with, called after the start tag has been read.
    ContentModel& startsWith(Marks (*marks)(const XmlElementBase& owner))
    {
        m_firstMarks = marks;
        return *this;
    }
    /// A function to call when the end tag of the element has been accepted.
    ContentModel& whenComplete(void (*effect)(XmlElementBase&))
    {
        m_whenComplete = effect;
        return *this;
    }
    /// A function for character data, which is ignored otherwise.
    ContentModel& onCharacters(CharactersHandler handler)
    {
        m_onCharacters = handler;
        return *this;
    }

    // Problems

    /// syntaxError() reports these children first, in this order, then the others in the order of writing.
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
    /// Adds the rows of a particle, refused unless all of \a needed are set.
    void addParticle(const Particle& particle, Marks needed, const QString& wrapper = {});

    const Wording& m_wording;
    std::vector<Row> m_rows;
    std::vector<std::size_t> m_reportedFirst; ///< indexes of rows
    Marks m_nextMark = 1;                     ///< for the next particle
    Marks m_requiredParticles = 0;            ///< the marks of the required ones
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
