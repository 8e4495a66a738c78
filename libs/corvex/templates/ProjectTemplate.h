// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/templates/Template.h"

namespace Halvane::Corvex::Designer {

//! A project to start from.
class CORVEX_EXPORT ProjectTemplate : public Template
{
    Q_OBJECT
    CORVEX_CLASS_NAMES(ProjectTemplate, Template)

protected:
    using Template::Template;
};

} // namespace Halvane::Corvex::Designer
