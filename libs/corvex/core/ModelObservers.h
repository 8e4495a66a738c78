// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"

#include <QPointer>

#include <vector>

namespace Halvane::Corvex::Designer {

class DesignerObject;

//! The observers of one project, in the order of their addition. The project owns this registry; its objects
//! access it without knowing the project. The observers are not owned.
class CORVEX_EXPORT ModelObservers
{
    Q_DISABLE_COPY_MOVE(ModelObservers)

public:
    ModelObservers() = default;
    ~ModelObservers();

    //! An observer follows one project at a time; this removes it from the previous one.
    void add(ModelObserver *observer);
    void remove(ModelObserver *observer);
    //! The first observer of the class \a Kind, or null.
    template<class Kind>
    Kind *find() const
    {
        for (ModelObserver *observer : m_observers) {
            if (auto *found = dynamic_cast<Kind *>(observer)) {
                return found;
            }
        }
        return nullptr;
    }

private:
    friend class DesignerObject;
    friend class DesignerProperty;
    friend class Project;

    //! A child that is being inserted, removed or replaced.
    struct Exchange
    {
        SharedProperty list;
        qsizetype index;
        DesignerObject *oldObject; //!< null for an insertion
        DesignerObject *newObject; //!< null for a removal
    };

    //! Whether changes are reported to anybody.
    bool isActive() const { return !m_observers.empty() && !m_isLoading; }
    //! Whether an observer is being called, so that the model must not change.
    bool isCalling() const { return m_callDepth > 0; }
    //! Whether the object is part of an exchange, or below an object that is.
    bool isOnItsWay(const DesignerObject *object) const;

    void reportDeferred();
    template<class... Parameters, class... Arguments>
    void call(void (ModelObserver::*operation)(Parameters...), const Arguments &...arguments);
    //! Reports that a change is about to happen.
    void beginExchange(const Exchange &exchange);
    //! Reports that the change has happened, if \a object is the old or the new object of a running exchange.
    void endExchange(const DesignerObject *object);
    //! Report that the failure of a property, or isValid() of an object, has changed. During an exchange,
    //! when indexes are invalid, this is postponed until its end.
    void reportValidity(const SharedProperty &property);
    void reportObjectValidity(DesignerObject *object);
    void beginLoad();
    void endLoad();
    //! Reports the end of the project and releases all observers.
    void release();
    void dropGaps();

    std::vector<ModelObserver *> m_observers; //!< null for observers removed during a call
    std::vector<Exchange> m_exchanges;        //!< nested, if a hook begins another one
    std::vector<SharedProperty> m_deferred;   //!< whose validity changed during an exchange
    std::vector<QPointer<DesignerObject>> m_deferredObjects;
    int m_callDepth = 0;
    bool m_isLoading = false;
};

template<class... Parameters, class... Arguments>
void ModelObservers::call(void (ModelObserver::*operation)(Parameters...), const Arguments &...arguments)
{
    Q_ASSERT_X(!isCalling(), "ModelObserver", "An observer must not change the model.");
    ++m_callDepth;
    // Observers added during the call are notified from the next change on.
    const std::size_t count = m_observers.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (ModelObserver *observer = m_observers[i]) {
            (observer->*operation)(arguments...);
        }
    }
    --m_callDepth;
    dropGaps();
}

} // namespace Halvane::Corvex::Designer
