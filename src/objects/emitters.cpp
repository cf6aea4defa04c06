#include "arvxml/emitters.h"

#include "core/contentmodel.h"
#include "core/quantityrules.h"

namespace ArvXml {

static const QuantityRules& dfPrecisionRules()
{
    static const NeverDestroyed<QuantityRules> rules = integerQuantity(
        QString(QChar(0x00B0)), -2, {'f', 0}, [](double value) { return value >= -1.0; },
        "XmlDfPrecisionType: Illegal precision.", "XmlDfPrecisionType: Illegal unit.");
    return rules;
}

XmlDfPrecisionType::XmlDfPrecisionType()
    : XmlReadUnitQuantity(QStringLiteral("XmlDfPrecisionType"), dfPrecisionRules())
{
}

const QuantityRules& XmlDfPrecisionType::rules() const
{
    return dfPrecisionRules();
}

XmlEmitterType::XmlEmitterType()
    : XmlSite(QStringLiteral("XmlEmitterType"))
{
}

const ContentModel& XmlEmitterType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("Name", child<&XmlEmitterType::m_objName>()),
                required("Position", child<&XmlEmitterType::m_position>()),
                required("TxParameter", child<&XmlEmitterType::m_txParam>()),
            })
            .refusesOtherVersions();
    return model;
}

XmlDfType::XmlDfType()
    : XmlSite(QStringLiteral("XmlDfType"))
{
}

const ContentModel& XmlDfType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("Name", child<&XmlDfType::m_objName>()),
                required("Position", child<&XmlDfType::m_position>()),
                required("RxParameter", child<&XmlDfType::m_rxParam>()),
                required("DFprecision", child<&XmlDfType::m_dfPrecision>()),
                optional("StationInterlink", renewed<&XmlDfType::m_interlink>()),
            })
            .refusesOtherVersions();
    return model;
}

} // namespace ArvXml
