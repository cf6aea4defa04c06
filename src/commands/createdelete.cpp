#include "arvxml/createdelete.h"

#include "core/elementform.h"

namespace ArvXml {

quint32 XmlObjectCommand::openElement(ElementReader& in)
{
    reset();
    return XmlChoiceCommand::openElement(in);
}

XmlCmdCreate::XmlCmdCreate()
    : XmlObjectCommand(QStringLiteral("XmlCmdCreate"))
{
}

const ElementForm& XmlCmdCreate::form() const
{
    using Self = XmlCmdCreate;
    // In both commands the reference may come first, but then no object is taken any more, nor the end tag.
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
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
                required("Reference", referenceChild()),
            });
    return form;
}

XmlCmdDelete::XmlCmdDelete()
    : XmlObjectCommand(QStringLiteral("XmlCmdDelete"))
{
}

const ElementForm& XmlCmdDelete::form() const
{
    using Self = XmlCmdDelete;
    static const NeverDestroyed<ElementForm> form = ElementForm(listWording)
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
                                                            required("Reference", referenceChild()),
                                                        });
    return form;
}

} // namespace ArvXml
