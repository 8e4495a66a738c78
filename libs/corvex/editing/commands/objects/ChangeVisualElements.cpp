// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/objects/ChangeVisualElements.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editing/commands/objects/ChangeProperty.h"
#include "corvex/project/elements/VisualElement.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

ChangeVisualElements::ChangeVisualElements(const SharedProperty &property,
                                           const QList<VisualElement *> &elements, UndoCommand *parent)
    : ChangeVisualElements(property, property ? property->valueString() : QString(), elements, parent)
{ }

ChangeVisualElements::ChangeVisualElements(const SharedProperty &property, const QString &value,
                                           const QList<VisualElement *> &elements, UndoCommand *parent)
    : ModelCommand(property, true, parent)
{
    if (!owner() || property->id() == "id"_L1) {
        refuse(Common::LocalizationHelper::coreString(u"Elements cannot share this property."_s));
        return;
    }
    setTitle(u"Change property %1"_s, property->name());
    QSet<const DesignerProperty *> known;
    for (const VisualElement *element : elements) {
        const bool isOurs = element && element->project() == owner()->project();
        const SharedProperty target = isOurs ? element->getProperty(property->id()) : SharedProperty();
        if (target && !known.contains(target.data())) {
            known.insert(target.data());
            new ChangeProperty(target, value, true, this);
        }
    }
    if (known.isEmpty()) {
        refuse(Common::LocalizationHelper::coreString(u"No element has such a property."_s));
    }
    setActiveItem(owner());
}

} // namespace Halvane::Corvex::Designer
