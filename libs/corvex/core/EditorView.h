// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

namespace Halvane::Corvex::Designer {

//! What the model knows of the widget that edits a property: it tells it each verdict and never asks it
//! anything. It neither owns it nor outlives the right to call it: an editor that goes resets itself on its
//! property first.
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
