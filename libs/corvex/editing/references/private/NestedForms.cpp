// SPDX-License-Identifier: MIT
#include "corvex/editing/references/private/NestedForms.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/project/elements/Element.h"

#include <memory>
#include <mutex>

namespace Halvane::Corvex::Designer {

NestedForms::NestedForms()
{
    const DesignerFactory *factory = DesignerFactory::instance();
    for (const QString &className : factory ? factory->creatableNames() : QStringList()) {
        const std::unique_ptr<DesignerObject> object(factory->createUnowned(className));
        if (!kindCast<Element>(object.get())) {
            continue;
        }
        for (const SharedProperty &property : object->properties()) {
            if (property->references() == Form::Link) {
                m_links.insert(property->id());
            } else if (property->references() == Form::Expression) {
                m_expressions.insert(property->id());
            }
        }
    }
}

const NestedForms &NestedForms::current()
{
    static std::mutex mutex;
    static std::shared_ptr<const NestedForms> shared;
    static int sharedGeneration = -1;
    static thread_local std::shared_ptr<const NestedForms> known;
    static thread_local int knownGeneration = -1;
    if (const int generation = DesignerFactory::generation(); knownGeneration != generation) {
        const std::lock_guard lock(mutex);
        if (sharedGeneration != generation) {
            shared.reset(new NestedForms);
            sharedGeneration = generation;
        }
        known = shared;
        knownGeneration = generation;
    }
    return *known;
}

} // namespace Halvane::Corvex::Designer
