// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/Template.h"

namespace Halvane::Corvex::Designer {

//! Elements with the images and variables that they need.
class CORVEX_EXPORT ElementTemplate : public Template
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ElementTemplate, Template)

protected:
    using Template::Template;
};

} // namespace Halvane::Corvex::Designer
