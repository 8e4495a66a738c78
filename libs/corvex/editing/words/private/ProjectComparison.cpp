// SPDX-License-Identifier: MIT
#include "corvex/editing/words/private/ProjectComparison.h"

#include "corvex/common/files/FileHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Screen.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString pathOf(const DesignerProperty &property)
{
    const DesignerObject *owner = property.parentObject();
    const QString path = owner->ownerObject() ? owner->objectPath() + u'.' : QString();
    return path + property.id();
}

//! The object as stored in a file, without its own name.
QString contentsOf(const DesignerObject *object)
{
    QString text = DesignerObject::toString(object);
    const QString id = object->idProperty()->valueString();
    const qsizetype place = text.indexOf(id);
    return place < 0 ? text : text.remove(place, id.size());
}

QString screenOf(const DesignerObject *object)
{
    while (object && !kindCast<Screen>(object)) {
        object = object->ownerObject();
    }
    return object ? object->getIdName() : QString();
}

bool isWithin(const DesignerObject *object, const QSet<const DesignerObject *> &some)
{
    while (object && !some.contains(object)) {
        object = object->ownerObject();
    }
    return object;
}

using Holders = QHash<QStringList, QList<const DesignerObject *>>;

//! The owner that shares at least half of the distinctive members, which are those that few owners have.
const DesignerObject *mostAlike(const QList<QStringList> &members, const Holders &holders,
                                const QSet<const DesignerObject *> &taken)
{
    constexpr qsizetype few = 8;
    QHash<const DesignerObject *, qsizetype> shared;
    const DesignerObject *best = nullptr;
    qsizetype telling = 0;
    for (const QStringList &member : members) {
        const QList<const DesignerObject *> known = holders.value(member);
        if (known.size() > few) {
            continue;
        }
        ++telling;
        for (const DesignerObject *holder : known) {
            if (!taken.contains(holder) && ++shared[holder] > shared.value(best)) {
                best = holder;
            }
        }
    }
    return 2 * shared.value(best) >= telling ? best : nullptr;
}

//! Marks a longest increasing subsequence of the numbers.
QList<bool> ascending(const QList<qsizetype> &numbers)
{
    QList<qsizetype> tails; // the index of the smallest last number for each length
    QList<qsizetype> previous(numbers.size(), -1);
    for (qsizetype i = 0; i < numbers.size(); ++i) {
        const auto end = std::ranges::lower_bound(tails, numbers.at(i), {},
                                                  [&numbers](qsizetype place) { return numbers.at(place); });
        const qsizetype length = end - tails.begin();
        previous[i] = length > 0 ? tails.at(length - 1) : -1;
        if (end == tails.end()) {
            tails.append(i);
        } else {
            tails[length] = i;
        }
    }
    QList<bool> isKept(numbers.size(), false);
    for (qsizetype place = tails.isEmpty() ? -1 : tails.constLast(); place >= 0; place = previous.at(place)) {
        isKept[place] = true;
    }
    return isKept;
}

} // namespace

ProjectComparison::ProjectComparison(const DesignerObject &before, const DesignerObject &after)
{
    compareObjects(before, after);
    // The contents of a moved object may themselves have been renamed, or moved out of it.
    while (matchRenamed() || matchAlike() || matchMoved(Within::Screen) || matchMoved(Within::Project)) { }
    for (const Loose &gone : std::as_const(m_gone)) {
        if (!gone.isNested) {
            add(ProjectDiff::Removed, *gone.object);
        }
    }
    for (const Loose &added : std::as_const(m_new)) {
        if (!added.isNested) {
            add(ProjectDiff::Added, *added.object);
        }
    }
}

void ProjectComparison::add(ProjectDiff::Kind kind, const DesignerObject &object, const QString &before,
                            const QString &after)
{
    m_differences.append({kind, object.objectPath(), object.className(), before, after});
}

void ProjectComparison::compareObjects(const DesignerObject &before, const DesignerObject &after)
{
    const auto *image = kindCast<ImageResource>(&before);
    if (const auto *other = image ? kindCast<ImageResource>(&after) : nullptr) {
        compareContents(*image, *other);
    }
    for (const SharedProperty &property : before.properties()) {
        const SharedProperty other = after.getProperty(property->id());
        if (!other) {
            continue;
        }
        if (property->isList()) {
            compareLists(*property, *other);
        } else if (property->isObject()) {
            compareChildren(property->objectValue(), other->objectValue());
        } else if (property->hasFlag(StoredFlag) && property->valueString() != other->valueString()
                   && (property != before.idProperty() || !before.listProperty())) {
            m_differences.append({ProjectDiff::Changed, pathOf(*property), before.className(),
                                  property->valueString(), other->valueString(), property.data(),
                                  other.data()});
        }
    }
}

