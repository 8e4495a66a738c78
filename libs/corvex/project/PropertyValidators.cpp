// SPDX-License-Identifier: MIT
#include "corvex/core/PropertyValidators.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/GroupElement.h"
#include "corvex/values/records/ListInfo.h"
#include "corvex/values/records/ObjectLinkInfo.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString translated(const char *message)
{
    return Common::LocalizationHelper::coreString(QString::fromLatin1(message));
}

bool isOnlyOneOnChannel(const DesignerProperty *property, const char *message, QString &error)
{
    const DesignerObject *element = property->parentObject();
    if (!element->screen()) {
        return true;
    }
    const DesignerObject *other =
        element->screen()->elementIndex().otherWithChannel(element, property->valueString());
    if (!other) {
        return true;
    }
    error = translated(message).arg(element->getIdName(), other->getIdName());
    return false;
}

} // namespace

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

bool PropertyValidators::channelValidator(const DesignerProperty *property, QString &error)
{
    return isOnlyOneOnChannel(property, "%1 and %2 use the same channel.", error);
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
