// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QList>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;

//! The colors that a project uses, the most frequent first. Large projects are not searched completely, so
//! that a picker opens at once: the search begins with the screen that the user works on.
class UsedColors
{
public:
    static QList<QColor> near(const DesignerObject &object);
    //! The colors of the screens themselves.
    static QList<QColor> ofScreens(const Project &project);
};

} // namespace Halvane::Corvex::Designer
