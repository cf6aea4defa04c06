#include "arvxml/createdelete.h"

#include "core/contentmodel.h"

namespace ArvXml {

XmlCmdCreate::XmlCmdCreate()
    : XmlChoiceCommand(QStringLiteral("XmlCmdCreate"))
{
}

const ContentModel& XmlCmdCreate::contentModel() const
{
    using Self = XmlCmdCreate;
    // In both commands the reference may come first, but then no object is taken any more, nor the end tag.
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                oneOf({
                    {"DeploymentArea", renewed<&Self::m_deploymentArea>()},
                    {"AOI", renewed<&Self::m_aoi>()},
                    {"Emitter", renewed<&Self::m_emitter>()},
                    {"Receiver", renewed<&Self::m_receiver>()},
                    {"DF", renewed<&Self::m_df>()},
                    {"Station", renewed<&Self::m_station>()},
                    {"Path", writtenAs("SignalPath", renewed<&Self::m_signalPath>())},
                    {"Device", renewed<&Self::m_device>()},
                }),
                required("Reference", child<&Self::m_reference>()),
            })
            .reportedFirst({"Reference"})
            .resetBeforeReading();
    return model;
}

XmlCmdDelete::XmlCmdDelete()
    : XmlChoiceCommand(QStringLiteral("XmlCmdDelete"))
{
}

const ContentModel& XmlCmdDelete::contentModel() const
{
    using Self = XmlCmdDelete;
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .sequence({
                oneOf({
                    {"DeploymentArea", renewed<&Self::m_deploymentArea>()},
                    {"AOI", renewed<&Self::m_aoi>()},
                    {"Emitter", renewed<&Self::m_emitter>()},
                    {"Receiver", renewed<&Self::m_receiver>()},
                    {"DF", renewed<&Self::m_df>()},
                    {"Device", renewed<&Self::m_device>()},
                    {"SignalPath", renewed<&Self::m_signalPath>()},
                    {"Station", renewed<&Self::m_station>()},
                }),
                required("Reference", child<&Self::m_reference>()),
            })
            .reportedFirst({"Reference"})
            .resetBeforeReading();
    return model;
}

} // namespace ArvXml
