#include "arvxml/createdelete.h"

#include "core/elementform.h"

namespace ArvXml {

namespace {

// Both commands: one object, then the reference. A reference may come first, but no object after it.
enum CommandMarks : Marks { Object = 1, Reference = 2 };

} // namespace

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
    static const ElementForm form =
        ElementForm(listWording)
            .children({
                {"DeploymentArea", Object, Object | Reference, renewed<&Self::m_deploymentArea>()},
                {"AOI", Object, Object | Reference, renewed<&Self::m_aoi>()},
                {"Emitter", Object, Object | Reference, renewed<&Self::m_emitter>()},
                {"Receiver", Object, Object | Reference, renewed<&Self::m_receiver>()},
                {"DF", Object, Object | Reference, renewed<&Self::m_df>()},
                {"Station", Object, Object | Reference, renewed<&Self::m_station>()},
                {"Path", Object, Object | Reference, writtenAs("SignalPath", renewed<&Self::m_signalPath>())},
                {"Device", Object, Object | Reference, renewed<&Self::m_device>()},
                {"Reference", Reference, Reference, referenceChild()},
            })
            .completeWith(Object | Reference);
    return form;
}

XmlCmdDelete::XmlCmdDelete()
    : XmlObjectCommand(QStringLiteral("XmlCmdDelete"))
{
}

const ElementForm& XmlCmdDelete::form() const
{
    using Self = XmlCmdDelete;
    static const ElementForm form =
        ElementForm(listWording)
            .children({
                {"DeploymentArea", Object, Object | Reference, renewed<&Self::m_deploymentArea>()},
                {"AOI", Object, Object | Reference, renewed<&Self::m_aoi>()},
                {"Emitter", Object, Object | Reference, renewed<&Self::m_emitter>()},
                {"Receiver", Object, Object | Reference, renewed<&Self::m_receiver>()},
                {"DF", Object, Object | Reference, renewed<&Self::m_df>()},
                {"Device", Object, Object | Reference, renewed<&Self::m_device>()},
                {"SignalPath", Object, Object | Reference, renewed<&Self::m_signalPath>()},
                {"Station", Object, Object | Reference, renewed<&Self::m_station>()},
                {"Reference", Reference, Reference, referenceChild()},
            })
            .completeWith(Object | Reference);
    return form;
}

} // namespace ArvXml
