// SPDX-License-Identifier: MIT
// The rules for the names of variables, screens and elements. FileNameRules has those of projects and images,
// which are files.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/values/expressions/MathInfo.h"

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

// Each function returns whether the name is valid.

//! A letter, followed by at least one letter, digit or underscore; only ASCII.
bool hasGoodFormat(const DesignerObject *, const QString &name)
{
    const auto isLetter = [](QChar c) { return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z'); };
    return name.size() >= 2 && isLetter(name.front()) && std::all_of(name.begin(), name.end(), [&](QChar c) {
               return isLetter(c) || (c >= u'0' && c <= u'9') || c == u'_';
           });
}

template<int longest>
bool isShortEnough(const DesignerObject *, const QString &name)
{
    return name.size() <= longest;
}

bool isUniqueName(const DesignerObject *object, const QString &name)
{
    return IdentifierInfo(name, {}, {}).isUnique(object);
}

bool isNotReserved(const DesignerObject *, const QString &name)
{
    return !Common::TextHelper::isReservedWord(name);
}

bool isNoOther(const SharedProperty &list, const DesignerObject *object, const QString &name)
{
    return list->listItemCount(name) == (list->itemList()->bears(object, name) ? 1 : 0);
}

bool isNoScreenOfProject(const DesignerObject *object, const QString &name)
{
    return !object->project() || isNoOther(object->project()->screens(), object, name);
}

bool isNoVariableOfProject(const DesignerObject *object, const QString &name)
{
    return !object->project() || isNoOther(object->project()->variables(), object, name);
}

bool isNotItsScreen(const DesignerObject *object, const QString &name)
{
    return !object->screen() || object->screen()->getIdName() != name;
}

bool isNoElementOfIt(const DesignerObject *object, const QString &name)
{
    return static_cast<const Screen *>(object)->elementIndex().count(name) == 0;
}

bool isNoElementOfProject(const DesignerObject *object, const QString &name)
{
    return !object->project() || !object->project()->hasElement(name);
}

bool isNoMathFunction(const DesignerObject *, const QString &name)
{
    static const QSet<QString> functions(MathInfo::mathFunctions().begin(), MathInfo::mathFunctions().end());
    return !functions.contains(name);
}

using enum PropertyValidators::NameFault;

struct NameRule
{
    bool (*passes)(const DesignerObject *object, const QString &name);
    PropertyValidators::NameFault fault;
    const char *message;
};

constexpr char wrongFormat[] =
    "The name is in the wrong format. Only letters, numbers and underscore are allowed. "
    "The first character must be a letter.";
constexpr char tooLong[] = "The name cannot have more than 255 characters.";
constexpr char notUnique[] = "The name is not unique.";
constexpr char reserved[] = "This name is reserved.";
constexpr char sameAsScreen[] = "The name cannot be the same as the screen's name.";
constexpr char sameAsVariable[] = "The name cannot be the same as the project variables.";

// The rules of each kind, in order. The first violated rule is reported.
constexpr NameRule variableRules[] = {
    {&hasGoodFormat, Format, wrongFormat},
    {&isShortEnough<255>, Length, tooLong},
    {&isUniqueName, Taken, notUnique},
    {&isNotReserved, Reserved, reserved},
    {&isNoScreenOfProject, Taken, sameAsScreen},
    {&isNoVariableOfProject, Taken, sameAsVariable},
    {&isNoElementOfProject, Taken, notUnique},
    {&isNoMathFunction, Reserved, "The name cannot be the same as the standard math functions."},
};
constexpr NameRule screenRules[] = {
    {&hasGoodFormat, Format, wrongFormat},
    {&isShortEnough<247>, Length, "The screen's name cannot have more than 247 characters."},
    {&isUniqueName, Taken, notUnique},
    {&isNotReserved, Reserved, reserved},
    {&isNoElementOfIt, Taken, notUnique},
    {&isNoVariableOfProject, Taken, sameAsVariable},
};
constexpr NameRule elementRules[] = {
    {&hasGoodFormat, Format, wrongFormat},  {&isShortEnough<255>, Length, tooLong},
    {&isUniqueName, Taken, notUnique},      {&isNotReserved, Reserved, reserved},
    {&isNotItsScreen, Taken, sameAsScreen}, {&isNoVariableOfProject, Taken, sameAsVariable},
};

using NameRules = std::span<const NameRule>;

NameRules rulesFor(const DesignerObject *object)
{
    return object->isKindOfClass(u"ProjectVariable"_s) ? NameRules(variableRules)
           : object->isKindOfClass(u"Screen"_s)        ? NameRules(screenRules)
                                                       : NameRules(elementRules);
}

//! Null if the name is valid.
const NameRule *brokenRule(const DesignerObject *object, const QString &name)
{
    const NameRules rules = rulesFor(object);
    const auto broken =
        std::ranges::find_if(rules, [&](const NameRule &rule) { return !rule.passes(object, name); });
    return broken == rules.end() ? nullptr : &*broken;
}

} // namespace

bool PropertyValidators::identifierElementValidator(const DesignerProperty *property, QString &error)
{
    const DesignerObject *object = property->parentObject();
    const NameRule *broken = brokenRule(object, object->getIdName());
    if (broken) {
        error.append(Common::LocalizationHelper::coreString(QString::fromLatin1(broken->message)));
    }
    return !broken;
}

PropertyValidators::NameFault PropertyValidators::nameFault(const DesignerObject *object, const QString &name)
{
    const NameRule *broken = brokenRule(object, name);
    return broken ? broken->fault : None;
}

QString PropertyValidators::nameError(const DesignerObject *object, const QString &name)
{
    IdentifierInfo info = object->getIdInfo();
    info.setName(name);
    const QString text = info.toString();
    // Surrounding blanks and the separators of the identifier's form would change the name.
    if (!name.isEmpty() && IdentifierInfo(text).name() != name) {
        return Common::LocalizationHelper::coreString(QString::fromLatin1(wrongFormat));
    }
    return object->idProperty()->refusalOf(text);
}

} // namespace Halvane::Corvex::Designer
