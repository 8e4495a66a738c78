// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/PreviewSession.h"

#include "Output.h"

namespace Halvane::Corvex::Preview {

//! Runs the panel without a display. With a script, saves the pictures that the script requests; otherwise
//! saves a picture of every screen in \a folder.
Exit runUnattended(PreviewSession &session, const QString &scriptFile, const QString &folder);

//! Inspects every screen and prints all problems as a JSON array with "object" and "message" in each entry.
Exit runAudit(PreviewSession &session);

} // namespace Halvane::Corvex::Preview
