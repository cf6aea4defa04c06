#include <arvxml/areas.h>
#include <arvxml/coverageorders.h>
#include <arvxml/emitters.h>
#include <arvxml/quantities.h>
#include <arvxml/resultinfo.h>

/// \file
/// A plugin that hands out texts of the library, and has in itself what compilers make of classes without any function
/// of their own in the library's sources: tables of virtual functions, which must not keep it loaded.

using namespace ArvXml;

template <typename... Classes>
static bool copies()
{
    return (Classes(Classes()).isValid() || ...);
}

extern "C" Q_DECL_EXPORT void textsOfTheLibrary(QString* unit, QString* version, QString* problem)
{
    copies<XmlDeploymentAreaType, XmlDetectProbType, XmlEmitterType, XmlResInfo_Cep_Type, XmlResInfo_DetectProb_Type,
           XmlResInfo_DfCov_Type, XmlResInfo_FindSites_Type>();
    XmlDBMType level;
    *unit = level.unit();
    *version = level.version();
    *problem = level.syntaxError();
}
