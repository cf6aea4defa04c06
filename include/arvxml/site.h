#pragma once

/// \file
/// The base of the named sites of a plan.

#include "arvxml/composite.h"
#include "arvxml/geometry.h"
#include "arvxml/names.h"

namespace ArvXml {

/// The base of sites: a name, a position and more, in this order. If the position is read first, the name is refused.
class ARVXML_EXPORT XmlSite : public XmlVersionedComposite {
public:
    /// The name, tag "Name".
    const XmlObjNameType* objName() const { return &m_objName; }
    void setObjName(const XmlObjNameType& objName) { m_objName = objName; }

    /// The position, tag "Position".
    const XmlCoordinateType* position() const { return &m_position; }
    void setPosition(const XmlCoordinateType& position) { m_position = position; }

protected:
    using XmlVersionedComposite::XmlVersionedComposite;

    XmlObjNameType m_objName;
    XmlCoordinateType m_position;
};

} // namespace ArvXml
