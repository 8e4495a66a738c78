// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {

/*! Why a path or an edit in words is refused.

    The message is complete. Where a list would help that each program shows in its own way, `list` says which
    one, so that the program can add where to find it. */
struct EditRefusal
{
    enum List {
        NoList,
        Edits,      //!< all edits
        Classes,    //!< the classes that the plug-ins bring
        Models,     //!< the installed device models
        Contents,   //!< what there is in the object `path`
        Properties, //!< the properties of the object `path`
    };

    QString message; //!< for the user, one sentence or more
    List list = NoList;
    QString path = {};
};

} // namespace Halvane::Corvex::Designer
