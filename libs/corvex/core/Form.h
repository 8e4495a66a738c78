// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Halvane::Corvex::Designer {

namespace Forms {

//! How a value refers to other objects. Renaming, deleting and the search for uses follow these references.
//!
//! The comments describe what remains when the referenced object is deleted.
enum Form : quint8 {
    None,
    Link,        //!< ObjectLinkInfo; dropped: an empty link
    Expression,  //!< GeneralDataList or a single term; dropped: a term without a name
    States,      //!< UpdateObjectList; dropped: the update is removed
    Changes,     //!< PropertyList; dropped: the change is removed
    Names,       //!< ListInfo of names; dropped: the name is removed
    NamePairs,   //!< ListInfo of "name|text"; dropped: "|text"
    CommaNames,  //!< names joined with ", "; dropped: the name is removed
    Expressions, //!< PairList of two expressions
};

} // namespace Forms

using Forms::Form;

//! The form for values of a C++ type. A property of the type has this form, unless its row sets another one.
template<class Value>
inline constexpr Form ReferencesIn = Form::None;

} // namespace Halvane::Corvex::Designer
