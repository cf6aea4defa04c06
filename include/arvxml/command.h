#pragma once

/// \file
/// The bases of the commands.

#include "arvxml/composite.h"
#include "arvxml/names.h"
#include "arvxml/orderdef.h"

namespace ArvXml {

/// The base of all commands: a reference, by which a response refers to the command, and a copy of the document's order
/// envelope. Commands neither read nor write the envelope: the document root hands each of them a copy.
class ARVXML_EXPORT XmlCommand : public XmlComposite {
public:
    /// The reference, 1 to 50 characters.
    const XmlReferenceType& cmdReference() const { return m_reference; }
    void setCmdReference(const XmlReferenceType& reference) { m_reference = reference; }

    bool hasOrderDef() const { return m_orderDef.isPresent(); }
    /// The envelope of the command's document; null when absent.
    const XmlOrderDef* orderDef() const { return m_orderDef.get(); }
    void setOrderDef(const XmlOrderDef& orderDef) { m_orderDef.set(orderDef); }

    /// Resets the reference and the content, and removes the envelope.
    void reset() override;

protected:
    using XmlComposite::XmlComposite;

    OptionalChild<XmlOrderDef> m_orderDef;
    XmlReferenceType m_reference;
};

/// The base of the commands that hold exactly one of several elements, followed by the reference. With none or more the
/// problem is "Too many or too few elements.". Setting one element never removes another.
class ARVXML_EXPORT XmlChoiceCommand : public XmlCommand {
public:
    bool isValid() const override;

protected:
    using XmlCommand::XmlCommand;

    void addErrors() override;
};

} // namespace ArvXml
