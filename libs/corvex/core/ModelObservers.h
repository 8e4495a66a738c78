// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/ModelObserver.h"

#include <QPointer>

#include <vector>

namespace Halvane::Corvex::Designer {

class DesignerObject;

/*! The observers of one project, in the order in which they were added. The project owns this registry, and
    its objects reach it without knowing the project. It owns none of the observers.
*/
class CORVEX_EXPORT ModelObservers
{
    Q_DISABLE_COPY_MOVE(ModelObservers)

public:
    ModelObservers() = default;
    ~ModelObservers();

    //! An observer follows one project at a time and leaves the one before.
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

    //! A child that is coming to a place, leaving it, or both.
    struct Exchange
    {
        SharedProperty list;
        qsizetype index;
        DesignerObject *oldObject; //!< null for an insertion
        DesignerObject *newObject; //!< null for a removal
    };

    //! Whether anybody hears of changes.
    bool isActive() const { return !m_observers.empty() && !m_isLoading; }
    //! Whether an observer is being called, so that the model must not change.
    bool isCalling() const { return m_callDepth > 0; }
    //! Whether the object is in an exchange, or below an object that is.
    bool isOnItsWay(const DesignerObject *object) const;

    void reportDeferred();
    template<class... Parameters, class... Arguments>
    void call(void (ModelObserver::*operation)(Parameters...), const Arguments &...arguments);
    //! Reports what is about to happen.
    void beginExchange(const Exchange &exchange);
    //! Reports that it has happened, if \a object is the old or the new one of an exchange that has begun.
    void endExchange(const DesignerObject *object);
    //! Report that the failure of a property, or that isValid() of an object, has changed; after the exchange
    //! if there is one, in the middle of which indexes are of no use.
    void reportValidity(const SharedProperty &property);
    void reportObjectValidity(DesignerObject *object);
    void beginLoad();
    void endLoad();
    //! Reports the end of the project and releases all observers.
    void release();
    void dropGaps();

    std::vector<ModelObserver *> m_observers; //!< null where one left while observers were called
    std::vector<Exchange> m_exchanges;        //!< a hook may begin another one
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
    // Those that are added meanwhile hear from the next operation on.
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
