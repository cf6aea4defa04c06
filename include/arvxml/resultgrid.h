#pragma once

/// \file
/// The spacing of result grids.

#include "arvxml/enumeration.h"

namespace ArvXml {

/// The spacing of a result grid: `<ResultGrid>100</ResultGrid>`. See the enumerators for the texts. Other texts are the
/// reader error "Illegal enum value.". Problem: "Illegal grid size.".
class ARVXML_EXPORT XmlResultGridType : public XmlEnumeration {
public:
    /// The spacings, with their texts.
    enum GridSize : int {
        Undefined = 0, ///< Not set.
        Grid10 = 1,    ///< "10"
        Grid50 = 2,    ///< "50"
        Grid100 = 3,   ///< "100"
        Grid200 = 4,   ///< "200"
        Grid500 = 5,   ///< "500"
        Grid1000 = 6,  ///< "1000"
    };

    XmlResultGridType();

    /// The spacing; Undefined by default.
    GridSize size() { return static_cast<GridSize>(m_value); }
    GridSize size() const { return static_cast<GridSize>(m_value); }
    void setSize(GridSize size) { m_value = size; }

private:
    const EnumerationRules& rules() const override;
};

} // namespace ArvXml
