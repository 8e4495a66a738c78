// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include "corvex/core/DesignerObject.h"

namespace Halvane::Corvex::Designer {

struct DesignerObject::Data
{
    QList<SharedProperty> properties;
    SharedProperty id;
    QWeakPointer<DesignerProperty> listProperty;
    QList<DesignerProperty *> lists;
    Project *project = nullptr;
    Screen *screen = nullptr;
    ObjectView *view = nullptr;
    QStringList validationErrors;
    bool mayHaveChildren = false; //!< false when no property is a list or an object
    bool isValid = true;
    bool validationErrorSet = false;
    bool validationDisabled = false;
    bool isValidatingChildren = false;
    bool hasRefusedValue = false; //!< some property tells why it refused a value, not how it is itself
};

} // namespace Halvane::Corvex::Designer
