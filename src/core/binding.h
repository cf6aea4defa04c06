#pragma once

#include "arvxml/element.h"
#include "core/elementreader.h"

#include <QtCore/QXmlStreamWriter>

#include <functional>
#include <memory>
#include <type_traits>

/// \file
/// Bindings: what each operation does with the content of one tag of an element.

namespace ArvXml {

class EnumerationTexts;

template <typename Member>
inline constexpr bool isOptionalChild = false;
template <typename T>
inline constexpr bool isOptionalChild<OptionalChild<T>> = true;
template <typename T>
inline constexpr bool isOptionalChild<const OptionalChild<T>> = true;

/// Calls \a function with each child in \a member: a child that is always present, an optional child, or a list.
template <typename Member, typename Function>
void forEachChild(Member& member, Function function)
{
    if constexpr (std::is_base_of_v<IXmlElement, Member>) {
        function(member);
    } else if constexpr (isOptionalChild<Member>) {
        if (member.isPresent())
            function(*member.get());
    } else {
        for (auto* item : member.items())
            function(*item);
    }
}

template <typename Member>
void writeMember(const Member& member, QXmlStreamWriter& writer, const QString& tag)
{
    forEachChild(member, [&](const auto& child) { child.produceXml(writer, tag); });
}

template <typename Member>
bool isMemberValid(const Member& member)
{
    bool isValid = true;
    forEachChild(member, [&](const auto& child) { isValid = isValid && child.isValid(); });
    return isValid;
}

/// The problems of all children in \a member.
template <typename Member>
QString memberError(Member& member)
{
    QString errors;
    forEachChild(member, [&](auto& child) {
        const QString error = child.syntaxError();
        if (!errors.isEmpty() && !error.isEmpty())
            errors += QLatin1Char('\n');
        errors += error;
    });
    return errors;
}

template <typename Member>
void resetMember(Member& member)
{
    if constexpr (std::is_base_of_v<IXmlElement, Member>)
        member.reset();
    else
        member.clear();
}

/// The number of children in \a member, not counting one that is always present.
template <typename Member>
int memberCount(const Member& member)
{
    int count = 0;
    if constexpr (!std::is_base_of_v<IXmlElement, Member>)
        forEachChild(member, [&](const auto&) { ++count; });
    return count;
}

/// The kind of content of a tag.
struct ContentKind {
    enum Kind { Empty, Text, Integer, Real, Time, Choice, Element, Wrapper, Anything };

    Kind kind = Empty;
    const EnumerationTexts* texts = nullptr;          ///< of a choice
    std::unique_ptr<XmlElement> (*newElement)() = {}; ///< creates an object of the class of an element
};

/// Binds the content of one tag to its owner. Functions that are not set do nothing.
struct Binding {
    ContentKind holds;
    /// Called at the start tag of the child.
    void (*read)(XmlElementBase& owner, ElementReader& in, const QString& tag) = [](auto&, auto&, auto&) {};
    void (*write)(const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) = [](auto&, auto&, auto&) {
    };
    bool (*isValid)(const XmlElementBase& owner) = [](auto&) { return true; };
    QString (*syntaxError)(XmlElementBase& owner) = [](auto&) { return QString(); };
    void (*reset)(XmlElementBase& owner) = [](auto&) {};
    /// The number of children, not counting one that is always present.
    int (*count)(const XmlElementBase& owner) = [](auto&) { return 0; };
    /// The tag for writing, if it differs from the one for reading.
    const char* writtenTag = nullptr;
};

/// The class and the type of a pointer to a member.
template <typename Pointer>
struct PointerToMember;
template <typename T, typename Class>
struct PointerToMember<T Class::*> {
    using Owner = Class;
    using Member = T;
};

/// The class of the children in a member.
template <typename Member>
struct ChildOf {
    using Type = Member;
};
template <typename T>
struct ChildOf<OptionalChild<T>> {
    using Type = T;
};
template <typename T, typename Pointers>
struct ChildOf<OwnedList<T, Pointers>> {
    using Type = T;
};

/// The member of an owner, of which bindings only know that it is an element.
template <auto Member>
auto& memberOf(XmlElementBase& owner)
{
    return static_cast<typename PointerToMember<decltype(Member)>::Owner&>(owner).*Member;
}
template <auto Member>
const auto& memberOf(const XmlElementBase& owner)
{
    return static_cast<const typename PointerToMember<decltype(Member)>::Owner&>(owner).*Member;
}

// Bindings of child elements

/// Everything except reading.
template <auto Member>
Binding heldIn()
{
    using Child = typename ChildOf<typename PointerToMember<decltype(Member)>::Member>::Type;
    Binding binding;
    binding.holds.kind = ContentKind::Element;
    if constexpr (std::is_default_constructible_v<Child>)
        binding.holds.newElement = []() -> std::unique_ptr<XmlElement> { return std::make_unique<Child>(); };
    binding.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) {
        writeMember(memberOf<Member>(owner), writer, tag);
    };
    binding.isValid = [](const XmlElementBase& owner) { return isMemberValid(memberOf<Member>(owner)); };
    binding.syntaxError = [](XmlElementBase& owner) { return memberError(memberOf<Member>(owner)); };
    binding.reset = [](XmlElementBase& owner) { resetMember(memberOf<Member>(owner)); };
    binding.count = [](const XmlElementBase& owner) { return memberCount(memberOf<Member>(owner)); };
    return binding;
}

