#include "arvxml/signalpaths.h"

#include "core/contentmodel.h"
#include "core/versions.h"

namespace ArvXml {

XmlSignalPathType::XmlSignalPathType()
    : XmlVersionedComposite(QStringLiteral("XmlSignalPathType"))
{
}

const ContentModel& XmlSignalPathType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("Name", child<&XmlSignalPathType::m_objName>()),
                required("SINAD", child<&XmlSignalPathType::m_sinad>()),
                required("Device", child<&XmlSignalPathType::m_devices>()),
                optional("AntHgtMap", reused<&XmlSignalPathType::m_antennaHeights>()),
                optional("CabLenMap", reused<&XmlSignalPathType::m_cableLengths>()),
            })
            .refusesOtherVersions();
    return model;
}

XmlTxParamType::XmlTxParamType()
    : XmlVersionedComposite(QStringLiteral("XmlTxParamType"))
{
}

const ContentModel& XmlTxParamType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("Frequency", child<&XmlTxParamType::m_frequency>()),
                required("TxPower", child<&XmlTxParamType::m_txPower>()),
                required("AntennaHeight", child<&XmlTxParamType::m_antennaHeight>()),
                required("Bandwidth", child<&XmlTxParamType::m_bandwidth>()),
            });
    return model;
}

XmlRxParamType::XmlRxParamType()
    : XmlVersionedComposite(QStringLiteral("XmlRxParamType"))
{
}

const ContentModel& XmlRxParamType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("AntennaHeight", child<&XmlRxParamType::m_antennaHeight>()),
                required("RxThreshold", child<&XmlRxParamType::m_rxThreshold>()),
            });
    return model;
}

XmlStationInterlinkType::XmlStationInterlinkType()
    : XmlComposite(QStringLiteral("XmlStationInterlinkType"))
    , m_version(supportedVersion())
{
}

bool XmlStationInterlinkType::supportsVersion() const
{
    return isSupportedVersion(m_version);
}

const ContentModel& XmlStationInterlinkType::contentModel() const
{
    using Self = XmlStationInterlinkType;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("Frequency", child<&Self::m_frequency>()),
                required("TxPower", writtenAs("Power", child<&Self::m_power>())),
                required("RxThreshold", child<&Self::m_rxThreshold>()),
                required("AntennaHeight", child<&Self::m_antennaHeight>()),
            })
            .attributes(
                [](XmlElementBase& owner, ElementReader& in) { readVersion(in, static_cast<Self&>(owner).m_version); },
                [](const XmlElementBase& owner, QXmlStreamWriter& writer) {
                    writeVersion(writer, static_cast<const Self&>(owner).m_version);
                });
    return model;
}

bool XmlStationInterlinkType::isValid() const
{
    return supportsVersion() && XmlComposite::isValid();
}

void XmlStationInterlinkType::addErrors()
{
    addSyntaxError(versionError(m_version));
    addChildrenErrors();
}

void XmlStationInterlinkType::reset()
{
    m_version = supportedVersion();
    XmlComposite::reset();
}

} // namespace ArvXml
