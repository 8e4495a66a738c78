// SPDX-License-Identifier: MIT
#include "corvex/inspector/private/DefaultValues.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QHash<QString, QString> textsOf(const QString &className)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    const bool isKnown = factory && factory->canCreateObject(className);
    const std::unique_ptr<DesignerObject> sample(isKnown ? factory->createUnowned(className) : nullptr);
    QHash<QString, QString> texts;
    if (sample) {
        for (const SharedProperty &property : sample->properties()) {
            if (!property->isList() && !property->isObject()) {
                const QString text = property->valueString();
                texts.insert(property->id(), text.isNull() ? u""_s : text);
            }
        }
    }
    return texts;
}

} // namespace

QString DefaultValues::of(const DesignerProperty &property)
{
    const DesignerObject *owner = property.parentObject();
    if (!property.hasFlag(StoredFlag) || owner->idProperty() == &property) {
        return {};
    }
    const QString className = owner->className();
    auto known = m_texts.constFind(className);
    if (known == m_texts.cend()) {
        known = m_texts.insert(className, textsOf(className));
    }
    return known->value(property.id());
}

} // namespace Halvane::Corvex::Designer
