// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

//! The limits of the XML reader. All code that sets or writes values keeps to them, so that every saved file
//! can be opened again.
namespace Halvane::Corvex::Designer::XmlLimits {

//! Open elements at the same time.
constexpr qsizetype deepestNesting = 512;
//! Elements from an object to a child: its properties, the property, the list, the child.
constexpr qsizetype levelsPerObject = 4;
//! The maximum number of owners above an object: below each object there must be room for its properties and
//! lists.
constexpr qsizetype mostOwners = deepestNesting / levelsPerObject - 1;

//! Bytes of one value in its escaped form.
constexpr qsizetype longestValue = qsizetype(16) * 1024 * 1024;
//! Bytes of a tag with all of its attributes.
constexpr qsizetype longestTag = longestValue + 64 * 1024;

} // namespace Halvane::Corvex::Designer::XmlLimits
