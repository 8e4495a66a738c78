// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/editing/words/EditRefusal.h"

#include <QString>

namespace Halvane::Corvex::Designer {

class DesignerObject;
class Project;

//! The object or property that a path names.
struct ProjectPlace
{
    DesignerObject *object = nullptr; //!< null if nothing has that name
    SharedProperty property;          //!< null if the path names an object
};

/*! The path of an object in the form that users write: the names from the project down to the object, joined
    with ".". For a property its id follows: "Main.group1.pump1.position". DesignerObject::objectPath()
    returns such paths.

    Names may contain a "." ("pump.png"). An object takes precedence over a property of the same name. The
    project's own name is a path, too, as is the id of a property that contains an object ("configuration").
*/
class CORVEX_EXPORT ProjectPath
{
public:
    static ProjectPlace find(Project &project, const QString &path);
    //! The list that the path names. For the path of an object, the list of that object that describes \a
    //! item most specifically. Null if there is no such list.
    static SharedProperty listFor(Project &project, const QString &path, const DesignerObject &item);
    //! The list of \a owner that describes \a item most specifically. Null if there is no such list.
    static SharedProperty listFor(const DesignerObject &owner, const DesignerObject &item);
    //! Whether a screen, variable, image or element of the project has that name.
    static bool isName(const Project &project, const QString &name);

    enum Wanted { Object, Property, Anything };
    //! Why the path does not lead to a place of the wanted kind, with a suggestion.
    static EditRefusal refusal(Project &project, const QString &path, Wanted wanted);
    //! A suggestion for a path that does not exist: a sentence with a similar path, or no message and a
    //! reference to the contents of the last object found.
    static EditRefusal suggestion(Project &project, const QString &path);
};

} // namespace Halvane::Corvex::Designer
