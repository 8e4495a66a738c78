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
    ModelObservers *observers = nullptr; //!< of the project; null outside of projects
    Screen *screen = nullptr;
    ObjectView *view = nullptr;
    std::unique_ptr<QStringList> validationErrors; //!< null without errors
    bool mayHaveChildren = false;                  //!< false if no property is a list or an object
    bool isValid = true;
    bool validationErrorSet = false;
    bool validationDisabled = false;
    bool isValidatingChildren = false;
    bool hasRefusedValue = false; //!< the error of some property concerns a refused value, not its present
                                  //!< one
};

} // namespace Halvane::Corvex::Designer
