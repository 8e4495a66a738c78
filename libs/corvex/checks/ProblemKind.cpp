// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemKind.h"

#include <QtGlobal>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using enum Severity;

// In the order of ProblemCode.
constexpr ProblemKind kinds[] = {
    {ProblemCode::FileKept, Error, "file.kept", nullptr,
     "The file contains an object whose plug-in is missing, or that its list does not accept, such as a "
     "second object with the same name. The project keeps the object, but the device does not get it.",
     "Install the plug-in of the object, or correct or delete the object in the file."},
    {ProblemCode::FileDropped, Error, "file.dropped", nullptr,
     "A part of the file could not be read. Saving the project loses it.",
     "Correct this line of the file. The next save drops everything that is still wrong."},
    {ProblemCode::ModelUnknown, Error, "model.unknown", nullptr,
     "The project is for a device model that is not installed.",
     "Install the model, or choose another with \"corvex edit FILE model NAME\"."},
    {ProblemCode::ModelLacks, Warning, "model.lacks", "The device model \"%1\" has no %2.",
     "A variable or an element needs a connection that the device model does not have.",
     "Choose another model, or delete what needs the connection."},
    {ProblemCode::NameFormat, Error, "name.format", nullptr,
     "The name contains characters that the script language of the device does not allow in names.",
     "Use at least two characters: letters, digits and underscores. Begin with a letter."},
    {ProblemCode::NameLength, Error, "name.length", nullptr, "The name is too long.",
     "Choose a shorter name."},
    {ProblemCode::NameReserved, Error, "name.reserved", nullptr,
     "The name is reserved in the script language or in expressions.", "Choose another name."},
    {ProblemCode::NameTaken, Error, "name.taken", nullptr,
     "Another object has the same name, so expressions could mean either of them.", "Rename one of the two."},
    {ProblemCode::NameInvalid, Error, "name.invalid", nullptr,
     "The name of a project or an image is not a valid file name on every system.",
     "Rename it with \"corvex rename\"."},
    {ProblemCode::ValueInvalid, Error, "value.invalid", nullptr, "The property has an invalid value.",
     "Set a value that the message allows."},
    {ProblemCode::ValueRange, Error, "value.range", nullptr,
     "A number is outside of the range that the device allows.", "Set a number within the range."},
    {ProblemCode::AppearanceRange, Warning, "appearance.range", nullptr,
     "A number of a visible element is outside of the range that editors offer. How the device draws it is "
     "undefined.",
     "Set a number within the range."},
    {ProblemCode::ListIncomplete, Error, "list.incomplete", nullptr,
     "A project has no screen, or a screen has no element.", "Add one."},
    {ProblemCode::GroupMembers, Error, "group.members", nullptr,
     "A group has fewer than two members, or one of them has a problem.",
     "Ungroup it, or solve the problem of the member."},
    {ProblemCode::GroupOrder, Error, "group.order", nullptr,
     "The order of a group does not list each member exactly once.",
     "Set \"indexes\" to the names of all members."},
    {ProblemCode::LinkTarget, Error, "link.target", nullptr,
     "A link is not set, or its target does not exist or has the wrong class.",
     "Set the link to an object of the class that the message names."},
    {ProblemCode::ImageFile, Error, "image.file", nullptr,
     "The file of an image is missing from the image folder, or is not an image.",
     "Restore the file, or replace the image with \"corvex edit FILE replace-image\"."},
    {ProblemCode::ChannelMissing, Error, "channel.missing",
     "The device model \"%1\" has no channel %2 here: its %3 are %4.",
     "An element uses a channel that the device model does not have, or that serves another purpose.",
     "Assign one of the channels that the message lists, or choose another model."},
    {ProblemCode::ChannelShared, Error, "channel.shared", nullptr,
     "Two elements use the same channel of the device.", "Assign another channel to one of them."},
    {ProblemCode::ChannelSignal, Error, "channel.signal", nullptr,
     "A list of channels in the configuration has a signal that the channel cannot carry, or two settings "
     "share a line.",
     "Correct the list, or disable one of the two settings."},
    {ProblemCode::PasswordEmpty, Error, "password.empty", nullptr, "A password is enabled but empty.",
     "Set the password, or disable it."},
    {ProblemCode::FieldbusMap, Error, "fieldbus.map", nullptr,
     "An entry of a fieldbus variable is incomplete or repeated, or has a form that the device cannot use.",
     "Correct the entry that the message names."},
    {ProblemCode::BACnetIdentifier, Error, "bacnet.identifier", nullptr,
     "The identifier of a BACnet object does not consist of an object type and an instance.",
     "Set two numbers, as in \"5,1\"."},
    {ProblemCode::BACnetTaken, Error, "bacnet.taken", "\"%1\" is also the identifier of \"%2\".",
     "Two BACnet objects have the same identifier, so other devices cannot tell them apart.",
     "Change the instance of one of them."},
    {ProblemCode::CanOverlap, Warning, "can.overlap", "The bits of SPN %1 overlap those of SPN %2 of \"%3\".",
     "Two variables use the same bits of one CAN message.",
     "Correct the byte, the bit or the length, unless both are meant to read the same value."},
    {ProblemCode::ModbusType, Warning, "modbus.type", "The register at %1 holds %2, but \"%3\" is %4.",
     "A Modbus register is bound to a value of another type.",
     "Bind a boolean to coils and discrete inputs, and a number to registers."},
    {ProblemCode::LogUnfed, Warning, "log.unfed", "No element on any screen feeds this log.",
     "A log variable takes its values from an element that logs data. No element feeds this one.",
     "Add such an element to a screen and link the log, or delete the log."},
    {ProblemCode::ExpressionInvalid, Error, "expression.invalid", nullptr,
     "An expression cannot be translated for the device.",
     "Correct the expression. \"corvex expr\" prints its code or what is wrong."},
    {ProblemCode::ExpressionType, Warning, "expression.type", "\"%1\" takes %2, but \"%3\" is %4.",
     "An assignment has a value of a type that its target cannot store.",
     "Assign a value of the target's type."},
    {ProblemCode::ExpressionCondition, Warning, "expression.condition",
     "\"%1\" is %2, not a condition. Compare it with a value.",
     "A text or a color is used as a condition. Every text that is not empty counts as true.",
     "Compare it, as in: mode == \"auto\"."},
    {ProblemCode::ExpressionFieldbus, Warning, "expression.fieldbus",
     "\"%1\" is %2, which has no value that a screen can read.",
     "An expression names the description of a fieldbus connection instead of a value.",
     "Name the variable that the fieldbus reads or writes."},
    {ProblemCode::ExpressionArguments, Warning, "expression.arguments", "\"%1\" takes %2, but has %3 here.",
     "A function is called with too few or too many arguments, so its result is useless.",
     "Pass the number of arguments that the message names, separated by \",\"."},
    {ProblemCode::ExpressionLog, Warning, "expression.log",
     "\"%1\" needs a log variable as its first argument, but has something else here.",
     "The first argument of a log function is not a log variable.",
     "Use a log variable of the project as the first argument."},
    {ProblemCode::ExpressionColor, Warning, "expression.color", "The color \"%1\" never equals \"%2\".",
     "A color of an element is compared with something else than a text such as \"#1d3040\". In a comparison "
     "with \"==\", the color becomes such a text; \"===\" never finds it equal.",
     "Use \"==\" and a text with lower-case letters, or compare the value that decides the color."},
    {ProblemCode::ExpressionMeaning, Warning, "expression.meaning", "At \"%1\": %2",
     "An operation combines values of types that do not fit, so its result is not what the expression says. "
     "An expression for a text has all constants as texts, one for a number has all texts as numbers.",
     "Follow the advice in the message. \"corvex expr\" prints the code of an expression."},
    {ProblemCode::ExpressionPercent, Warning, "expression.percent",
     "On the device, \"%1\" is a fraction of 1, not a percentage. Write %2 for %3 %.",
     "Opacity and scale are percentages in the project and fractions on the device. Expressions, rules and "
     "assignments use the value on the device.",
     "Divide the constant by 100."},
    {ProblemCode::ExpressionTarget, Warning, "expression.target", "\"%1\" can only be read.",
     "An assignment sets a property that the device does not change.",
     "Assign another property or a variable."},
    {ProblemCode::NumberUnreadable, Error, "number.unreadable",
     "\"%1\" is not a number that the device supports.",
     "A number variable contains a text. The device gets no value for it.",
     "Set a number: an integer of 32 bits, or a decimal."},
    {ProblemCode::ReferenceElement, Error, "reference.element", "Cannot find element \"%1\" in the screen.",
     "An expression, a state or a list names an element that its screen does not have.",
     "Correct the name; \"corvex tree\" lists the elements."},
    {ProblemCode::ReferenceMissing, Error, "reference.missing", "Cannot find \"%1\" in the project.",
     "A reference names an object that the project does not have.", "Correct the name, or add the object."},
    {ProblemCode::StateProperty, Error, "state.property", "\"%1\" has no property \"%2\".",
     "A state or an action sets a property that the element does not have.",
     "Correct the property; \"corvex tree\" lists those of an element."},
    {ProblemCode::StateIgnored, Warning, "state.ignored", "The device does not set \"%1\" of \"%2\" here.",
     "A state or an action sets an expression, a handler or another property that the device cannot change. "
     "The "
     "build leaves it out.",
     "Set the plain property instead, such as \"text\" instead of \"textBinding\"."},
    {ProblemCode::StateValue, Error, "state.value",
     "\"%1\" is not a valid value for the property \"%2\" of \"%3\".",
     "A state or an action sets a value that is not valid for the property.", "Set a valid value."},
    {ProblemCode::StateRange, Warning, "state.range",
     "\"%1\" is out of range for \"%2\" of \"%3\", which takes numbers %4.",
     "A state or an action sets a number outside of the range that editors offer. What the device does with "
     "it is undefined.",
     "Set a number within the range."},
    {ProblemCode::CodeUnreadable, Error, "code.unreadable", "The device cannot read the generated code: %1",
     "A value or an expression produces code that the script language does not accept.",
     "Correct the property that the problem names."},
    {ProblemCode::ScreenLook, Error, "screen.look", nullptr,
     "An error occurred while the screen was running, or a part of it is not visible.",
     "Look at the screen with \"corvex preview\"."},
};

static_assert(std::ranges::all_of(kinds,
                                  [](const ProblemKind &kind) {
                                      return &kinds[qToUnderlying(kind.code)] == &kind;
                                  }),
              "the rows must have the order of ProblemCode");

} // namespace

const ProblemKind &ProblemKind::of(ProblemCode code)
{
    return kinds[qToUnderlying(code)];
}

std::span<const ProblemKind> ProblemKind::all()
{
    return kinds;
}

QLatin1StringView ProblemKind::severityWord() const
{
    switch (severity) {
    case Warning:
        return "warning"_L1;
    case Hint:
        return "hint"_L1;
    case Error:
        break;
    }
    return "error"_L1;
}

} // namespace Halvane::Corvex::Designer