//! An image file that exists only on one side was not part of the comparison, for example in an old version.
void ProjectComparison::compareContents(const ImageResource &before, const ImageResource &after)
{
    const auto describe = [](const ImageResource &image) {
        const QString digest = Common::FileHelper::md5(image.filePath());
        return digest.isEmpty()
                   ? QString()
                   : u"%1 bytes, MD5 %2"_s.arg(QString::number(QFileInfo(image.filePath()).size()), digest);
    };
    const QString oldText = describe(before);
    const QString newText = describe(after);
    if (!oldText.isEmpty() && !newText.isEmpty() && oldText != newText) {
        m_differences.append(
            {ProjectDiff::Changed, pathOf(*before.imageFile()), before.className(), oldText, newText});
    }
}

void ProjectComparison::compareChildren(const DesignerObject *before, const DesignerObject *after)
{
    const bool isSame = before && after && before->className() == after->className();
    if (isSame) {
        compareObjects(*before, *after);
        return;
    }
    if (before) {
        add(ProjectDiff::Removed, *before);
    }
    if (after) {
        add(ProjectDiff::Added, *after);
    }
}

void ProjectComparison::compareLists(const DesignerProperty &before, const DesignerProperty &after)
{
    QList<const DesignerObject *> keptBefore;
    QList<const DesignerObject *> keptAfter;
    for (const DesignerObject *item : before.listItems()) {
        const DesignerObject *other = after.getListItem(item->getIdName());
        if (other && other->className() == item->className()) {
            keptBefore.append(item);
            compareObjects(*item, *other);
        } else {
            addLoose(m_gone, item, before, false);
        }
    }
    for (const DesignerObject *item : after.listItems()) {
        const DesignerObject *other = before.getListItem(item->getIdName());
        if (other && other->className() == item->className()) {
            keptAfter.append(item);
        } else {
            addLoose(m_new, item, before, false);
        }
    }
    compareOrder(keptBefore, keptAfter);
    compareKept(before, after);
}

void ProjectComparison::compareKept(const DesignerProperty &before, const DesignerProperty &after)
{
    const QList<KeptItem> oldItems = before.itemList()->keptItems();
    const QList<KeptItem> newItems = after.itemList()->keptItems();
    QHash<QByteArray, qsizetype> newTexts;
    for (const KeptItem &item : newItems) {
        ++newTexts[item.xml];
    }
    QHash<QStringList, QList<QByteArray>> gone; // by class and name
    for (const KeptItem &item : oldItems) {
        if (qsizetype &count = newTexts[item.xml]; count > 0) {
            --count;
        } else {
            gone[{item.className, item.name}].append(item.xml);
        }
    }
    const auto note = [this, &before](ProjectDiff::Kind kind, const KeptItem &item, const QByteArray &oldText,
                                      const QByteArray &newText) {
        const DesignerObject *owner = before.parentObject();
        const QString path = owner->ownerObject() ? owner->objectPath() + u'.' : QString();
        m_differences.append(
            {kind, path + item.name, item.className, QString::fromUtf8(oldText), QString::fromUtf8(newText)});
    };
    for (const KeptItem &item : newItems) {
        if (qsizetype &count = newTexts[item.xml]; count > 0) {
            --count;
            QList<QByteArray> &others = gone[{item.className, item.name}];
            if (others.isEmpty()) {
                note(ProjectDiff::Added, item, {}, {});
            } else {
                note(ProjectDiff::Changed, item, others.takeFirst(), item.xml);
            }
        }
    }
    for (const KeptItem &item : oldItems) {
        if (gone[{item.className, item.name}].removeOne(item.xml)) {
            note(ProjectDiff::Removed, item, {}, {});
        }
    }
}

//! Reports the smallest set of objects that must move to produce the new order.
void ProjectComparison::compareOrder(const QList<const DesignerObject *> &before,
                                     const QList<const DesignerObject *> &after)
{
    QHash<QString, qsizetype> places;
    for (qsizetype i = 0; i < before.size(); ++i) {
        places.insert(before.at(i)->getIdName(), i);
    }
    QList<qsizetype> order;
    for (const DesignerObject *item : after) {
        order.append(places.value(item->getIdName()));
    }
    const QList<bool> isKept = ascending(order);
    for (qsizetype i = 0; i < order.size(); ++i) {
        if (!isKept.at(i)) {
            add(ProjectDiff::Moved, *after.at(i), u"place %1"_s.arg(order.at(i) + 1),
                u"place %1"_s.arg(i + 1));
        }
    }
}

