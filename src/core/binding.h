#pragma once

#include "arvxml/element.h"
#include "core/elementreader.h"

#include <QtCore/QXmlStreamWriter>

#include <functional>
#include <type_traits>

/// \file
/// What stands under one tag of an element, and what the operations do with it.

namespace ArvXml {

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
    return 0; // always there, so not counted
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

/// What the operations do with what stands under one tag. Everything not set does nothing.
struct Content {
    /// Called on the child's start tag.
    void (*read)(XmlElementBase& owner, ElementReader& in, const QString& tag) = [](auto&, auto&, auto&) {};
    void (*write)(const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) = [](auto&, auto&, auto&) {
    };
    bool (*isValid)(const XmlElementBase& owner) = [](auto&) { return true; };
    QString (*syntaxError)(XmlElementBase& owner) = [](auto&) { return QString(); };
    void (*reset)(XmlElementBase& owner) = [](auto&) {};
    /// How many children are held that could be absent.
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

/// One of two optional children of which only one is kept on reading: reading it removes the other.
template <auto Member, auto Other>
Content readInsteadOf()
{
    Content content = heldIn<Member>();
    content.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Other>(owner).clear();
        memberOf<Member>(owner).obtain().processXml(in.stream(), tag);
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

/// A tag that is only entered: the element reads what it holds, and its end tag, itself.
inline Content entered()
{
    return {};
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

/// The same, but syntaxError() does not report the child in its place, or not at all.
inline Content reportedApart(Content content)
{
    content.syntaxError = Content().syntaxError;
    return content;
}

/// The same, but isValid() does not look at the child.
inline Content unjudged(Content content)
{
    content.isValid = Content().isValid;
    return content;
}

/// The same, but written under another tag than it is read.
inline Content writtenAs(const char* tag, Content content)
{
    content.writtenTag = tag;
    return content;
}

} // namespace ArvXml
