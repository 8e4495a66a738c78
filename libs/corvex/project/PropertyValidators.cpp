// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyValidators.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/TextHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/project/GroupElement.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/values/ListInfo.h"
#include "corvex/values/MathInfo.h"
#include "corvex/values/ObjectLinkInfo.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString translated(const char *message)
{
    return Common::LocalizationHelper::coreString(QString::fromLatin1(message));
}

// The rules for names. Each answers whether the name passes.

//! A letter, then at least one letter, digit or underscore; ASCII alone.
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
    const bool isItself = object->getIdName() == name && list->itemList()->contains(object);
    return list->listItemCount(name) == (isItself ? 1 : 0);
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

bool isNoMathFunction(const DesignerObject *, const QString &name)
{
    static const QSet<QString> functions(MathInfo::mathFunctions().begin(), MathInfo::mathFunctions().end());
    return !functions.contains(name);
}

struct NameRule
{
    bool (*passes)(const DesignerObject *object, const QString &name);
    const char *message;
};

constexpr char wrongFormat[] =
    "The name is in the wrong format. Only letters, numbers and underscore are allowed. "
    "The first character must be a letter.";
constexpr char notUnique[] = "The name is not unique.";
constexpr char reserved[] = "This name is reserved.";
constexpr char sameAsScreen[] = "The name cannot be the same as the screen's name.";
constexpr char sameAsVariable[] = "The name cannot be the same as the project variables.";

// The rules of each kind in the order in which they are asked; the first that fails is told.
constexpr NameRule variableRules[] = {
    {&hasGoodFormat, wrongFormat},
    {&isUniqueName, notUnique},
    {&isNotReserved, reserved},
    {&isNoScreenOfProject, sameAsScreen},
    {&isNoVariableOfProject, sameAsVariable},
    {&isNoMathFunction, "The name cannot be the same as the standard math functions."},
};
constexpr NameRule screenRules[] = {
    {&hasGoodFormat, wrongFormat},
    {&isShortEnough<247>, "The screen's name cannot have more than 247 characters."},
    {&isUniqueName, notUnique},
    {&isNotReserved, reserved},
    {&isNoElementOfIt, notUnique},
    {&isNoVariableOfProject, sameAsVariable},
};
constexpr NameRule elementRules[] = {
    {&hasGoodFormat, wrongFormat},   {&isShortEnough<255>, "The name cannot have more than 255 characters."},
    {&isUniqueName, notUnique},      {&isNotReserved, reserved},
    {&isNotItsScreen, sameAsScreen}, {&isNoVariableOfProject, sameAsVariable},
};

template<size_t count>
const char *brokenRule(const NameRule (&rules)[count], const DesignerObject *object, const QString &name)
{
    const auto broken = std::find_if(std::begin(rules), std::end(rules),
                                     [&](const NameRule &rule) { return !rule.passes(object, name); });
    return broken == std::end(rules) ? nullptr : broken->message;
}

bool isOnlyOneOnChannel(const DesignerProperty *property, const char *message, QString &error)
{
    const DesignerObject *element = property->parentObject();
    if (!element->screen()) {
        return true;
    }
    const QList<const DesignerObject *> sharers =
        element->screen()->elementIndex().withChannel(element->className(), property->valueString());
    const auto other = std::find_if(sharers.begin(), sharers.end(),
                                    [element](const DesignerObject *sharer) { return sharer != element; });
    if (other == sharers.end()) {
        return true;
    }
    error = translated(message).arg(element->getIdName(), (*other)->getIdName());
    return false;
}

} // namespace

bool PropertyValidators::identifierElementValidator(const DesignerProperty *property, QString &error)
{
    const DesignerObject *object = property->parentObject();
    const QString reason = nameError(object, object->getIdName());
    error.append(reason);
    return reason.isEmpty();
}

QString PropertyValidators::nameError(const DesignerObject *object, const QString &name)
{
    const char *message = object->isKindOfClass(u"ProjectVariable"_s)
                              ? brokenRule(variableRules, object, name)
                          : object->isKindOfClass(u"Screen"_s) ? brokenRule(screenRules, object, name)
                                                               : brokenRule(elementRules, object, name);
    return message ? translated(message) : QString();
}

bool PropertyValidators::visualElementValidator(const DesignerProperty *property, QString &error)
{
    const QString name = ObjectLinkInfo(property->valueString()).objectId();
    const Screen *screen = property->parentObject()->screen();
    if (name.isEmpty()) {
        error = translated("The visual element is not set.");
    } else if (const Element *element = screen ? screen->getElement(name) : nullptr; !element) {
        error = translated("Cannot find visual element \"%1\" in the screen.").arg(name);
    } else if (!element->isKindOfClass(u"VisualElement"_s)) {
        error = translated("\"%1\" is not a visual element.").arg(name);
    } else {
        return true;
    }
    return false;
}

bool PropertyValidators::digitalChannelValidator(const DesignerProperty *property, QString &error)
{
    return isOnlyOneOnChannel(property, "%1 and %2 are connected to same Digital Output.", error);
}

bool PropertyValidators::pwmChannelValidator(const DesignerProperty *property, QString &error)
{
    return isOnlyOneOnChannel(property, "%1 and %2 are connected to same PWM output.", error);
}

bool PropertyValidators::groupElementsValidator(const DesignerProperty *property, QString &error)
{
    if (property->listItemCount() < 2) {
        error = translated("At least two elements are required.");
        return false;
    }
    if (property->itemList()->invalidCount > 0) {
        error = translated("At least one error is found in the children elements of the group.");
        return false;
    }
    return true;
}

bool PropertyValidators::groupIndexesValidator(const DesignerProperty *property, QString &error)
{
    const QStringList names = ListInfo(property->valueString()).toList();
    const SharedProperty elements = property->parentObject()->getProperty(u"elements");
    QHash<QString, qsizetype> positions;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (positions.contains(names.at(i))) {
            error = translated("Element \"%1\" at index %2 is already set at index %3.")
                        .arg(names.at(i), QString::number(i), QString::number(positions.value(names.at(i))));
            return false;
        }
        positions.insert(names.at(i), i);
    }
    const bool isComplete = names.size() == elements->listItemCount()
                            && std::all_of(names.begin(), names.end(), [&elements](const QString &name) {
                                   return elements->hasListItem(name);
                               });
    if (!isComplete) {
        error = translated("There must be %1 elements in the group element \"%2\".")
                    .arg(QString::number(elements->listItemCount()), property->parentObject()->getIdName());
    }
    return isComplete;
}

bool PropertyValidators::screenElementsValidator(const DesignerProperty *property, QString &error)
{
    if (property->listItemCount() == 0) {
        error = translated("At least one element is required.");
        return false;
    }
    return true;
}

bool PropertyValidators::projectScreensValidator(const DesignerProperty *property, QString &error)
{
    if (property->listItemCount() == 0) {
        error = translated("At least one screen is required.");
        return false;
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
