// SPDX-License-Identifier: MIT
// Private to the sources of DesignerObject; not installed.
#pragma once

#include "corvex/core/DesignerObject.h"
#include "corvex/core/private/HoldingLists.h"
#include "corvex/core/private/PropertyStore.h"

namespace Halvane::Corvex::Designer {

struct DesignerObject::Data
{
    PropertyStore properties;
    DesignerProperty *id = nullptr;
    QWeakPointer<DesignerProperty> listProperty;
    HoldingLists lists;
    Project *project = nullptr;
    ModelObservers *observers = nullptr; //!< of the project; null out of projects
    Screen *screen = nullptr;
    ObjectView *view = nullptr;
    std::unique_ptr<QStringList> validationErrors; //!< null for none
    bool mayHaveChildren = false;                  //!< false when no property is a list or an object
    bool isValid = true;
    bool validationErrorSet = false;
    bool validationDisabled = false;
    bool isValidatingChildren = false;
    bool hasRefusedValue = false; //!< some property tells why it refused a value, not how it is itself
};

} // namespace Halvane::Corvex::Designer
