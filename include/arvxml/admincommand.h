#pragma once

/// \file
/// The command that queries the service.

#include "arvxml/command.h"

namespace ArvXml {

/// A command that queries the service: `<Administrative><QueryVersion/><Reference>42</Reference></Administrative>`. The
/// only query is the version query. Only reading sets the kind; a new command has none ("Invalid Administrative command
/// type"). Query and reference may come in either order. On reading, the reference may be missing, and both may be
/// repeated; the last one counts. Content of "QueryVersion" is read as if it were outside.
class ARVXML_EXPORT XmlCmdAdmin : public XmlCommand {
public:
    /// The kinds of queries.
    enum AdminCmd : int {
        AdminUndefined = 0,    ///< Not set.
        AdminQueryVersion = 1, ///< The version of the service, tag "QueryVersion".
    };

    XmlCmdAdmin();

    /// The kind; AdminUndefined for a new command.
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
