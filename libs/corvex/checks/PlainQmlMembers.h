// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Designer {

/*! What is left to be read of a QML document once the lines are emptied that cannot be wrong: members with
    nothing but a number, a boolean, a plain text or a name of an enumeration. Every other line stays, in its
    place, so that what a compiler finds wrong in the rest is wrong in the document and on the same line.

    \a qml has a line for each member and for each opening and closing of an object, as DesignerObject::toQml
    writes them. The first member of each name stays, for its name may be no name; and all of a document stays
    in which two members in a row of such lines have one name.
*/
QString qmlWithoutPlainMembers(const QString &qml);

} // namespace Halvane::Corvex::Designer
