// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Halvane::Corvex::Designer {

namespace Forms {

/*! In which form a value names other objects. Renaming, deleting and "where is this used?" follow the names.

    A name that is dropped, as its object is deleted, leaves what the comments say.
*/
enum Form : quint8 {
    None,
    Link,        //!< ObjectLinkInfo; dropped: a link that is not set
    Expression,  //!< GeneralDataList, a single term included; dropped: a term without a name
    States,      //!< UpdateObjectList; dropped: the update goes
    Changes,     //!< PropertyList; dropped: the change goes
    Names,       //!< ListInfo of names; dropped: the name goes
    NamePairs,   //!< ListInfo of "name|text"; dropped: "|text"
    CommaNames,  //!< names joined with ", "; dropped: the name goes
    Expressions, //!< PairList of two expressions
};

} // namespace Forms

using Forms::Form;

//! The form of the values of a C++ type. A property of the type has it, unless its row sets another one.
template<class Value>
inline constexpr Form ReferencesIn = Form::None;

} // namespace Halvane::Corvex::Designer
