#include "arvxml/createdelete.h"

#include "core/contentmodel.h"

namespace ArvXml {

/// One object out of several, and the reference. The reference may come first, but then no object is taken any more,
/// nor the end tag.
static ContentModel objectCommand(std::vector<Particle::Child> objects, const Binding& reference)
{
    return ContentModel(listWording)
        .sequence({oneOf(std::move(objects)), required("Reference", reference)})
        .reportedFirst({"Reference"})
        .resetBeforeReading();
}

XmlCmdCreate::XmlCmdCreate()
    : XmlChoiceCommand(QStringLiteral("XmlCmdCreate"))
{
}

const ContentModel& XmlCmdCreate::contentModel() const
{
    using Self = XmlCmdCreate;
    static const NeverDestroyed<ContentModel> model = objectCommand(
        {
            {"DeploymentArea", renewed<&Self::m_deploymentArea>()},
            {"AOI", renewed<&Self::m_aoi>()},
            {"Emitter", renewed<&Self::m_emitter>()},
            {"Receiver", renewed<&Self::m_receiver>()},
            {"DF", renewed<&Self::m_df>()},
            {"Station", renewed<&Self::m_station>()},
            {"Path", writtenAs("SignalPath", renewed<&Self::m_signalPath>())},
            {"Device", renewed<&Self::m_device>()},
        },
        child<&Self::m_reference>());
    return model;
}

XmlCmdDelete::XmlCmdDelete()
    : XmlChoiceCommand(QStringLiteral("XmlCmdDelete"))
{
}

const ContentModel& XmlCmdDelete::contentModel() const
{
    using Self = XmlCmdDelete;
    static const NeverDestroyed<ContentModel> model = objectCommand(
        {
            {"DeploymentArea", renewed<&Self::m_deploymentArea>()},
            {"AOI", renewed<&Self::m_aoi>()},
            {"Emitter", renewed<&Self::m_emitter>()},
            {"Receiver", renewed<&Self::m_receiver>()},
            {"DF", renewed<&Self::m_df>()},
            {"Device", renewed<&Self::m_device>()},
            {"SignalPath", renewed<&Self::m_signalPath>()},
            {"Station", renewed<&Self::m_station>()},
        },
        child<&Self::m_reference>());
    return model;
}

} // namespace ArvXml
