// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class ObjectView;

//! How DesignerFactory::createObjectView() makes a view. The canvas, on a higher layer, provides it when the
//! library is loaded.
struct ViewMaker
{
    using Function = ObjectView *(*)(const QString &className, DesignerObject *object);
    static inline constinit Function make = nullptr;
};

} // namespace Halvane::Corvex::Designer
