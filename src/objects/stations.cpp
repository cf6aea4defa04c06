#include "arvxml/stations.h"

#include "core/elementform.h"

namespace ArvXml {

XmlStationType::XmlStationType()
    : XmlComposite(QStringLiteral("XmlStationType"))
{
}

const ElementForm& XmlStationType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(compositeWording)
            .sequence({
                required("Name", child<&XmlStationType::m_objName>()),
                optional("SignalPath", reused<&XmlStationType::m_signalPath>()),
                required("Position", child<&XmlStationType::m_position>()),
                optional("RxParameter", reused<&XmlStationType::m_rxParam>()),
                optional("DFprecision", reused<&XmlStationType::m_dfPrecision>()),
                optional("StationInterlink", reused<&XmlStationType::m_interlink>()),
            });
    return form;
}

XmlReceiverType::XmlReceiverType()
    : XmlSite(QStringLiteral("XmlReceiverType"))
{
}

const ElementForm& XmlReceiverType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .sequence({
                required("Name", child<&XmlReceiverType::m_objName>()),
                required("Position", child<&XmlReceiverType::m_position>()),
                required("RxParameter", child<&XmlReceiverType::m_rxParam>()),
                optional("StationInterlink", renewed<&XmlReceiverType::m_interlink>()),
            })
            .refusesOtherVersions();
    return form;
}

} // namespace ArvXml
