#pragma once

/// \file
/// The export macro of the library.

#include <QtCore/qglobal.h>

/// Marks the symbols that the shared library exports; all others are hidden. Programs that link the static library are
/// compiled with ARVXML_STATIC, which CMake and pkg-config define.
#if defined(ARVXML_STATIC)
#define ARVXML_EXPORT
#elif defined(ARVXML_BUILDING_LIBRARY)
#define ARVXML_EXPORT Q_DECL_EXPORT
#else
#define ARVXML_EXPORT Q_DECL_IMPORT
#endif
