#pragma once

/// \file
/// The parameter of the free-space model.

#include "arvxml/parameterset.h"

namespace ArvXml {

/// The parameter of the free-space model, optional:
/// `<PropertiesFreespace><K-factor>1.3333</K-factor></PropertiesFreespace>`. Reading does not reset the set. The
/// K-factor may be repeated; the last one counts. Problem: "K-factor out of bounds".
class ARVXML_EXPORT XmlPropModelFSType : public XmlParameterSet {
public:
    XmlPropModelFSType();

    /// The effective earth radius factor, tag "K-factor": 0.1 to 5.0, default 1.3333.
    double Kfactor() const { return realValue(KFactorRow); }
    void setKfactor(double value) { setValue(KFactorRow, value); }
    bool hasKfactor() const { return isPresent(KFactorRow); }

private:
    static const ParameterTable& table();

    enum Row { KFactorRow };
};

} // namespace ArvXml
