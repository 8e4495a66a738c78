// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! The interface of the widget that edits a property. The model reports the outcome of each validation to it
//! and never asks it anything. Not owned: an editor must call setEditorWidget(nullptr) on its property before
//! it is destroyed.
class CORVEX_EXPORT EditorView
{
public:
    virtual ~EditorView() = default;

    //! Why the property is invalid; empty when it is not.
    virtual void setErrorString(const QString &error) = 0;
    //! Whether the property is shown, as its editor parameter "visible" says from now on.
    virtual void setShown(bool shown) = 0;
};

} // namespace Halvane::Corvex::Designer
