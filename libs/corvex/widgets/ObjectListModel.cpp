// SPDX-License-Identifier: MIT
#include "corvex/widgets/ObjectListModel.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Project.h"
#include "corvex/widgets/Thumbnails.h"

#include <QGuiApplication>
#include <QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QVariant iconOf(const DesignerObject *object)
{
    if (const auto *image = kindCast<ImageResource>(object)) {
        const QPixmap thumbnail =
            Thumbnails::of(*image, ObjectListModel::iconEdge, qGuiApp->devicePixelRatio());
        if (!thumbnail.isNull()) {
            return thumbnail;
        }
    }
    const DesignerFactory *factory = DesignerFactory::instance();
    return factory ? QVariant(factory->getObjectIcon(object)) : QVariant();
}

} // namespace

ObjectListModel::ObjectListModel(QObject *parent)
    : QAbstractListModel(parent)
{ }

ObjectListModel::~ObjectListModel() = default;

void ObjectListModel::setObjects(const QList<DesignerObject *> &objects)
{
    beginResetModel();
    m_entries.clear();
    m_types.clear();
    m_entries.reserve(size_t(objects.size()));
    QHash<QString, int> types;
    for (DesignerObject *object : objects) {
        const QString className = object->className();
        auto type = types.constFind(className);
        if (type == types.constEnd()) {
            type = types.insert(className, int(m_types.size()));
            m_types.push_back({className, DesignerFactory::displayNameOf(object)});
        }
        ++m_types[size_t(*type)].count;
        m_entries.push_back({object, object->getIdName(), *type});
    }
    if (!objects.isEmpty() && objects.constFirst()->project()) {
        objects.constFirst()->project()->observers().add(this);
    }
    select();
    endResetModel();
}

void ObjectListModel::setSearch(const QString &text)
{
    beginResetModel();
    m_search = text.simplified();
    select();
    endResetModel();
}

void ObjectListModel::setClass(const QString &className)
{
    beginResetModel();
    m_class = className;
    select();
    endResetModel();
}

//! Selects the rows for the search.
void ObjectListModel::select()
{
    const QStringList words = m_search.split(u' ', Qt::SkipEmptyParts);
    // The words that a name must contain, because its type does not.
    std::vector<QStringList> wanted;
    for (const Type &type : m_types) {
        QStringList &missing = wanted.emplace_back(words);
        missing.removeIf([&](const QString &word) { return type.title.contains(word, Qt::CaseInsensitive); });
    }
    m_rows.clear();
    size_t firsts = 0;
    for (size_t i = 0; i < m_entries.size(); ++i) {
        const Entry &entry = m_entries[i];
        const QStringList &missing = wanted[size_t(entry.type)];
        const auto isInName = [&entry](const QString &word) {
            return entry.name.contains(word, Qt::CaseInsensitive);
        };
        if ((!m_class.isEmpty() && m_types[size_t(entry.type)].className != m_class)
            || !std::ranges::all_of(missing, isInName)) {
            continue;
        }
        m_rows.push_back(int(i));
        firsts += entry.name.startsWith(m_search, Qt::CaseInsensitive) ? 1 : 0;
    }
    if (firsts > 0 && firsts < m_rows.size()) {
        std::ranges::stable_partition(m_rows, [this](int entry) {
            return m_entries[size_t(entry)].name.startsWith(m_search, Qt::CaseInsensitive);
        });
    }
}

QStringList ObjectListModel::classes() const
{
    std::vector<Type> types = m_types;
    std::ranges::sort(types, {}, &Type::title);
    QStringList names;
    for (const Type &type : types) {
        names.append(type.className);
    }
    return names;
}

DesignerObject *ObjectListModel::object(int row) const
{
    return row >= 0 && size_t(row) < m_rows.size() ? m_entries[size_t(m_rows[size_t(row)])].object : nullptr;
}

int ObjectListModel::rowOf(const DesignerObject *object) const
{
    const auto row =
        std::ranges::find_if(m_rows, [&](int entry) { return m_entries[size_t(entry)].object == object; });
    return row == m_rows.end() ? -1 : int(row - m_rows.begin());
}

int ObjectListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

QVariant ObjectListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || size_t(index.row()) >= m_rows.size()) {
        return {};
    }
    const Entry &entry = m_entries[size_t(m_rows[size_t(index.row())])];
    switch (role) {
    case Qt::DisplayRole:
        return entry.name;
    case TypeRole:
        return m_types[size_t(entry.type)].title;
    case PathRole: {
        const DesignerObject *owner = entry.object->ownerObject();
        return owner && owner != entry.object->project() ? owner->objectPath() : QString();
    }
    case Qt::AccessibleTextRole:
        return u"%1, %2"_s.arg(entry.name, m_types[size_t(entry.type)].title);
    case Qt::ToolTipRole:
        return entry.object->objectPath();
    case Qt::DecorationRole:
        return iconOf(entry.object);
    default:
        return {};
    }
}

void ObjectListModel::empty()
{
    if (!m_entries.empty()) {
        setObjects({});
        emit emptied();
    }
}

void ObjectListModel::aboutToRemove(const SharedProperty &, qsizetype, DesignerObject *)
{
    empty();
}

void ObjectListModel::aboutToReplace(const SharedProperty &, qsizetype, DesignerObject *, DesignerObject *)
{
    empty();
}

void ObjectListModel::projectAboutToLoad()
{
    empty();
}

void ObjectListModel::projectAboutToBeDestroyed()
{
    empty();
}

} // namespace Halvane::Corvex::Designer
