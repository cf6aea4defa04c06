#pragma once

#include "arvxml/element.h"

namespace ArvXml {

/// The spacing of a result grid: `<ResultGrid>100</ResultGrid>`.
///
/// Texts "10", "50", "100", "200", "500", "1000"; another text is the reader error "Illegal enum
/// value.". An undefined spacing is reported as "Illegal grid size.".
class ARVXML_EXPORT XmlResultGridType : public XmlEnumeration {
public:
    enum GridSize : int {
        Undefined = 0,
        Grid10 = 1,
        Grid50 = 2,
        Grid100 = 3,
        Grid200 = 4,
        Grid500 = 5,
        Grid1000 = 6,
    };

    XmlResultGridType();
    GridSize size() { return static_cast<GridSize>(m_value); }
    GridSize size() const { return static_cast<GridSize>(m_value); }
    void setSize(GridSize size) { m_value = size; }

protected:
    const EnumerationRules& rules() const override;
};

} // namespace ArvXml
