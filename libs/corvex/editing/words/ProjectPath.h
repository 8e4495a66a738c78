// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/editing/words/EditRefusal.h"

#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;

//! What a path names: an object, or one of its properties.
struct ProjectPlace
{
    DesignerObject *object = nullptr; //!< null when there is nothing of that name
    SharedProperty property;          //!< null when the path ends with the object
};

/*! The path of an object as users write it: the names on the way from the project down to it, joined with
    "."; for one of its properties, the id of the property follows: "Main.group1.pump1.position".
    DesignerObject::objectPath() gives such paths.

    Names may hold a "." themselves ("pump.png"). An object comes before a property of the same name. The name
    of the project itself is a path, too, and so is the id of a property that holds an object
    ("configuration"). */
class CORVEX_EXPORT ProjectPath
{
public:
    static ProjectPlace find(Project &project, const QString &path);
    /*! The list that the path names. For the path of an object, the one of its lists that describes \a item
        most closely. Null when there is none. */
    static SharedProperty listFor(Project &project, const QString &path, const DesignerObject &item);
    //! The list of \a owner that describes \a item most closely. Null when there is none.
    static SharedProperty listFor(const DesignerObject &owner, const DesignerObject &item);
    //! Whether a screen, a variable, an image or an element of the project has the name.
    static bool isName(const Project &project, const QString &name);

    enum Wanted { Object, Property, Anything };
    //! Why the path does not lead to what is wanted, and what the user may have meant.
    static EditRefusal refusal(Project &project, const QString &path, Wanted wanted);
    //! What the user may have meant by a path that leads nowhere: a sentence with a path that does, or no
    //! message and the contents of the last object on the way.
    static EditRefusal suggestion(Project &project, const QString &path);
};

} // namespace Halvane::Corvex::Designer
