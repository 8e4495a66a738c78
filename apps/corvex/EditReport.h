// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectEditor.h"

namespace Halvane::Corvex::Tool {

class Call;

//! Shows edits and all changes of values that came with them, as lines or as JSON.
class EditReport
{
public:
    static void print(const QList<ProjectEditor::Edit> &edits, bool isSaved, const Call &call);
};

} // namespace Halvane::Corvex::Tool
