// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

#include <functional>

namespace Halvane::Corvex::Designer {

class ReferenceTarget;

//! One place that names an object.
struct CORVEX_EXPORT ReferenceUse
{
    SharedProperty property;
    QString path; //!< as written there: "group1.pump1"
};

//! Searches the model for references.
class CORVEX_EXPORT ReferenceScanner
{
public:
    using SiteVisitor = std::function<void(const SharedProperty &property)>;

    //! Visits all properties of \a object that can name others and, if \a recursive, those of everything
    //! below it, in file order.
    static void visitSites(const DesignerObject *object, bool recursive, const SiteVisitor &visitor);
    //! The places that use the target, in file order. Searches the whole project.
    static QList<ReferenceUse> uses(const ReferenceTarget &target);
};

} // namespace Halvane::Corvex::Designer
