// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {

/*! Why a path or an edit in words is refused.

    The message is complete. If a list would help the user, `list` identifies it, so that each program can add
    how to show it.
*/
struct EditRefusal
{
    enum List {
        NoList,
        Edits,      //!< all edits
        Classes,    //!< the classes of the plug-ins
        Models,     //!< the installed device models
        Contents,   //!< the contents of the object `path`
        Properties, //!< the properties of the object `path`
    };

    QString message; //!< for the user, one or more sentences
    List list = NoList;
    QString path = {};
};

} // namespace Halvane::Corvex::Designer
