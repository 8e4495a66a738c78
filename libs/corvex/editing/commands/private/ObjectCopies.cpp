// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/ObjectCopies.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"
#include "corvex/editing/commands/private/FreeNames.h"
#include "corvex/editing/references/ReferenceForm.h"
#include "corvex/editing/references/ReferenceScanner.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

ObjectCopies::ObjectCopies(const QList<DesignerObject *> &originals, const QString &name)
{
    FreeNames names;
    names.reserve(name);
    for (const DesignerObject *original : originals) {
        const qsizetype firstPair = m_pairs.size();
        if (!copy(*original)) {
            m_copies.clear();
            return;
        }
        nameCopies(firstPair, firstPair == 0 ? name : QString(), names);
    }
    for (const Pair &pair : std::as_const(m_pairs)) {
        followReferences(pair);
    }
}

bool ObjectCopies::copy(const DesignerObject &original)
{
    m_copies.emplace_back(DesignerObject::createCopy(&original, false));
    DesignerObject *copy = m_copies.back().get();
    if (!copy) {
        m_error = LocalizationHelper::coreString(u"\"%1\" cannot be copied."_s).arg(original.objectPath());
    }
    return copy && addPairs(original, *copy);
}

//! Returns false for a group that contains an object that cannot be renamed.
bool ObjectCopies::addPairs(const DesignerObject &original, DesignerObject &copy)
{
    m_pairs.append({&original, &copy});
    for (const SharedProperty &property : copy.properties()) {
        const SharedProperty own = original.getProperty(property->id());
        if (property->isObject() && own && own->objectValue() && property->objectValue()
            && !addPairs(*own->objectValue(), *property->objectValue())) {
            return false;
        }
        if (!property->isList() || !own) {
            continue;
        }
        if (property->itemList()->hasKeptItems() && kindCast<Element>(&copy)) {
            const KeptItem &kept = property->itemList()->keptItems().constFirst();
            m_error =
                LocalizationHelper::coreString(
                    u"\"%1\" cannot be duplicated: it contains \"%2\", and no plug-in provides its class "
                    "%3."_s)
                    .arg(original.objectPath(), kept.name, kept.className);
            return false;
        }
        for (DesignerObject *item : property->listItems()) {
            const DesignerObject *ownItem = own->getListItem(item->getIdName());
            if (ownItem && !addPairs(*ownItem, *item)) {
                return false;
            }
        }
    }
    return true;
}

//! Names the copy of the pair \a firstPair, with \a wanted unless it is empty, and, if it is an element, the
//! elements in it. Elements of a copied screen keep their names.
void ObjectCopies::nameCopies(qsizetype firstPair, const QString &wanted, FreeNames &names)
{
    const DesignerObject *root = m_pairs.at(firstPair).original;
    const ReferenceTarget target(root);
    Family &family = familyOf(target);
    family.target.add(target);
    for (qsizetype i = firstPair; i < m_pairs.size(); ++i) {
        const auto &[original, copy] = m_pairs.at(i);
        if (i == firstPair || (kindCast<Element>(root) && kindCast<Element>(original))) {
            const QString name =
                i == firstPair && !wanted.isEmpty() ? wanted : names.nameForCopyOf(*original);
            family.newNames.insert(original->getIdName(), name);
            copy->setDisableValidation(true);
            copy->setIdName(name);
            copy->setDisableValidation(false);
        }
    }
}

ObjectCopies::Family &ObjectCopies::familyOf(const ReferenceTarget &target)
{
    const QPair<const void *, int> key{target.screen(), target.kinds().toInt()};
    const auto known = m_familyIndexes.constFind(key);
    if (known != m_familyIndexes.cend()) {
        return m_families.at(*known);
    }
    m_familyIndexes.insert(key, m_families.size());
    return m_families.emplace_back();
}

void ObjectCopies::followReferences(const Pair &pair) const
{
    ReferenceScanner::visitSites(pair.copy, false, [&](const SharedProperty &property) {
        QString text = property->valueString();
        const auto visitor = [&](Mention &mention) { follow(mention, pair.original); };
        if (ReferenceForm::visit(*property, text, visitor)) {
            pair.copy->setDisableValidation(true);
            pair.copy->changePropertyValue(property, text);
            pair.copy->setDisableValidation(false);
        }
    });
}

//! \a owner is the original, because the meaning of a path depends on its screen.
void ObjectCopies::follow(Mention &mention, const DesignerObject *owner) const
{
    const Mention before = mention;
    for (const auto &[target, newNames] : m_families) {
        if (!target.isMeantBy(before, owner)) {
            continue;
        }
        if (newNames.contains(mention.path) || !before.kinds.testFlag(NamedKind::Element)) {
            mention.path = newNames.value(mention.path, mention.path);
            continue;
        }
        QStringList names = mention.path.split(u'.');
        for (QString &name : names) {
            name = newNames.value(name, name);
        }
        mention.path = names.join(u'.');
    }
}

} // namespace Halvane::Corvex::Designer
