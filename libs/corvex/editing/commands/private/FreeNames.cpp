// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/FreeNames.h"

#include "corvex/common/TextHelper.h"
#include "corvex/core/PropertyValidators.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

namespace Halvane::Corvex::Designer {

namespace {

qint64 firstFreeNumber(const DesignerObject &original, const QString &stem)
{
    const QString name = kindCast<Element>(&original) ? original.screen()->uniqueElementName(stem)
                                                      : original.project()->generateUniqueName(stem);
    return name.sliced(stem.size()).toLongLong();
}

} // namespace

QString FreeNames::nameForCopyOf(const DesignerObject &original)
{
    if (kindCast<ImageResource>(&original)) {
        if (!m_images) {
            m_images.emplace(original.project());
        }
        return m_images->freeName(original.getIdName());
    }
    QString stem;
    Common::TextHelper::numberFromString(original.getIdName(), &stem);
    const QString name = numbered(original, stem);
    return name.isEmpty() ? numbered(original, original.baseName()) : name;
}

//! Empty if no number gives a valid name with the stem.
QString FreeNames::numbered(const DesignerObject &original, const QString &stem)
{
    using enum PropertyValidators::NameFault;
    const Screen *screen = kindCast<Element>(&original) ? original.screen() : nullptr;
    qint64 &number = m_nextNumbers[{screen, stem}];
    for (number = number > 0 ? number : firstFreeNumber(original, stem);; ++number) {
        const QString name = stem + QString::number(number);
        const PropertyValidators::NameFault fault = PropertyValidators::nameFault(&original, name);
        if (fault == Format || fault == Length) {
            return {};
        }
        // According to the rules, an object may keep its own name.
        if (fault == None && name != original.getIdName() && !m_given.contains(name)) {
            m_given.insert(name);
            ++number;
            return name;
        }
    }
}

} // namespace Halvane::Corvex::Designer
