// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

//! What the reader of XML takes at most. Whatever sets or writes values keeps to the same numbers, so that
//! all that is saved can be opened again.
namespace Halvane::Corvex::Designer::XmlLimits {

//! Elements that are open at once.
constexpr qsizetype deepestNesting = 512;
//! Elements from an object to one that it holds: its properties, the property, the list, the child.
constexpr qsizetype levelsPerObject = 4;
//! How many owners an object may have above it: below each object there is room for its properties and lists.
constexpr qsizetype mostOwners = deepestNesting / levelsPerObject - 1;

//! Bytes of one value in its escaped form.
constexpr qsizetype longestValue = qsizetype(16) * 1024 * 1024;
//! The same of a tag with all of its attributes.
constexpr qsizetype longestTag = longestValue + 64 * 1024;

} // namespace Halvane::Corvex::Designer::XmlLimits
