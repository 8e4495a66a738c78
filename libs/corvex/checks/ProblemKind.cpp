// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemKind.h"

#include <QtTypeTraits>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using enum Severity;

// In the order of ProblemCode.
constexpr ProblemKind kinds[] = {
    {ProblemCode::FileKept, Error, "file.kept", nullptr,
     "The file holds an object whose class no plug-in knows. It is kept, and the device will not have it.",
     "Install the plug-in that the object comes from, or delete the object from the file."},
    {ProblemCode::FileDropped, Error, "file.dropped", nullptr,
     "A part of the file could not be read. Saving the project loses it.",
     "Correct the file at this line. The next save drops what is still wrong."},
    {ProblemCode::ModelUnknown, Error, "model.unknown", nullptr,
     "The project is for a device model that is not installed.",
     "Install the model, or choose another with \"corvex edit FILE model NAME\"."},
    {ProblemCode::NameFormat, Error, "name.format", nullptr,
     "The name has characters that the script language of the device does not take in a name.",
     "Use letters, digits and underscores, at least two characters, and begin with a letter."},
    {ProblemCode::NameLength, Error, "name.length", nullptr, "The name is too long.",
     "Choose a shorter name."},
    {ProblemCode::NameReserved, Error, "name.reserved", nullptr,
     "The name has a meaning of its own in the script language or in expressions.", "Choose another name."},
    {ProblemCode::NameTaken, Error, "name.taken", nullptr,
     "Another object that expressions could mean has the same name.", "Rename one of the two."},
    {ProblemCode::NameInvalid, Error, "name.invalid", nullptr,
     "A project or an image has a name that no file can have everywhere.",
     "Rename it with \"corvex rename\"."},
    {ProblemCode::ValueInvalid, Error, "value.invalid", nullptr,
     "The property holds a value that it cannot use.", "Set a value that the message allows."},
    {ProblemCode::ListIncomplete, Error, "list.incomplete", nullptr,
     "A project has no screen, or a screen has no element.", "Add one."},
    {ProblemCode::GroupMembers, Error, "group.members", nullptr,
     "A group has fewer than two members, or one of them has a problem.",
     "Take the group apart, or solve the problem of the member."},
    {ProblemCode::GroupOrder, Error, "group.order", nullptr,
     "The order of a group does not name each member once.", "Set \"indexes\" to the names of all members."},
    {ProblemCode::LinkTarget, Error, "link.target", nullptr,
     "A link is not set, or what it names is not there or of another class.",
     "Link an object of the class that the message asks for."},
    {ProblemCode::ImageFile, Error, "image.file", nullptr,
     "The file of an image is missing in the folder of images, or it holds no image.",
     "Put the file back, or replace the image with \"corvex edit FILE replace-image\"."},
    {ProblemCode::ChannelShared, Error, "channel.shared", nullptr,
     "Two elements use one channel of the device.", "Give one of them another channel."},
    {ProblemCode::ChannelSignal, Error, "channel.signal", nullptr,
     "A list of channels in the configuration has a signal that the channel cannot carry, or two settings "
     "share a line.",
     "Correct the list, or switch one of the two settings off."},
    {ProblemCode::PasswordEmpty, Error, "password.empty", nullptr,
     "A password is switched on and has no text.", "Set the password, or switch it off."},
    {ProblemCode::FieldbusMap, Error, "fieldbus.map", nullptr,
     "An entry of a fieldbus variable is incomplete, twice there, or of a form that the device cannot use.",
     "Correct the entry that the message names."},
    {ProblemCode::ExpressionInvalid, Error, "expression.invalid", nullptr,
     "An expression cannot be translated for the device.",
     "Correct the expression; \"corvex expr\" says how the device reads it."},
    {ProblemCode::NumberUnreadable, Error, "number.unreadable",
     "\"%1\" is no number that the device can hold.",
     "A number variable holds a text. The device gets no value for it.",
     "Set a number: an integer of 32 bits, or a decimal."},
    {ProblemCode::ReferenceElement, Error, "reference.element", "Cannot find element \"%1\" in the screen.",
     "An expression, a state or a list names an element that its screen does not have.",
     "Correct the name; \"corvex tree\" lists the elements."},
    {ProblemCode::ReferenceMissing, Error, "reference.missing", "Cannot find \"%1\" in the project.",
     "Something names an object that the project does not have.",
     "Correct the name, or add what it should name."},
    {ProblemCode::StateProperty, Error, "state.property", "\"%1\" has no property \"%2\".",
     "A state or an action sets a property that the element does not have.",
     "Correct the property; \"corvex tree\" lists those of an element."},
    {ProblemCode::StateValue, Error, "state.value", "\"%1\" is no value for the property \"%2\" of \"%3\".",
     "A state or an action sets a value that the property cannot read.", "Set a value of the right form."},
    {ProblemCode::CodeUnreadable, Error, "code.unreadable",
     "The generated code cannot be read by the device: %1",
     "A value or an expression gives code that the script language does not take.",
     "Correct the property that the problem names."},
    {ProblemCode::ScreenLook, Error, "screen.look", nullptr,
     "Something went wrong while the screens ran, or cannot be seen on them.",
     "Look at the screen with \"corvex preview\"."},
};

static_assert(std::ranges::all_of(kinds,
                                  [](const ProblemKind &kind) {
                                      return &kinds[qToUnderlying(kind.code)] == &kind;
                                  }),
              "each row stands at the place of its code");

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
