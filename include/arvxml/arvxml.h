#pragma once

/// \file
/// The whole library.

#include "arvxml/admincommand.h"
#include "arvxml/areas.h"
#include "arvxml/automaticresponse.h"
#include "arvxml/calccommand.h"
#include "arvxml/command.h"
#include "arvxml/commandroot.h"
#include "arvxml/coverageorders.h"
#include "arvxml/createdelete.h"
#include "arvxml/devices.h"
#include "arvxml/element.h"
#include "arvxml/emitters.h"
#include "arvxml/geometry.h"
#include "arvxml/gridresult.h"
#include "arvxml/interactiveresponse.h"
#include "arvxml/interlinkresult.h"
#include "arvxml/names.h"
#include "arvxml/orderdef.h"
#include "arvxml/quantities.h"
#include "arvxml/responseroot.h"
#include "arvxml/resultgrid.h"
#include "arvxml/signalpaths.h"
#include "arvxml/siteorders.h"
#include "arvxml/stations.h"
#include "arvxml/valuelists.h"
