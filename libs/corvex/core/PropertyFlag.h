// SPDX-License-Identifier: MIT
#pragma once

#include <QFlags>

namespace Halvane::Corvex::Designer {

//! How a property is used. The usual sets are 15 (stored, sent to the runtime, edited), 1 (only stored), 65
//! (a stored list) and 129 (a stored object).
enum PropertyFlag {
    StoredFlag = 1,   //!< written to and read from the object's XML
    RuntimeFlag = 2,  //!< contributes to the generated QML
    EditableFlag = 4, //!< gets an editor in the property panel
    StateFlag = 8,    //!< set with the first three on ordinary properties
    ListFlag = 64,    //!< contains an ordered list of child objects instead of a value
    ObjectFlag = 128, //!< contains one child object instead of a value
};
Q_DECLARE_FLAGS(PropertyFlags, PropertyFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(PropertyFlags)

//! 15: stored, sent to the runtime and edited.
inline constexpr PropertyFlags OrdinaryFlags = PropertyFlags(StoredFlag) | PropertyFlags(RuntimeFlag)
                                               | PropertyFlags(EditableFlag) | PropertyFlags(StateFlag);

} // namespace Halvane::Corvex::Designer
