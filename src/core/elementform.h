#pragma once

#include "arvxml/element.h"
#include "core/elementreader.h"

#include <QtCore/QXmlStreamWriter>

#include <functional>
#include <initializer_list>
#include <type_traits>
#include <vector>

/// \file
/// The wire form of a composite element: a table with a row for each child tag.
///
/// A row says under which tag the child stands, which marks must not (or must) be set when it comes,
/// which marks it sets, and what the five operations do with it. Marks are bits that an element
/// names for itself, most often one for each child ("has been read").

namespace ArvXml {

using Marks = quint32;

// What the operations do with a child that is always present, may be absent, or is repeated.

inline void writeMember(const IXmlElement& child, QXmlStreamWriter& writer, const QString& tag)
{
    child.produceXml(writer, tag);
}
template <typename T>
void writeMember(const OptionalChild<T>& child, QXmlStreamWriter& writer, const QString& tag)
{
    if (child.isPresent())
        child.get()->produceXml(writer, tag);
}
template <typename T, typename Pointers>
void writeMember(const OwnedList<T, Pointers>& list, QXmlStreamWriter& writer, const QString& tag)
{
    for (const T* item : list.items())
        item->produceXml(writer, tag);
}

inline bool isMemberValid(const IXmlElement& child)
{
    return child.isValid();
}
template <typename T>
bool isMemberValid(const OptionalChild<T>& child)
{
    return !child.isPresent() || child.get()->isValid();
}
template <typename T, typename Pointers>
bool isMemberValid(const OwnedList<T, Pointers>& list)
{
    for (const T* item : list.items()) {
        if (!item->isValid())
            return false;
    }
    return true;
}

inline QString memberError(IXmlElement& child)
{
    return child.syntaxError();
}
template <typename T>
QString memberError(OptionalChild<T>& child)
{
    return child.isPresent() ? child.get()->syntaxError() : QString();
}
template <typename T, typename Pointers>
QString memberError(OwnedList<T, Pointers>& list)
{
    QString errors;
    for (T* item : list.items()) {
        const QString error = item->syntaxError();
        if (!errors.isEmpty() && !error.isEmpty())
            errors += QLatin1Char('\n');
        errors += error;
    }
    return errors;
}

inline void resetMember(IXmlElement& child)
{
    child.reset();
}
template <typename T>
void resetMember(OptionalChild<T>& child)
{
    child.clear();
}
template <typename T, typename Pointers>
void resetMember(OwnedList<T, Pointers>& list)
{
    list.clear();
}

inline int memberCount(const IXmlElement&)
{
    return 1;
}
template <typename T>
int memberCount(const OptionalChild<T>& child)
{
    return child.isPresent() ? 1 : 0;
}
template <typename T, typename Pointers>
int memberCount(const OwnedList<T, Pointers>& list)
{
    return list.size();
}

/// How many of the optional children are present.
template <typename... T>
int presentCount(const OptionalChild<T>&... children)
{
    return (0 + ... + memberCount(children));
}

/// What the operations do with what stands under one tag. Everything not set does nothing.
struct Content {
    /// Called on the child's start tag.
    void (*read)(XmlElementBase& owner, ElementReader& in, const QString& tag) = [](auto&, auto&, auto&) {};
    void (*write)(const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) = [](auto&, auto&, auto&) {
    };
    bool (*isValid)(const XmlElementBase& owner) = [](auto&) { return true; };
    QString (*syntaxError)(XmlElementBase& owner) = [](auto&) { return QString(); };
    void (*reset)(XmlElementBase& owner) = [](auto&) {};
    /// How many children are held.
    int (*count)(const XmlElementBase& owner) = [](auto&) { return 0; };
    /// The tag under which it is written, where that differs from the tag read.
    const char* writtenTag = nullptr;
};

/// The class that a pointer to a member belongs to.
template <typename Pointer>
struct OwnerOf;
template <typename T, typename Class>
struct OwnerOf<T Class::*> {
    using Type = Class;
};

/// The object and the member behind a row; rows know their owner only as an element.
template <auto Member>
auto& memberOf(XmlElementBase& owner)
{
    return static_cast<typename OwnerOf<decltype(Member)>::Type&>(owner).*Member;
}
template <auto Member>
const auto& memberOf(const XmlElementBase& owner)
{
    return static_cast<const typename OwnerOf<decltype(Member)>::Type&>(owner).*Member;
}

/// A member in all but reading, which differs.
template <auto Member>
Content heldIn()
{
    Content content;
    content.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) {
        writeMember(memberOf<Member>(owner), writer, tag);
    };
    content.isValid = [](const XmlElementBase& owner) { return isMemberValid(memberOf<Member>(owner)); };
    content.syntaxError = [](XmlElementBase& owner) { return memberError(memberOf<Member>(owner)); };
    content.reset = [](XmlElementBase& owner) { resetMember(memberOf<Member>(owner)); };
    content.count = [](const XmlElementBase& owner) { return memberCount(memberOf<Member>(owner)); };
    return content;
}

/// A child that is always present and read in place.
template <auto Member>
Content child()
{
    Content content = heldIn<Member>();
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Member>(owner).processXml(in.stream(), tag);
    };
    return content;
}

/// An optional child that is made when absent and read in place otherwise.
template <auto Member>
Content reused()
{
    Content content = heldIn<Member>();
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Member>(owner).obtain().processXml(in.stream(), tag);
    };
    return content;
}

