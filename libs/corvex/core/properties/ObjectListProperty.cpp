// SPDX-License-Identifier: MIT
#include "corvex/core/properties/ObjectListProperty.h"

#include "corvex/common/TextHelper.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/core/ItemList.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The sort key of an item, computed once for each sort.
struct SortKey
{
    int group = 0;
    QString name; //!< empty in a group that is not sorted
};

struct KindGroup
{
    QLatin1StringView className;
    bool keepsOwnOrder;
};

//! The groups of OrderRule::KindOrder, in their order.
constexpr std::array kindGroups{
    KindGroup{"ProjectVariable"_L1, false}, KindGroup{"HardwareElement"_L1, false},
    KindGroup{"FunctionElement"_L1, false}, KindGroup{"FilterElement"_L1, false},
    KindGroup{"VisualElement"_L1, true},
};

SortKey keyOf(const DesignerObject *item, OrderRule rule)
{
    if (rule != OrderRule::KindOrder) {
        return {0, item->getIdName()};
    }
    const QStringList classNames = item->classNames();
    int group = 0;
    for (const auto &[className, keepsOwnOrder] : kindGroups) {
        if (classNames.contains(className)) {
            return {group, keepsOwnOrder ? QString() : item->getIdName()};
        }
        ++group;
    }
    return {group, QString()};
}

bool isLess(const SortKey &left, const SortKey &right, OrderRule rule)
{
    if (left.group != right.group) {
        return left.group < right.group;
    }
    switch (rule) {
    case OrderRule::InsertionOrder:
        return false;
    case OrderRule::PlainOrder:
        return left.name < right.name;
    case OrderRule::NaturalOrder:
    case OrderRule::KindOrder:
        return Common::TextHelper::naturalLess(left.name, right.name);
    case OrderRule::FileNameOrder:
        return Common::TextHelper::fileNameLess(left.name, right.name);
    }
    Q_UNREACHABLE();
    return false;
}

} // namespace

ObjectListProperty::ObjectListProperty(DesignerObject *parent, const QString &id, const QString &name,
                                       OrderRule rule)
    : DesignerProperty(parent, id, name)
    , m_rule(rule)
{
    setFlags(PropertyFlags(StoredFlag) | ListFlag);
}

ObjectListProperty::ObjectListProperty(DesignerObject *parent, const ObjectListProperty &prototype)
    : DesignerProperty(parent, prototype)
    , m_rule(prototype.m_rule)
{ }

bool ObjectListProperty::convertToValue(const QString &)
{
    return false; // Children only change through the parent object.
}

QString ObjectListProperty::convertToValueString() const
{
    return {};
}

bool ObjectListProperty::valueIsEqual(const QString &text) const
{
    return text.isEmpty();
}

bool ObjectListProperty::validateValue(QString &) const
{
    return true;
}

QString ObjectListProperty::convertToQml(int indent) const
{
    QStringList blocks;
    for (const DesignerObject *item : listItems()) {
        blocks.append(item->toQml(indent));
    }
    return blocks.join(u'\n');
}

void ObjectListProperty::updateListItems()
{
    ItemList &list = items();
    if (list.isOrderingPaused) {
        list.isOrdered = false;
        return;
    }
    const qsizetype newest = std::exchange(list.newestIndex, -1);
    if (m_rule == OrderRule::InsertionOrder || list.count() < 2) {
        list.isOrdered = true;
    } else if (!list.isOrdered) {
        sortAll();
        list.isOrdered = true;
    } else if (newest >= 0) {
        placeNewest(newest);
    }
}

qsizetype ObjectListProperty::placeInOrder(qsizetype index, const DesignerObject &item) const
{
    return m_rule == OrderRule::InsertionOrder ? index : placeAround(item, index, index);
}

void ObjectListProperty::placeNewest(qsizetype index)
{
    moveItem(index, placeAround(*items().items().at(index), index, index + 1));
}

//! The sorted index of an item among all others, which are those before \a end and those from \a begin on. It
//! is
//! \a end if the order allows it.
qsizetype ObjectListProperty::placeAround(const DesignerObject &item, qsizetype end, qsizetype begin) const
{
    const SortKey key = keyOf(&item, m_rule);
    const auto isBefore = [this](const DesignerObject *other, const SortKey &own) {
        return isLess(keyOf(other, m_rule), own, m_rule);
    };
    const auto isAfter = [this](const SortKey &own, const DesignerObject *other) {
        return isLess(own, keyOf(other, m_rule), m_rule);
    };
    const QList<DesignerObject *> &list = itemList()->items();
    const auto first = list.cbegin();
    const auto before = first + end;
    const auto after = first + begin;
    if (end > 0 && isAfter(key, *(before - 1))) {
        return std::upper_bound(first, before, key, isAfter) - first;
    }
    if (after != list.cend() && isBefore(*after, key)) {
        return end + (std::lower_bound(after, list.cend(), key, isBefore) - after);
    }
    return end;
}

void ObjectListProperty::sortAll()
{
    std::vector<std::pair<SortKey, DesignerObject *>> keyed;
    keyed.reserve(size_t(items().count()));
    for (DesignerObject *item : items().items()) {
        keyed.emplace_back(keyOf(item, m_rule), item);
    }
    const auto isBefore = [this](const auto &left, const auto &right) {
        return isLess(left.first, right.first, m_rule);
    };
    // Most lists were saved in order and are not sorted again.
    if (std::is_sorted(keyed.begin(), keyed.end(), isBefore)) {
        return;
    }
    std::stable_sort(keyed.begin(), keyed.end(), isBefore);
    QList<DesignerObject *> order(qsizetype(keyed.size()));
    std::transform(keyed.begin(), keyed.end(), order.begin(), [](const auto &entry) { return entry.second; });
    reorderItems(order);
}

} // namespace Halvane::Corvex::Designer
