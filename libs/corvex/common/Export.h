// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

//! Exports a symbol to programs and plug-ins; all other symbols are hidden. Each library defines its own
//! CORVEX_BUILDS_ macro while it is built. Headers in folders private/ use the macros only for symbols that
//! tests need.
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
