// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/PreviewSession.h"

#include "Output.h"

namespace Halvane::Corvex::Preview {

//! Runs the panel without a display. Without a script, takes a picture of every screen into \a folder; with
//! one, those that the script asks for.
Exit runUnattended(PreviewSession &session, const QString &scriptFile, const QString &folder);

//! Looks at every screen, and prints all that is wrong as an array of JSON, with "object" and "message" in
//! each entry.
Exit runAudit(PreviewSession &session);

} // namespace Halvane::Corvex::Preview
