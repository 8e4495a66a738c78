// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/templates/Template.h"

namespace Halvane::Corvex::Designer {

//! Elements with the images and variables that they need.
class ElementTemplate : public Template
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ElementTemplate, Template)

protected:
    using Template::Template;
};

} // namespace Halvane::Corvex::Designer
