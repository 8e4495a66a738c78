// SPDX-License-Identifier: MIT
#include "corvex/core/ModelObservers.h"

#include "corvex/core/DesignerObject.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

ModelObserver::~ModelObserver()
{
    if (m_observers) {
        m_observers->remove(this);
    }
}

ModelObservers::~ModelObservers()
{
    release();
}

void ModelObservers::add(ModelObserver *observer)
{
    if (observer->m_observers == this) {
        return;
    }
    if (observer->m_observers) {
        observer->m_observers->remove(observer);
    }
    observer->m_observers = this;
    m_observers.push_back(observer);
}

void ModelObservers::remove(ModelObserver *observer)
{
    if (observer->m_observers == this) {
        observer->m_observers = nullptr;
        *std::ranges::find(m_observers, observer) = nullptr;
        dropGaps();
    }
}

void ModelObservers::dropGaps()
{
    if (!isCalling()) {
        std::erase(m_observers, nullptr);
    }
}

bool ModelObservers::isOnItsWay(const DesignerObject *object) const
{
    if (m_exchanges.empty()) {
        return false;
    }
    for (; object; object = object->ownerObject()) {
        const auto holds = [object](const Exchange &exchange) {
            return exchange.oldObject == object || exchange.newObject == object;
        };
        if (std::ranges::any_of(m_exchanges, holds)) {
            return true;
        }
    }
    return false;
}

void ModelObservers::beginExchange(const Exchange &exchange)
{
    const auto &[list, index, oldObject, newObject] = exchange;
    if (oldObject && newObject) {
        call(&ModelObserver::aboutToReplace, list, index, oldObject, newObject);
    } else if (newObject) {
        call(&ModelObserver::aboutToInsert, list, index, newObject);
    } else {
        call(&ModelObserver::aboutToRemove, list, index, oldObject);
    }
    m_exchanges.push_back(exchange);
}

void ModelObservers::endExchange(const DesignerObject *object)
{
    const auto concerns = [object](const Exchange &exchange) {
        return exchange.oldObject == object || exchange.newObject == object;
    };
    const auto found = std::ranges::find_if(m_exchanges, concerns);
    if (found == m_exchanges.end()) {
        return;
    }
    const Exchange exchange = std::move(*found);
    m_exchanges.erase(found);
    const auto &[list, index, oldObject, newObject] = exchange;
    if (oldObject && newObject) {
        call(&ModelObserver::replaced, list, index, oldObject, newObject);
    } else if (newObject) {
        call(&ModelObserver::inserted, list, index, newObject);
    } else {
        call(&ModelObserver::removed, list, index, oldObject);
    }
    if (m_exchanges.empty()) {
        reportDeferred();
    }
}

void ModelObservers::reportValidity(const SharedProperty &property)
{
    if (m_exchanges.empty()) {
        call(&ModelObserver::validityChanged, property);
    } else {
        m_deferred.push_back(property);
    }
}

void ModelObservers::reportObjectValidity(DesignerObject *object)
{
    if (m_exchanges.empty()) {
        call(&ModelObserver::objectValidityChanged, object);
    } else {
        m_deferredObjects.push_back(object);
    }
}

void ModelObservers::reportDeferred()
{
    for (const SharedProperty &property : std::exchange(m_deferred, {})) {
        if (const DesignerObject *owner = property->parentObject(); owner && owner->project()) {
            call(&ModelObserver::validityChanged, property);
        }
    }
    for (const QPointer<DesignerObject> &object : std::exchange(m_deferredObjects, {})) {
        if (object && object->project()) {
            call(&ModelObserver::objectValidityChanged, object.data());
        }
    }
}

void ModelObservers::beginLoad()
{
    call(&ModelObserver::projectAboutToLoad);
    m_isLoading = true;
}

void ModelObservers::endLoad()
{
    m_isLoading = false;
    call(&ModelObserver::projectLoaded);
}

void ModelObservers::release()
{
    call(&ModelObserver::projectAboutToBeDestroyed);
    for (ModelObserver *observer : m_observers) {
        observer->m_observers = nullptr;
    }
    m_observers.clear();
}

} // namespace Halvane::Corvex::Designer
