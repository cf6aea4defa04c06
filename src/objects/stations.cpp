#include "arvxml/stations.h"

#include "core/contentmodel.h"

namespace ArvXml {

XmlStationType::XmlStationType()
    : XmlComposite(QStringLiteral("XmlStationType"))
{
}

const ContentModel& XmlStationType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(compositeWording)
            .sequence({
                required("Name", child<&XmlStationType::m_objName>()),
                optional("SignalPath", reused<&XmlStationType::m_signalPath>()),
                required("Position", child<&XmlStationType::m_position>()),
                optional("RxParameter", reused<&XmlStationType::m_rxParam>()),
                optional("DFprecision", reused<&XmlStationType::m_dfPrecision>()),
                optional("StationInterlink", reused<&XmlStationType::m_interlink>()),
            });
    return model;
}

XmlReceiverType::XmlReceiverType()
    : XmlSite(QStringLiteral("XmlReceiverType"))
{
}

const ContentModel& XmlReceiverType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("Name", child<&XmlReceiverType::m_objName>()),
                required("Position", child<&XmlReceiverType::m_position>()),
                required("RxParameter", child<&XmlReceiverType::m_rxParam>()),
                optional("StationInterlink", renewed<&XmlReceiverType::m_interlink>()),
            })
            .refusesOtherVersions();
    return model;
}

} // namespace ArvXml
