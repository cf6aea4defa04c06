#include "arvxml/valuelists.h"

#include "core/elementform.h"

namespace ArvXml {

XmlDBMListType::XmlDBMListType()
    : XmlList(QStringLiteral("XmlDBMListType"))
{
}

const ElementForm& XmlDBMListType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording).listOf("dBm", items<&XmlDBMListType::m_items>(), "Too few pairs (min. 1)");
    return form;
}

XmlDecibelListType::XmlDecibelListType()
    : XmlList(QStringLiteral("XmlDecibelListType"))
{
}

const ElementForm& XmlDecibelListType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording).listOf("Decibel", items<&XmlDecibelListType::m_items>(), "Too few pairs (min. 1)");
    return form;
}

XmlDegreesListType::XmlDegreesListType()
    : XmlList(QStringLiteral("XmlDegreesListType"))
{
}

const ElementForm& XmlDegreesListType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording).listOf("Degrees", items<&XmlDegreesListType::m_items>(), "Too few pairs (min. 1)");
    return form;
}

XmlFreqListType::XmlFreqListType()
    : XmlList(QStringLiteral("XmlFreqListType"))
{
}

const ElementForm& XmlFreqListType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .listOf("Frequency", items<&XmlFreqListType::m_items>(), "Too few frequencies (min. 1)");
    return form;
}

XmlFreqThrPairType::XmlFreqThrPairType()
    : XmlVersionedComposite(QStringLiteral("XmlFreqThrPairType"))
{
}

const ElementForm& XmlFreqThrPairType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .sequence({
                required("Frequency", child<&XmlFreqThrPairType::m_frequency>()),
                required("RxThreshold", child<&XmlFreqThrPairType::m_threshold>()),
            });
    return form;
}

XmlFreqThrListType::XmlFreqThrListType()
    : XmlList(QStringLiteral("XmlFreqThrListType"))
{
}

const ElementForm& XmlFreqThrListType::form() const
{
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording).listOf("Pair", items<&XmlFreqThrListType::m_items>(), "Too few pairs (min. 1)");
    return form;
}

} // namespace ArvXml
