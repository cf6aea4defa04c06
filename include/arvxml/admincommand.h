#pragma once

/// \file
/// The command that asks the service about itself.

#include "arvxml/command.h"

namespace ArvXml {

/// A command that asks the service about itself:
/// `<Administrative><QueryVersion/><Reference>42</Reference></Administrative>`.
///
/// The only one is the version query. The kind is set by reading alone; a new command has none
/// ("Invalid Administrative command type"). Query and reference may come in either order; the
/// reference may be missing or repeated on reading, and the last one counts. What stands inside
/// "QueryVersion" is read as if it stood beside it.
class ARVXML_EXPORT XmlCmdAdmin : public XmlCommand {
public:
    /// What is asked.
    enum AdminCmd : int {
        AdminUndefined = 0,    ///< Nothing.
        AdminQueryVersion = 1, ///< The version of the service, tag "QueryVersion".
    };

    XmlCmdAdmin();

    /// What is asked; nothing on a new command.
    AdminCmd adminCmd() const { return m_command; }

    bool isValid() const override;
    void reset() override;

protected:
    void addErrors() override;

private:
    const ContentModel& contentModel() const override;

    AdminCmd m_command = AdminUndefined;
};

} // namespace ArvXml
