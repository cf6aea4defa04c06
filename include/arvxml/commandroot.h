#pragma once

/// \file
/// The document element of command documents.

#include "arvxml/admincommand.h"
#include "arvxml/calccommand.h"
#include "arvxml/createdelete.h"
#include "arvxml/propmodel.h"

namespace ArvXml {

/// The document element of a command document: an optional envelope, then the commands, grouped by kind in the order
/// shown, each group optional. Every command except the propagation model may be repeated. The caller chooses the tag.
/// \code{.xml}
/// <Commands>
///     <ORDER_DEF>...</ORDER_DEF>
///     <Administrative>...</Administrative>
///     <Create>...</Create>
///     <Delete>...</Delete>
///     <PropagationModel>...</PropagationModel>
///     <Calculate>...</Calculate>
/// </Commands>
/// \endcode
/// A root is filled only by reading or copying: a program that writes commands writes the document element itself, with
/// the envelope and the commands as children. Reading does not reset the root: commands are appended, envelope and
/// model replaced. Each command read gets a copy of the envelope. An empty root is valid.
class ARVXML_EXPORT XmlCmdRoot : public XmlComposite {
public:
    XmlCmdRoot();

    bool hasOrderDef() const { return m_orderDef.isPresent(); }
    /// The envelope, tag "ORDER_DEF"; null when absent.
    const XmlOrderDef* orderDef() const { return m_orderDef.get(); }
    void setOrderDef(const XmlOrderDef& orderDef) { m_orderDef.set(orderDef); }

    /// The commands of one kind in document order, owned by the root until it is reset, assigned to or destroyed.
    const QList<XmlCmdAdmin*> getAdministrativeCmds() const { return m_administrative.items(); }
    const QList<XmlCmdCreate*> getCreateCmds() const { return m_creates.items(); }
    /// As above, but the root neither validates nor reports delete commands.
    const QList<XmlCmdDelete*> getDeleteCmds() const { return m_deletes.items(); }
    const QList<XmlCmdCalc*> getCalculationCmds() const { return m_calculations.items(); }

    /// The propagation model command, tag "PropagationModel"; null when absent. Reading replaces it.
    const XmlPropModelType* getPropagationModelCmd() const { return m_propModel.get(); }

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlOrderDef> m_orderDef;
    OwnedList<XmlCmdAdmin> m_administrative;
    OwnedList<XmlCmdCreate> m_creates;
    OwnedList<XmlCmdDelete> m_deletes;
    OptionalChild<XmlPropModelType> m_propModel;
    OwnedList<XmlCmdCalc> m_calculations;
};

} // namespace ArvXml
