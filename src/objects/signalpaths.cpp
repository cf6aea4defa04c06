#include "arvxml/signalpaths.h"

#include "core/elementform.h"

namespace ArvXml {

XmlSignalPathType::XmlSignalPathType()
    : XmlVersionedComposite(QStringLiteral("XmlSignalPathType"))
{
}

const ElementForm& XmlSignalPathType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .sequence({
                required("Name", child<&XmlSignalPathType::m_objName>()),
                required("SINAD", child<&XmlSignalPathType::m_sinad>()),
                required("Device", child<&XmlSignalPathType::m_devices>()),
                optional("AntHgtMap", reused<&XmlSignalPathType::m_antennaHeights>()),
                optional("CabLenMap", reused<&XmlSignalPathType::m_cableLengths>()),
            })
            .refusesOtherVersions();
    return form;
}

XmlTxParamType::XmlTxParamType()
    : XmlVersionedComposite(QStringLiteral("XmlTxParamType"))
{
}

const ElementForm& XmlTxParamType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .sequence({
                required("Frequency", child<&XmlTxParamType::m_frequency>()),
                required("TxPower", child<&XmlTxParamType::m_txPower>()),
                required("AntennaHeight", child<&XmlTxParamType::m_antennaHeight>()),
                required("Bandwidth", child<&XmlTxParamType::m_bandwidth>()),
            });
    return form;
}

XmlRxParamType::XmlRxParamType()
    : XmlVersionedComposite(QStringLiteral("XmlRxParamType"))
{
}

const ElementForm& XmlRxParamType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .sequence({
                required("AntennaHeight", child<&XmlRxParamType::m_antennaHeight>()),
                required("RxThreshold", child<&XmlRxParamType::m_rxThreshold>()),
            });
    return form;
}

XmlStationInterlinkType::XmlStationInterlinkType()
    : XmlVersionedComposite(QStringLiteral("XmlStationInterlinkType"))
{
}

const ElementForm& XmlStationInterlinkType::form() const
{
    using Self = XmlStationInterlinkType;
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .sequence({
                required("Frequency", child<&Self::m_frequency>()),
                required("TxPower", writtenAs("Power", child<&Self::m_power>())),
                required("RxThreshold", child<&Self::m_rxThreshold>()),
                required("AntennaHeight", child<&Self::m_antennaHeight>()),
            });
    return form;
}

} // namespace ArvXml
