// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QLatin1StringView>

#include <span>

namespace Halvane::Corvex::Designer {

//! How serious a problem is.
enum class Severity {
    Error,   //!< The device cannot do what the author intends. A build refuses it.
    Warning, //!< The device probably does not do what the author intends. A build accepts it.
    Hint,    //!< It works, but there is a better way.
};

//! The kind of a problem. ProblemKind has the texts for users and the code for programs.
enum class ProblemCode {
    FileKept,
    FileDropped,
    ModelUnknown,
    ModelLacks,
    NameFormat,
    NameLength,
    NameReserved,
    NameTaken,
    NameInvalid,
    ValueInvalid,
    ValueRange,
    AppearanceRange,
    ListIncomplete,
    GroupMembers,
    GroupOrder,
    LinkTarget,
    ImageFile,
    ChannelMissing,
    ChannelShared,
    ChannelSignal,
    PasswordEmpty,
    FieldbusMap,
    BACnetIdentifier,
    BACnetTaken,
    CanOverlap,
    ModbusType,
    LogUnfed,
    ExpressionInvalid,
    ExpressionType,
    ExpressionCondition,
    ExpressionFieldbus,
    ExpressionArguments,
    ExpressionLog,
    ExpressionColor,
    ExpressionMeaning,
    ExpressionPercent,
    ExpressionTarget,
    NumberUnreadable,
    ReferenceElement,
    ReferenceMissing,
    StateProperty,
    StateIgnored,
    StateValue,
    StateRange,
    CodeUnreadable,
    ScreenLook,
};

/*! One row in the table of all kinds of problems.

    The code word is stable: programs compare it, and users look it up in docs/problems.md. The message has
    placeholders for the names and values of a problem; it is null if the invalid property, the reader or a
    compiler provides the text.
*/
struct CORVEX_EXPORT ProblemKind
{
    ProblemCode code;
    Severity severity;
    const char *word; //!< "name.taken"
    const char *message;
    const char *cause;
    const char *cure;

    static const ProblemKind &of(ProblemCode code);
    //! In the order of the page that lists them.
    static std::span<const ProblemKind> all();
    //! "error", "warning" or "hint".
    QLatin1StringView severityWord() const;
};

} // namespace Halvane::Corvex::Designer
