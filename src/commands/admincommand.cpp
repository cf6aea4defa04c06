#include "arvxml/admincommand.h"

#include "core/elementform.h"

namespace ArvXml {

XmlCmdAdmin::XmlCmdAdmin()
    : XmlCommand(QStringLiteral("XmlCmdAdmin"))
{
}

const ElementForm& XmlCmdAdmin::form() const
{
    using Self = XmlCmdAdmin;
    enum : Marks { Query = 1 };
    // The query counts from its end tag on; what stands inside it is read as if beside it.
    static const NeverDestroyed<ElementForm> form =
        ElementForm(listWording)
            .children({
                {"QueryVersion", 0, 0, writtenBy<&Self::writeQuery>()},
                {"Reference", 0, 0, child<&Self::m_reference>()},
            })
            .innerEnds({{"QueryVersion", 0, 0, Query, callOwner<&Self::setQueryVersion>}})
            .completeWith(Query);
    return form;
}

void XmlCmdAdmin::writeQuery(QXmlStreamWriter& writer, const QString& tag) const
{
    if (m_command == AdminQueryVersion)
        writer.writeEmptyElement(tag);
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
