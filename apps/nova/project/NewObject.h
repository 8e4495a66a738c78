// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerObject;
}

namespace Halvane::Corvex::Nova {

class Workspace;

//! Adds objects for users who ask for one of a class, wherever they do.
class NewObject
{
public:
    //! Adds a variable, a screen or an element, with a free name, as one step of the history. An element is
    //! added in the middle of the current screen. Null, after a message to the user, on failure.
    static Designer::DesignerObject *add(Workspace &workspace, const QString &className);
};

} // namespace Halvane::Corvex::Nova
