// SPDX-License-Identifier: MIT
#include "corvex/editing/references/ReferenceIndex.h"

#include "corvex/editing/references/ReferenceScanner.h"
#include "corvex/editing/references/ReferenceTarget.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

bool ReferenceIndex::Entry::operator<(const Entry &other) const
{
    if (scope != other.scope) {
        return std::less<>()(scope, other.scope);
    }
    const int order = name.compare(other.name);
    return order < 0 || (order == 0 && std::less<>()(property.data(), other.property.data()));
}

ReferenceIndex &ReferenceIndex::of(Project *project)
{
    auto *index = project->observers().find<ReferenceIndex>();
    if (!index) {
        index = new ReferenceIndex;
        project->observers().add(index);
    }
    if (!std::exchange(index->m_isBuilt, true)) {
        index->updateAll(project, true);
    }
    return *index;
}

QList<ReferenceIndex::Entry> ReferenceIndex::entriesOf(const Mention &mention, const Screen *screen,
                                                       const SharedProperty &property)
{
    if (!mention.kinds.testFlag(NamedKind::Element)) {
        return {{nullptr, mention.path, property}};
    }
    QList<Entry> entries;
    // A path may start with the name of another screen and go on there, so its names are known everywhere.
    const bool isKnownEverywhere = mention.kinds != NamedKind::Element || mention.path.contains(u'.');
    for (const QStringView segment : QStringView(mention.path).split(u'.')) {
        entries.append({screen, segment.toString(), property});
        if (isKnownEverywhere) {
            entries.append({nullptr, segment.toString(), property});
        }
    }
    if (mention.kinds.testAnyFlags(NamedKind::Image)) {
        entries.append({nullptr, mention.path, property});
    }
    return entries;
}

void ReferenceIndex::update(const SharedProperty &property, const QString &text, bool add)
{
    if (text.isEmpty()) {
        return;
    }
    const Screen *screen = property->parentObject()->screen();
    for (const Mention &mention : ReferenceForm::mentions(*property, text)) {
        for (const Entry &entry : entriesOf(mention, screen, property)) {
            if (add) {
                m_entries.insert(entry);
            } else {
                m_entries.erase(entry);
            }
        }
    }
}

void ReferenceIndex::updateAll(const DesignerObject *object, bool add)
{
    ReferenceScanner::visitSites(object, true, [this, add](const SharedProperty &property) {
        update(property, property->valueString(), add);
    });
}

void ReferenceIndex::valueChanged(const SharedProperty &property, const QString &previousValue)
{
    if (m_isBuilt && ReferenceForm::of(*property)) {
        update(property, previousValue, false);
        update(property, property->valueString(), true);
    }
}

void ReferenceIndex::inserted(const SharedProperty &, qsizetype, DesignerObject *object)
{
    if (m_isBuilt) {
        updateAll(object, true);
    }
}

void ReferenceIndex::aboutToRemove(const SharedProperty &, qsizetype, DesignerObject *object)
{
    if (m_isBuilt) {
        updateAll(object, false);
    }
}

void ReferenceIndex::aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                                    DesignerObject *)
{
    aboutToRemove(list, index, oldObject);
}

void ReferenceIndex::replaced(const SharedProperty &list, qsizetype index, DesignerObject *,
                              DesignerObject *newObject)
{
    inserted(list, index, newObject);
}

void ReferenceIndex::projectAboutToLoad()
{
    m_entries.clear();
    m_isBuilt = false;
}

void ReferenceIndex::projectAboutToBeDestroyed()
{
    delete this;
}

void ReferenceIndex::find(const Screen *scope, const QString &name, QSet<SharedProperty> &found) const
{
    const auto isFound = [&](const Entry &entry) { return entry.scope == scope && entry.name == name; };
    for (auto entry = m_entries.lower_bound({scope, name, {}}); entry != m_entries.end() && isFound(*entry);
         ++entry) {
        // A site whose object was deleted in its place is not told apart from other lists any more.
        if (entry->property->parentObject()) {
            found.insert(entry->property);
        }
    }
}

QList<SharedProperty> ReferenceIndex::candidates(const ReferenceTarget &target) const
{
    QSet<SharedProperty> found;
    for (const QString &name : target.names()) {
        find(nullptr, name, found);
        if (target.screen()) {
            find(target.screen(), name, found);
        }
    }
    return found.values();
}

} // namespace Halvane::Corvex::Designer
