#include "arvxml/valuelists.h"

#include "core/contentmodel.h"

namespace ArvXml {

XmlDBMListType::XmlDBMListType()
    : XmlList(QStringLiteral("XmlDBMListType"))
{
}

const ContentModel& XmlDBMListType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording).listOf("dBm", items<&XmlDBMListType::m_items>(), "Too few pairs (min. 1)");
    return model;
}

XmlDecibelListType::XmlDecibelListType()
    : XmlList(QStringLiteral("XmlDecibelListType"))
{
}

const ContentModel& XmlDecibelListType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording).listOf("Decibel", items<&XmlDecibelListType::m_items>(), "Too few pairs (min. 1)");
    return model;
}

XmlDegreesListType::XmlDegreesListType()
    : XmlList(QStringLiteral("XmlDegreesListType"))
{
}

const ContentModel& XmlDegreesListType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording).listOf("Degrees", items<&XmlDegreesListType::m_items>(), "Too few pairs (min. 1)");
    return model;
}

XmlFreqListType::XmlFreqListType()
    : XmlList(QStringLiteral("XmlFreqListType"))
{
}

const ContentModel& XmlFreqListType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .listOf("Frequency", items<&XmlFreqListType::m_items>(), "Too few frequencies (min. 1)");
    return model;
}

XmlFreqThrPairType::XmlFreqThrPairType()
    : XmlVersionedComposite(QStringLiteral("XmlFreqThrPairType"))
{
}

const ContentModel& XmlFreqThrPairType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                required("Frequency", child<&XmlFreqThrPairType::m_frequency>()),
                required("RxThreshold", child<&XmlFreqThrPairType::m_threshold>()),
            });
    return model;
}

XmlFreqThrListType::XmlFreqThrListType()
    : XmlList(QStringLiteral("XmlFreqThrListType"))
{
}

const ContentModel& XmlFreqThrListType::contentModel() const
{
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording).listOf("Pair", items<&XmlFreqThrListType::m_items>(), "Too few pairs (min. 1)");
    return model;
}

} // namespace ArvXml