/// A child that is always present and read in place.
template <auto Member>
Binding child()
{
    Binding binding = heldIn<Member>();
    binding.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Member>(owner).processXml(in.stream(), tag);
    };
    return binding;
}

/// An optional child that is created if absent, and read in place otherwise.
template <auto Member>
Binding reused()
{
    Binding binding = heldIn<Member>();
    binding.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Member>(owner).obtain().processXml(in.stream(), tag);
    };
    return binding;
}

/// An optional child that is replaced by a new one when read.
template <auto Member>
Binding renewed()
{
    Binding binding = heldIn<Member>();
    binding.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Member>(owner).renew().processXml(in.stream(), tag);
    };
    return binding;
}

/// One of two optional children: reading it removes the other.
template <auto Member, auto Other>
Binding readInsteadOf()
{
    Binding binding = heldIn<Member>();
    binding.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Other>(owner).clear();
        memberOf<Member>(owner).obtain().processXml(in.stream(), tag);
    };
    return binding;
}

/// Repeated children: each one read is appended, even if reading it fails.
template <auto Member>
Binding items()
{
    Binding binding = heldIn<Member>();
    binding.read = [](XmlElementBase& owner, ElementReader& in, const QString& tag) {
        memberOf<Member>(owner).append().processXml(in.stream(), tag);
    };
    return binding;
}

// Bindings of values. Owner is the class of the element, with which the functions are called.

/// A text that is passed to \a Take, with the reader if it can raise errors; it is not written.
template <typename Owner, auto Take>
Binding takenBy()
{
    Binding binding;
    binding.holds.kind = ContentKind::Text;
    binding.read = [](XmlElementBase& owner, ElementReader& in, const QString&) {
        if constexpr (std::is_invocable_v<decltype(Take), Owner&, const QString&, ElementReader&>)
            std::invoke(Take, static_cast<Owner&>(owner), in.childText(), in);
        else
            std::invoke(Take, static_cast<Owner&>(owner), in.childText());
    };
    return binding;
}

/// A text: \a Take receives the text read, \a Give returns the text to write.
template <typename Owner, auto Take, auto Give>
Binding text()
{
    Binding binding = takenBy<Owner, Take>();
    binding.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) {
        writer.writeTextElement(tag, std::invoke(Give, static_cast<const Owner&>(owner)));
    };
    return binding;
}

/// Content written by \a Write; reading is up to the model.
template <typename Owner, auto Write>
Binding writtenBy()
{
    Binding binding;
    binding.write = [](const XmlElementBase& owner, QXmlStreamWriter& writer, const QString& tag) {
        std::invoke(Write, static_cast<const Owner&>(owner), writer, tag);
    };
    return binding;
}

/// An empty child: \a Function is called when it is read.
template <typename Owner, auto Function>
Binding called()
{
    Binding binding;
    binding.read = [](XmlElementBase& owner, ElementReader&, const QString&) {
        std::invoke(Function, static_cast<Owner&>(owner));
    };
    return binding;
}

/// A wrapper whose content and end tag the element reads itself.
inline Binding entered()
{
    Binding binding;
    binding.holds.kind = ContentKind::Wrapper;
    return binding;
}

/// A child that is ignored.
inline Binding skipped()
{
    Binding binding;
    binding.holds.kind = ContentKind::Anything;
    binding.read = [](XmlElementBase&, ElementReader& in, const QString&) { in.skipChild(); };
    return binding;
}

// Deviations: the same, but ...

/// ... its content is of another kind.
inline Binding as(ContentKind::Kind kind, Binding binding)
{
    binding.holds.kind = kind;
    return binding;
}

/// ... its text is one of these \a texts.
inline Binding asChoice(const EnumerationTexts& texts, Binding binding)
{
    binding.holds.kind = ContentKind::Choice;
    binding.holds.texts = &texts;
    return binding;
}

/// ... reset() does not change it.
inline Binding keptByReset(Binding binding)
{
    binding.reset = Binding().reset;
    return binding;
}

/// ... syntaxError() reports it elsewhere, or not at all.
inline Binding unreported(Binding binding)
{
    binding.syntaxError = Binding().syntaxError;
    return binding;
}

/// ... isValid() ignores it.
inline Binding unjudged(Binding binding)
{
    binding.isValid = Binding().isValid;
    return binding;
}

/// ... it is written with another tag than it is read.
inline Binding writtenAs(const char* tag, Binding binding)
{
    binding.writtenTag = tag;
    return binding;
}

} // namespace ArvXml
