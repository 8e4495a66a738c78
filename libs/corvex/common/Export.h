// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/*! What the libraries offer to programs and plug-ins; everything else is hidden. The build of a library
   defines that it is being built. Headers in folders private/ use the macros for what tests reach, and nobody
   else. */
#if defined(CORVEX_BUILDS_COMMON)
#define CORVEX_COMMON_EXPORT Q_DECL_EXPORT
#else
#define CORVEX_COMMON_EXPORT Q_DECL_IMPORT
#endif

#if defined(CORVEX_BUILDS_ZIP)
#define CORVEX_ZIP_EXPORT Q_DECL_EXPORT
#else
#define CORVEX_ZIP_EXPORT Q_DECL_IMPORT
#endif

#if defined(CORVEX_BUILDS_DESIGNER_CORE)
#define CORVEX_EXPORT Q_DECL_EXPORT
#else
#define CORVEX_EXPORT Q_DECL_IMPORT
#endif
