#pragma once

/// \file
/// The whole library.

#include "arvxml/admincommand.h"
#include "arvxml/automaticresponse.h"
#include "arvxml/calccommand.h"
#include "arvxml/command.h"
#include "arvxml/commandroot.h"
#include "arvxml/coverageorders.h"
#include "arvxml/element.h"
#include "arvxml/geometry.h"
#include "arvxml/gridresult.h"
#include "arvxml/interlinkresult.h"
#include "arvxml/names.h"
#include "arvxml/orderdef.h"
#include "arvxml/quantities.h"
#include "arvxml/responseroot.h"
#include "arvxml/resultgrid.h"
#include "arvxml/siteorders.h"
#include "arvxml/valuelists.h"
