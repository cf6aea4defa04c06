#pragma once

/// \file
/// What the shared library shows to its users.

#include <QtCore/qglobal.h>

/// Marks what the shared library shows to its users; everything else in it is hidden. Programs that link a static one
/// are compiled with ARVXML_STATIC, which CMake and pkg-config tell them.
#if defined(ARVXML_STATIC)
#define ARVXML_EXPORT
#elif defined(ARVXML_BUILDING_LIBRARY)
#define ARVXML_EXPORT Q_DECL_EXPORT
#else
#define ARVXML_EXPORT Q_DECL_IMPORT
#endif
