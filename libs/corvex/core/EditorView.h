// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! The interface of the widget that edits a property. The model reports the outcome of each validation to it
//! and never calls it otherwise. Not owned: an editor must call setEditorWidget(nullptr) on its property
//! before it is destroyed.
class CORVEX_EXPORT EditorView
{
public:
    virtual ~EditorView() = default;

    //! The reason why the property is invalid; empty if it is valid.
    virtual void setErrorString(const QString &error) = 0;
    //! Whether the property is shown, after a change of its editor parameter "visible".
    virtual void setShown(bool shown) = 0;
};

} // namespace Halvane::Corvex::Designer
