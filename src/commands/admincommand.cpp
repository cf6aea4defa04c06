#include "arvxml/admincommand.h"

#include "core/contentmodel.h"

namespace ArvXml {

static void writeQuery(const XmlCmdAdmin& command, QXmlStreamWriter& writer, const QString& tag)
{
    if (command.adminCmd() == XmlCmdAdmin::AdminQueryVersion)
        writer.writeEmptyElement(tag);
}

XmlCmdAdmin::XmlCmdAdmin()
    : XmlCommand(QStringLiteral("XmlCmdAdmin"))
{
}

const ContentModel& XmlCmdAdmin::contentModel() const
{
    using Self = XmlCmdAdmin;
    enum : Marks { Query = 1 };
    // Odd: the query counts from its end tag on, and what stands inside it is read as if beside it.
    static const NeverDestroyed<ContentModel> model =
        ContentModel(listWording)
            .rows({
                Row("QueryVersion", writtenBy<Self, writeQuery>()).required(),
                Row("Reference", child<&Self::m_reference>()).repeated(),
            })
            .wrapperEnds({WrapperEnd("QueryVersion").marks(Query).then([](XmlElementBase& owner) {
                static_cast<Self&>(owner).m_command = AdminQueryVersion;
            })})
            .completeWith(Query);
    return model;
}

bool XmlCmdAdmin::isValid() const
{
    return m_command != AdminUndefined && XmlCommand::isValid();
}

void XmlCmdAdmin::addErrors()
{
    if (m_command == AdminUndefined)
        addSyntaxError(QStringLiteral("Invalid Administrative command type"));
    addChildrenErrors();
}

void XmlCmdAdmin::reset()
{
    m_command = AdminUndefined;
    XmlCommand::reset();
}

} // namespace ArvXml