//! Adds the object with everything below it, which may have been moved in or out. For a new object, too, \a
//! list belongs to the old project, because its owner may have been renamed.
void ProjectComparison::addLoose(QList<Loose> &to, const DesignerObject *object, const DesignerProperty &list,
                                 bool isNested)
{
    to.append({object,
               pathOf(list),
               {object->className(), object->getIdName(), screenOf(list.parentObject())},
               isNested});
    for (const SharedProperty &property : object->properties()) {
        if (property->isList()) {
            for (const DesignerObject *item : property->listItems()) {
                addLoose(to, item, kindCast<Screen>(object) ? *property : list, true);
            }
        }
    }
}

//! For each object below the given one, the values that its counterpart must share.
QList<QStringList> ProjectComparison::memberKeys(const Loose &loose)
{
    QList<QStringList> keys;
    QList<Loose> members;
    addLoose(members, loose.object, *loose.object->listProperty(), true);
    for (const Loose &member : members.sliced(1)) {
        keys.append({loose.place, loose.object->className(), member.key.at(0), member.key.at(1)});
    }
    return keys;
}

//! Removes the matched objects, and everything below them, from the loose ones.
bool ProjectComparison::removeMatched(const QSet<const DesignerObject *> &matched)
{
    const auto isMatched = [&matched](const Loose &loose) { return isWithin(loose.object, matched); };
    m_gone.removeIf(isMatched);
    m_new.removeIf(isMatched);
    return !matched.isEmpty();
}

bool ProjectComparison::matchMoved(Within within)
{
    const auto keyOf = [within](const Loose &loose) {
        return within == Within::Screen ? loose.key : loose.key.sliced(0, 2);
    };
    const auto isMeant = [within](const Loose &loose) { return within == Within::Screen || !loose.isNested; };
    QHash<QStringList, const Loose *> byName;
    for (const Loose &added : std::as_const(m_new)) {
        if (isMeant(added)) {
            byName.insert(keyOf(added), &added);
        }
    }
    QSet<const DesignerObject *> matched;
    QList<QPair<const DesignerObject *, const DesignerObject *>> pairs;
    for (const Loose &loose : std::as_const(m_gone)) {
        const bool isOpen = isMeant(loose) && !isWithin(loose.object, matched);
        const Loose *other = isOpen ? byName.take(keyOf(loose)) : nullptr;
        if (other) {
            matched += {loose.object, other->object};
            pairs.emplaceBack(loose.object, other->object);
            add(ProjectDiff::Moved, *loose.object, pathOf(*loose.object->listProperty()),
                pathOf(*other->object->listProperty()));
        }
    }
    removeMatched(matched);
    for (const auto &[before, after] : std::as_const(pairs)) {
        compareObjects(*before, *after);
    }
    return !pairs.isEmpty();
}

bool ProjectComparison::matchRenamed()
{
    QSet<QStringList> oldNames;
    QSet<QStringList> newNames;
    for (const Loose &gone : std::as_const(m_gone)) {
        oldNames.insert(gone.key);
    }
    QMultiHash<QPair<QString, QString>, const DesignerObject *> byContents;
    for (const Loose &added : std::as_const(m_new)) {
        newNames.insert(added.key);
        if (!added.isNested && !oldNames.contains(added.key)) {
            byContents.insert({added.place, contentsOf(added.object)}, added.object);
        }
    }
    QSet<const DesignerObject *> matched;
    for (const Loose &loose : std::as_const(m_gone)) {
        if (byContents.isEmpty() || loose.isNested || newNames.contains(loose.key)) {
            continue;
        }
        if (const DesignerObject *other = byContents.take({loose.place, contentsOf(loose.object)})) {
            matched += {loose.object, other};
            add(ProjectDiff::Renamed, *loose.object, loose.object->getIdName(), other->getIdName());
            if (const auto *image = kindCast<ImageResource>(loose.object)) {
                compareContents(*image, *kindCast<ImageResource>(other));
            }
        }
    }
    return removeMatched(matched);
}

//! Matches screens and groups that were both renamed and changed, if most of their contents are equal.
bool ProjectComparison::matchAlike()
{
    Holders byMember;
    for (const Loose &added : std::as_const(m_new)) {
        if (!added.isNested) {
            for (const QStringList &key : memberKeys(added)) {
                byMember[key].append(added.object);
            }
        }
    }
    QSet<const DesignerObject *> matched;
    QList<QPair<const DesignerObject *, const DesignerObject *>> pairs;
    for (const Loose &gone : std::as_const(m_gone)) {
        const DesignerObject *other =
            gone.isNested ? nullptr : mostAlike(memberKeys(gone), byMember, matched);
        if (other) {
            matched += {gone.object, other};
            pairs.emplaceBack(gone.object, other);
            add(ProjectDiff::Renamed, *gone.object, gone.object->getIdName(), other->getIdName());
        }
    }
    removeMatched(matched);
    for (const auto &[before, after] : std::as_const(pairs)) {
        compareObjects(*before, *after);
    }
    return !pairs.isEmpty();
}

} // namespace Halvane::Corvex::Designer
