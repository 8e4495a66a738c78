// SPDX-License-Identifier: MIT
// How objects and their owners know whether they are valid: each edit updates only the owners of an object;
// only DesignerObject::validate() checks everything below.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ItemList.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/core/private/DesignerObjectData.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

bool DesignerObject::validate()
{
    if (d->validationDisabled) {
        return d->isValid;
    }
    d->isValidatingChildren = true;
    for (DesignerObject *child : childObjects()) {
        child->validate();
    }
    validateProperties();
    return d->isValid;
}

void DesignerObject::validateWhatWasRead()
{
    d->validationDisabled = false;
    d->isValidatingChildren = true;
    for (DesignerObject *child : childObjects()) {
        child->validateWhatWasRead();
    }
    validateProperties();
}

void DesignerObject::validateProperties()
{
    d->isValidatingChildren = false;
    if (d->validationDisabled) {
        return;
    }
    for (DesignerProperty *property : d->properties) {
        property->validate();
    }
    updateValidity();
}

void DesignerObject::updateValidity()
{
    QStringList errors;
    const bool isStale = std::exchange(d->hasRefusedValue, false);
    for (DesignerProperty *property : d->properties) {
        if (!property->isValid() && (!isStale || !property->validate())) {
            const QString error = property->errorString();
            errors.append(u"%1: %2"_s.arg(
                property->name(),
                error.isEmpty() ? Common::LocalizationHelper::coreString(u"Unknown Error"_s) : error));
        }
    }
    d->validationErrors = errors.isEmpty() ? nullptr : std::make_unique<QStringList>(errors);
    setValid(errors.isEmpty());
    if (errors.isEmpty() == d->validationErrorSet) {
        d->validationErrorSet = !errors.isEmpty();
        if (d->validationErrorSet) {
            emit validationError();
        } else {
            emit resetValidationError();
        }
    }
}

bool DesignerObject::isValid() const
{
    return d->isValid;
}

void DesignerObject::setValid(bool valid)
{
    if (valid == d->isValid) {
        return;
    }
    d->isValid = valid;
    if (ModelObservers *observers = activeObservers()) {
        observers->reportObjectValidity(this);
    }
    // A slot connected to the owner may remove this object from its list.
    const QList<DesignerProperty *> lists = d->lists.all();
    for (DesignerProperty *list : lists) {
        list->items().invalidCount += valid ? -1 : 1;
        list->parentObject()->childValidityChanged(*list);
    }
    if (const SharedProperty slot = objectProperty()) {
        slot->parentObject()->childValidityChanged(*slot);
    }
}

void DesignerObject::childValidityChanged(DesignerProperty &property)
{
    if (d->validationDisabled || d->isValidatingChildren) {
        return;
    }
    const bool wasValid = property.isValid();
    if (property.validate() != wasValid) {
        updateValidity();
    }
}

const QStringList &DesignerObject::validationErrors() const
{
    static const QStringList none;
    return d->validationErrors ? *d->validationErrors : none;
}

void DesignerObject::setValidationError(bool set)
{
    d->validationErrorSet = set;
}

bool DesignerObject::validationErrorSet() const
{
    return d->validationErrorSet;
}

void DesignerObject::setDisableValidation(bool disable)
{
    d->validationDisabled = disable;
}

bool DesignerObject::disabledValidation() const
{
    return d->validationDisabled;
}

} // namespace Halvane::Corvex::Designer
