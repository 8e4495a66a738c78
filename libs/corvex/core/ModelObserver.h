// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"

namespace Halvane::Corvex::Designer {

class Project;

/*! Follows all changes of one project at a single place, so that an index of the whole model costs no
    connection for each object. It is told in the middle of a change and must not change the model itself. */
class CORVEX_EXPORT ModelObserver
{
public:
    virtual ~ModelObserver() = default;

    //! Right after the value was stored, before the hooks of the object.
    virtual void valueChanged(const SharedProperty &property, const QString &previousValue) = 0;
    //! The object is in the project, with everything below it.
    virtual void entered(DesignerObject *object) = 0;
    //! The object goes, with everything below it, and still knows its project and its screen. An object that
    //! is being deleted is a bare DesignerObject by then, whose children have gone before.
    virtual void leaving(DesignerObject *object) = 0;

    //! Null when nobody follows \a project, or it is null. Defined in the room of the project.
    static ModelObserver *of(const Project *project);

protected:
    ModelObserver() = default;
    Q_DISABLE_COPY_MOVE(ModelObserver)
};

} // namespace Halvane::Corvex::Designer
