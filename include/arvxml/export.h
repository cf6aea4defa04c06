#pragma once

/// \file
/// What the shared library shows to its users.

#include <QtCore/qglobal.h>

/// Marks what the shared library shows to its users; everything else in it is hidden.
#if defined(ARVXML_BUILDING_LIBRARY)
#define ARVXML_EXPORT Q_DECL_EXPORT
#else
#define ARVXML_EXPORT Q_DECL_IMPORT
#endif