/// An optional child that is replaced by a new one on reading.
template <auto Member>
Content renewed()
{
    Content content = heldIn<Member>();
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Member>(owner).renew().processXml(in.stream(), tag);
    };
    return content;
}

/// Repeated children: each one read is appended, also when its reading failed.
template <auto Member>
Content items()
{
    Content content = heldIn<Member>();
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Member>(owner).append().processXml(in.stream(), tag);
    };
    return content;
}

/// A child with a plain text: \a Take gets the text read (and, if it wants to raise errors, the
/// reader), \a Give returns the text to write.
template <typename Owner, auto Take, auto Give>
Content text()
{
    Content content;
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString&) {
        if constexpr (std::is_invocable_v<decltype(Take), Owner&, const QString&, ElementReader&>)
            std::invoke(Take, static_cast<Owner&>(owner), in.childText(), in);
        else
            std::invoke(Take, static_cast<Owner&>(owner), in.childText());
    };
    content.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) {
        writer.writeTextElement(tag, std::invoke(Give, static_cast<const Owner&>(owner)));
    };
    return content;
}

/// A child with a plain text that a member function of the owner takes; it is not written.
template <auto Take>
Content takenBy()
{
    Content content;
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString&) {
        auto& self = static_cast<typename OwnerOf<decltype(Take)>::Type&>(owner);
        if constexpr (std::is_invocable_v<decltype(Take), decltype(self), QString, ElementReader&>)
            (self.*Take)(in.childText(), in);
        else
            (self.*Take)(in.childText());
    };
    return content;
}

/// A child that a member function of the owner reads; it is not written.
template <auto Read>
Content readBy()
{
    Content content;
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString&) {
        (static_cast<typename OwnerOf<decltype(Read)>::Type&>(owner).*Read)(in.stream());
    };
    return content;
}

/// A child that a member function of the owner writes; reading it just sets the marks.
template <auto Write>
Content writtenBy()
{
    Content content;
    content.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) {
        (static_cast<const typename OwnerOf<decltype(Write)>::Type&>(owner).*Write)(writer, tag);
    };
    return content;
}

/// A child whose content means nothing to us.
inline Content skipped()
{
    Content content;
    content.read = [](XmlElementBase&, ElementReader& in, const QString&) { in.skipChild(); };
    return content;
}

/// Calls a member function of the owner.
template <auto Function>
void callOwner(XmlElementBase& owner)
{
    (static_cast<typename OwnerOf<decltype(Function)>::Type&>(owner).*Function)();
}

/// A tag that says something by standing there.
template <auto Function>
Content called()
{
    Content content;
    content.read = [](XmlElementBase& owner, ElementReader&, const QString&) { callOwner<Function>(owner); };
    return content;
}

/// The same, but reset() leaves it as it is.
inline Content keptByReset(Content content)
{
    content.reset = Content().reset;
    return content;
}

/// The same, but the element reports the child's problems in another place than the form's order.
inline Content reportedApart(Content content)
{
    content.syntaxError = Content().syntaxError;
    return content;
}

/// The same, but written under another tag than it is read.
inline Content writtenAs(const char* tag, Content content)
{
    content.writtenTag = tag;
    return content;
}

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
        , writtenTag(QString::fromLatin1(held.writtenTag ? held.writtenTag : name))
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

/// A child of a plain sequence.
struct Step {
    const char* tag;
    bool required;
    Content content;
};
inline Step required(const char* tag, const Content& content)
{
    return {tag, true, content};
}
inline Step optional(const char* tag, const Content& content)
{
    return {tag, false, content};
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

    /// The children in the order of writing, each with its gate.
    ElementForm& children(std::initializer_list<Row> rows)
    {
        m_rows = rows;
        return *this;
    }

    /// Children that come in this order, each at most once: a child is refused once it or one that
    /// follows it has been read. The end tag needs the required ones.
    ElementForm& sequence(std::initializer_list<Step> steps);

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

    const Wording& m_wording;
    std::vector<Row> m_rows;
    std::vector<Completion> m_completions;
    std::vector<InnerEnd> m_innerEnds;
    CharactersHandler m_onCharacters = [](XmlElementBase&, ElementReader&, Marks) { return Marks(0); };
    void (*m_whenComplete)(XmlElementBase&) = [](XmlElementBase&) {};
    bool m_refusesOtherVersions = false;
    QString m_tooFew;
};

/// The accepted texts of an enumeration, the text of value 1 first.
class EnumerationTexts {
public:
    explicit EnumerationTexts(std::initializer_list<const char*> texts);

    /// The value of \a text, 0 when it is not among the texts.
    template <typename Text>
    int value(const Text& text) const
    {
        for (std::size_t i = 1; i < m_texts.size(); ++i) {
            if (text == m_texts[i])
                return static_cast<int>(i);
        }
        return 0;
    }
    /// The text of \a value, "UNDEFINED" when it has none.
    const QString& text(int value) const;

private:
    std::vector<QString> m_texts;
};

/// What is particular to one enumeration element.
struct EnumerationRules {
    EnumerationTexts texts;
    const char* unknownText;    ///< raised for a text that is not among them
    const char* undefinedError; ///< the problem of value 0
};

} // namespace ArvXml
