// SPDX-License-Identifier: MIT
#include "corvex/editing/references/ReferenceIndex.h"

#include "corvex/editing/references/ReferenceScanner.h"
#include "corvex/editing/references/ReferenceTarget.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

//! The scope of elements that are mentioned from elsewhere.
constexpr char elsewhere = 0;

} // namespace

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
    const QStringList names = mention.path.split(u'.');
    const bool mayBeNoElement = mention.kinds != NamedKind::Element || names.size() > 1;
    for (const QString &name : names) {
        entries.append({screen ? static_cast<const void *>(screen) : &elsewhere, name, property});
        if (mayBeNoElement || !screen) {
            entries.append({nullptr, name, property});
        }
    }
    for (qsizetype i = 1; screen && i < names.size(); ++i) {
        entries.append({&elsewhere, names.first() + u'.' + names.at(i), property});
    }
    if (mention.kinds.testAnyFlags(NamedKind::Image)) {
        entries.append({nullptr, mention.path, property});
    }
    return entries;
}

void ReferenceIndex::update(const SharedProperty &property, const Mention &mention, bool add)
{
    for (const Entry &entry : entriesOf(mention, property->parentObject()->screen(), property)) {
        if (add) {
            m_entries.insert(entry);
        } else {
            m_entries.erase(entry);
        }
    }
}

void ReferenceIndex::updateAll(const DesignerObject *object, bool add)
{
    ReferenceScanner::visitSites(object, true, [this, add](const SharedProperty &property) {
        for (const Mention &mention : ReferenceForm::mentions(*property)) {
            update(property, mention, add);
        }
    });
}

bool ReferenceIndex::sharesName(const Mention &mention, const QSet<QStringView> &names)
{
    if (!names.isEmpty()) {
        for (const QStringView name : QStringView(mention.path).tokenize(u'.')) {
            if (names.contains(name)) {
                return true;
            }
        }
    }
    return false;
}

//! A list may name thousands of objects, of which an edit changes one. Look up only the differences.
void ReferenceIndex::valueChanged(const SharedProperty &property, const QString &previousValue)
{
    if (!m_isBuilt || !ReferenceForm::of(*property)) {
        return;
    }
    const QList<Mention> before = ReferenceForm::mentions(*property, previousValue);
    const QList<Mention> after = ReferenceForm::mentions(*property);
    // Not the algorithms of std::ranges, because clang 14 cannot compile subranges of these iterators.
    const auto [firstBefore, firstAfter] =
        std::mismatch(before.cbegin(), before.cend(), after.cbegin(), after.cend());
    const auto [lastBefore, lastAfter] =
        std::mismatch(before.crbegin(), std::make_reverse_iterator(firstBefore), after.crbegin(),
                      std::make_reverse_iterator(firstAfter));
    QSet<QStringView> removed;
    for (auto mention = firstBefore; mention < lastBefore.base(); ++mention) {
        update(property, *mention, false);
        for (const QStringView name : QStringView(mention->path).split(u'.')) {
            removed.insert(name);
        }
    }
    for (auto mention = after.cbegin(); mention != after.cend(); ++mention) {
        const bool isNew = mention >= firstAfter && mention < lastAfter.base();
        // Other mentions in the value may share a name with the removed ones.
        if (isNew || sharesName(*mention, removed)) {
            update(property, *mention, true);
        }
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

void ReferenceIndex::find(const Screen *screen, const QString &name, QSet<SharedProperty> &found) const
{
    findIn(screen, name, found);
    if (screen) {
        findIn(&elsewhere, name, found);
        findIn(&elsewhere, screen->getIdName() + u'.' + name, found);
    }
}

void ReferenceIndex::findIn(const void *scope, const QString &name, QSet<SharedProperty> &found) const
{
    const auto isFound = [&](const Entry &entry) { return entry.scope == scope && entry.name == name; };
    for (auto entry = m_entries.lower_bound({scope, name, {}}); entry != m_entries.end() && isFound(*entry);
         ++entry) {
        // If the owner was deleted in place, its sites can no longer be distinguished from other lists.
        if (entry->property->parentObject()) {
            found.insert(entry->property);
        }
    }
}

QList<SharedProperty> ReferenceIndex::candidates(const ReferenceTarget &target) const
{
    QSet<SharedProperty> found;
    for (const QString &name : target.names()) {
        find(target.screen(), name, found);
    }
    return found.values();
}

QSet<SharedProperty> ReferenceIndex::mentioning(const Screen *screen, const QString &name) const
{
    QSet<SharedProperty> found;
    find(screen, name, found);
    return found;
}

} // namespace Halvane::Corvex::Designer
