#pragma once

/// \file
/// The choice of a propagation model.

#include "arvxml/command.h"
#include "arvxml/composite.h"
#include "arvxml/enumeration.h"
#include "arvxml/freespace.h"
#include "arvxml/itm.h"
#include "arvxml/okumurahata.h"
#include "arvxml/olos.h"
#include "arvxml/p1546.h"
#include "arvxml/p452.h"
#include "arvxml/p526.h"
#include "arvxml/p533.h"

namespace ArvXml {

/// A propagation model: `<SelectModel>P.1546</SelectModel>`. See the enumerators for the texts. Other texts are the
/// reader error "Illegal enum value.". Problem: "No model selected.". Unlike other enumerations it needs a start tag
/// ("Parse error (wrong position)") and is read whole: comments do not split it, and an empty text is unknown.
class ARVXML_EXPORT XmlPropModelEnumType : public XmlEnumeration {
public:
    /// The models, with their texts.
    enum Model : int {
        ModelUndefined = 0,   ///< Not set.
        ModelFreespace = 1,   ///< "Free-space"
        ModelOLOS = 2,        ///< "OLOS": optical line of sight
        ModelITM = 3,         ///< "ITM": Irregular Terrain Model
        ModelP452 = 4,        ///< "P.452": ITU-R P.452
        ModelP1546 = 5,       ///< "P.1546": ITU-R P.1546
        ModelP526 = 6,        ///< "P.526": ITU-R P.526
        ModelP533 = 7,        ///< "P.533": ITU-R P.533
        ModelOkumuraHata = 8, ///< "Okumura-Hata"
    };

    XmlPropModelEnumType();

    /// The model; ModelUndefined by default.
    Model model() { return static_cast<Model>(m_value); }
    Model model() const { return static_cast<Model>(m_value); }
    void setModel(Model model) { m_value = model; }

    void processXml(QXmlStreamReader& reader, const QString& tagName) override;

private:
    const EnumerationRules& rules() const override;
};

/// The command to choose a propagation model and set its parameters. The selection comes first, then at most one
/// parameter set ("Illegal number of elements."). Both are optional and need not match. The reference is present, and
/// required, only if the element is a command. Reading does not reset the element; children read replace existing ones.
/// \code{.xml}
/// <PropagationModel>
///     <SelectModel>P.1546</SelectModel>
///     <PropertiesP1546>
///         <K-factor>1.333</K-factor>
///         <TimePct>10.00</TimePct>
///     </PropertiesP1546>
///     <Reference>42</Reference>
/// </PropagationModel>
/// \endcode
class ARVXML_EXPORT XmlPropModelType : public XmlCommand {
public:
    /// \a isCommand makes the element a command with a reference. Reading and reset() keep this, copies take it over.
    explicit XmlPropModelType(bool isCommand);
    /// Whether the element is a command, with a reference.
    bool isCommand() const { return m_isCommand; }

    bool hasModel() const { return m_model.isPresent(); }
    /// The selection, tag "SelectModel"; null when absent.
    const XmlPropModelEnumType* model() const { return m_model.get(); }
    void setModel(const XmlPropModelEnumType& model) { m_model.set(model); }

    bool hasFreespace() const { return m_freespace.isPresent(); }
    /// Free space, tag "PropertiesFreespace"; null when absent.
    const XmlPropModelFSType* freespace() const { return m_freespace.get(); }
    void setFreespace(const XmlPropModelFSType& parameters) { m_freespace.set(parameters); }

    bool hasOLOS() const { return m_olos.isPresent(); }
    /// Optical line of sight, tag "PropertiesOLOS"; null when absent.
    const XmlPropModelOLOSType* OLOS() const { return m_olos.get(); }
    void setOLOS(const XmlPropModelOLOSType& parameters) { m_olos.set(parameters); }

    bool hasITM() const { return m_itm.isPresent(); }
    /// Irregular Terrain Model, tag "PropertiesITM"; null when absent.
    const XmlPropModelITMType* ITM() const { return m_itm.get(); }
    void setITM(const XmlPropModelITMType& parameters) { m_itm.set(parameters); }

    bool hasP452() const { return m_p452.isPresent(); }
    /// ITU-R P.452, tag "PropertiesP452"; null when absent.
    const XmlPropModelP452Type* P452() const { return m_p452.get(); }
    void setP452(const XmlPropModelP452Type& parameters) { m_p452.set(parameters); }

    bool hasP1546() const { return m_p1546.isPresent(); }
    /// ITU-R P.1546, tag "PropertiesP1546"; null when absent.
    const XmlPropModelP1546Type* P1546() const { return m_p1546.get(); }
    void setP1546(const XmlPropModelP1546Type& parameters) { m_p1546.set(parameters); }

    bool hasP526() const { return m_p526.isPresent(); }
    /// ITU-R P.526, tag "PropertiesP526"; null when absent.
    const XmlPropModelP526Type* P526() const { return m_p526.get(); }
    void setP526(const XmlPropModelP526Type& parameters) { m_p526.set(parameters); }

    bool hasP533() const { return m_p533.isPresent(); }
    /// ITU-R P.533, tag "PropertiesP533"; null when absent.
    const XmlPropModelP533Type* P533() const { return m_p533.get(); }
    void setP533(const XmlPropModelP533Type& parameters) { m_p533.set(parameters); }

    bool hasHata() const { return m_hata.isPresent(); }
    /// Okumura-Hata, tag "PropertiesOkumura"; null when absent.
    const XmlPropModelHataType* Hata() const { return m_hata.get(); }
    void setHata(const XmlPropModelHataType& parameters) { m_hata.set(parameters); }

    bool isValid() const override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    OptionalChild<XmlPropModelEnumType> m_model;
    OptionalChild<XmlPropModelFSType> m_freespace;
    OptionalChild<XmlPropModelOLOSType> m_olos;
    OptionalChild<XmlPropModelITMType> m_itm;
    OptionalChild<XmlPropModelP452Type> m_p452;
    OptionalChild<XmlPropModelP1546Type> m_p1546;
    OptionalChild<XmlPropModelP526Type> m_p526;
    OptionalChild<XmlPropModelP533Type> m_p533;
    OptionalChild<XmlPropModelHataType> m_hata;
    bool m_isCommand;
};

} // namespace ArvXml
