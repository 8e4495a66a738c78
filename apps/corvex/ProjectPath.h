// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

#include "terminal/ExitCode.h"

#include <QString>

namespace Halvane::Corvex::Designer {
class DesignerObject;
}

namespace Halvane::Corvex::Tool {

class Call;

//! What a path names: an object, or one of its properties.
struct ProjectPlace
{
    Designer::DesignerObject *object = nullptr; //!< null when there is nothing of that name
    Designer::SharedProperty property;          //!< null when the path ends with the object
};

/*! The names on the way from the project down to an object, joined with ".", and perhaps the id of a property
    behind them: "Main.group1.pump1.position". They are the paths that DesignerObject::objectPath() gives.

    Names may hold a "." themselves ("pump.png"). An object comes before a property of the same name; the
   project's own name, and the id of an object property ("configuration"), stand for the object too.
*/
class ProjectPath
{
public:
    static ProjectPlace find(Designer::DesignerObject *project, const QString &path);
    /*! The list that the path names, or of the object that it names the one that describes such an item most
        closely; null without one. */
    static Designer::SharedProperty listFor(Designer::DesignerObject *project, const QString &path,
                                            const Designer::DesignerObject &item);
    //! Whether anything in the project has the name: a screen, a variable, an image or an element.
    static bool isName(const Designer::DesignerObject &project, const QString &name);
    enum Wanted { Object, Property, Anything };
    //! What to say of a path that does not lead to what is wanted: what is there, or may be meant.
    static QString problem(Designer::DesignerObject *project, const QString &path, Wanted wanted);
    //! Tells the user that there is nothing of that path.
    static ExitCode notFound(Designer::DesignerObject &project, const QString &path, const Call &call);

private:
    static QString hint(Designer::DesignerObject *project, const QString &path);
};

} // namespace Halvane::Corvex::Tool
