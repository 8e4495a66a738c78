// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <functional>

namespace Halvane::Corvex::Designer {

class ReferenceTarget;

//! One place where an object is named.
struct CORVEX_EXPORT ReferenceUse
{
    SharedProperty property;
    QString path; //!< as it stands there: "group1.pump1"
};

//! Walks the model and finds what names something.
class CORVEX_EXPORT ReferenceScanner
{
public:
    using SiteVisitor = std::function<void(const SharedProperty &property)>;

    //! Shows all properties of \a object that can name others and, with \a recursive, those of everything
    //! below it, in the order of the file.
    static void visitSites(const DesignerObject *object, bool recursive, const SiteVisitor &visitor);
    //! Where the target is used, in the order of the file. Walks the whole project.
    static QList<ReferenceUse> uses(const ReferenceTarget &target);
};

} // namespace Halvane::Corvex::Designer
