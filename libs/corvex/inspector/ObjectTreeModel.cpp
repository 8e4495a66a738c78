// SPDX-License-Identifier: MIT
#include "corvex/inspector/ObjectTreeModel.h"

#include "corvex/checks/ProblemList.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/inspector/private/ObjectTree.h"
#include "corvex/project/Project.h"

#include <QMimeData>

#include <optional>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

const QString mimeType = u"application/x-corvex-objects"_s;

//! The dragged objects. Only the model that created the data accepts it.
class DraggedObjects : public QMimeData
{
public:
    DraggedObjects(const ObjectTreeModel *source, const QList<DesignerObject *> &objects)
        : m_source(source)
        , m_objects(objects.cbegin(), objects.cend())
    {
        QStringList paths;
        for (const DesignerObject *object : objects) {
            paths.append(object->objectPath());
        }
        setText(paths.join(u'\n'));
        setData(mimeType, text().toUtf8());
    }

    //! Empty if the data come from elsewhere, or an object no longer exists.
    static QList<DesignerObject *> of(const QMimeData *data, const ObjectTreeModel *source)
    {
        const auto *dragged = dynamic_cast<const DraggedObjects *>(data);
        if (!dragged || dragged->m_source != source || dragged->m_objects.contains(nullptr)) {
            return {};
        }
        return {dragged->m_objects.cbegin(), dragged->m_objects.cend()};
    }

private:
    const ObjectTreeModel *m_source;
    QList<QPointer<DesignerObject>> m_objects;
};

QStringList errorsOf(const DesignerObject &object)
{
    QStringList errors;
    for (const SharedProperty &property : object.properties()) {
        if (!property->isValid()) {
            errors.append(u"%1: %2"_s.arg(property->name(), property->errorString()));
        }
    }
    return errors;
}

QVariant dataOf(DesignerObject &object, int role)
{
    switch (role) {
    case Qt::DisplayRole:
        return object.getIdName().isEmpty() ? object.displayName() : object.getIdName();
    case Qt::EditRole:
        return object.getIdName();
    case Qt::ToolTipRole:
        return object.isValid() ? object.displayName() : errorsOf(object).join(u'\n');
    case ObjectTreeModel::ObjectRole:
        return QVariant::fromValue(&object);
    case ObjectTreeModel::ClassRole:
    case ObjectTreeModel::IconNameRole:
        return object.className();
    case ObjectTreeModel::TitleRole:
        return object.displayName();
    case ObjectTreeModel::PathRole:
        return object.ownerObject() ? object.objectPath() : object.getIdName();
    case ObjectTreeModel::ValidRole:
        return object.isValid();
    case ObjectTreeModel::ErrorsRole:
        return errorsOf(object);
    default:
        return {};
    }
}

QVariant dataOf(const DesignerProperty &list, int role)
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
    case ObjectTreeModel::TitleRole:
        return list.name();
    case Qt::ToolTipRole:
        return list.isValid() ? list.name() : list.errorString();
    case ObjectTreeModel::ObjectRole:
        return QVariant::fromValue<DesignerObject *>(nullptr);
    case ObjectTreeModel::ClassRole:
        return QString();
    case ObjectTreeModel::IconNameRole:
        return list.objectFilters().value(0);
    case ObjectTreeModel::PathRole:
        return list.id();
    case ObjectTreeModel::ValidRole:
        return list.isValid();
    case ObjectTreeModel::ErrorsRole:
        return list.isValid() ? QStringList() : QStringList{list.errorString()};
    default:
        return {};
    }
}

const QList<int> validityRoles{ObjectTreeModel::ValidRole, ObjectTreeModel::ErrorsRole, Qt::ToolTipRole};

ObjectTree::Node *nodeAt(const QModelIndex &index)
{
    return static_cast<ObjectTree::Node *>(index.internalPointer());
}

} // namespace

ObjectTreeModel::ObjectTreeModel(ProjectDocument &document, QObject *parent)
    : QAbstractItemModel(parent)
    , m_document(document)
    , m_tree(std::make_unique<ObjectTree>())
{
    m_tree->read(document.project());
    document.project().observers().add(this);
}

ObjectTreeModel::~ObjectTreeModel() = default;

void ObjectTreeModel::setProblems(const ProblemList *problems)
{
    const QPointer<const ProblemList> before = std::exchange(m_problems, problems);
    if (before) {
        before->disconnect(this);
        for (const Problem &problem : before->problems()) {
            reportData(problem.source, {SeverityRole});
        }
    }
    if (problems) {
        connect(problems, &ProblemList::problemsChanged, this,
                [this](const DesignerObject *object) { reportData(object, {SeverityRole}); });
        connect(problems, &ProblemList::changed, this, &ObjectTreeModel::reportSeverities);
        reportSeverities(0, problems->count() - 1);
    }
}

QVariant ObjectTreeModel::severityOf(const DesignerObject *object) const
{
    std::optional<Severity> worst;
    for (const Problem &problem : object &&m_problems ? m_problems->problemsOf(object) : QList<Problem>()) {
        if (!problem.isApproved) {
            worst = std::min(worst.value_or(problem.severity()), problem.severity());
        }
    }
    return worst ? QVariant(int(*worst)) : QVariant();
}

void ObjectTreeModel::reportSeverities(qsizetype firstProblem, qsizetype lastProblem)
{
    for (qsizetype row = firstProblem; row <= lastProblem; ++row) {
        reportData(m_problems->at(row).source, {SeverityRole});
    }
}

DesignerObject *ObjectTreeModel::object(const QModelIndex &index) const
{
    return index.isValid() ? nodeAt(index)->object : nullptr;
}

QModelIndex ObjectTreeModel::indexOf(const DesignerObject *object) const
{
    ObjectTree::Node *node = m_tree->nodeOf(object);
    return node ? createIndex(int(ObjectTree::rowOf(*node)), 0, node) : QModelIndex();
}

QModelIndex ObjectTreeModel::indexOf(const SharedProperty &list) const
{
    ObjectTree::Node *node = m_tree->nodeOf(list);
    return node ? createIndex(int(ObjectTree::rowOf(*node)), 0, node) : QModelIndex();
}

QModelIndex ObjectTreeModel::index(int row, int column, const QModelIndex &parent) const
{
    const ObjectTree::Node &owner = parent.isValid() ? *nodeAt(parent) : m_tree->root();
    ObjectTree::Node *node = column == 0 ? ObjectTree::child(owner, row) : nullptr;
    return node ? createIndex(row, 0, node) : QModelIndex();
}

QModelIndex ObjectTreeModel::parent(const QModelIndex &index) const
{
    ObjectTree::Node *owner = index.isValid() ? nodeAt(index)->parent : nullptr;
    return owner && owner->parent ? createIndex(int(ObjectTree::rowOf(*owner)), 0, owner) : QModelIndex();
}

int ObjectTreeModel::rowCount(const QModelIndex &parent) const
{
    return int(ObjectTree::childCount(parent.isValid() ? *nodeAt(parent) : m_tree->root()));
}

int ObjectTreeModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QVariant ObjectTreeModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const ObjectTree::Node &node = *nodeAt(index);
    if (role == SeverityRole) {
        return severityOf(node.object);
    }
    return node.object ? dataOf(*node.object, role) : dataOf(*node.list, role);
}

QHash<int, QByteArray> ObjectTreeModel::roleNames() const
{
    return {{Qt::DisplayRole, "name"},  {ObjectRole, "object"},     {ClassRole, "className"},
            {TitleRole, "title"},       {IconNameRole, "iconName"}, {PathRole, "path"},
            {SeverityRole, "severity"}, {ValidRole, "isValid"},     {ErrorsRole, "errors"}};
}

Qt::ItemFlags ObjectTreeModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) {
        return Qt::NoItemFlags;
    }
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    const DesignerObject *object = nodeAt(index)->object;
    flags.setFlag(Qt::ItemIsEditable, object);
    flags.setFlag(Qt::ItemIsDragEnabled, object && object->listProperty());
    flags.setFlag(Qt::ItemIsDropEnabled, object != &m_document.project() && !nodeAt(index)->sections.empty());
    return flags;
}

bool ObjectTreeModel::push(PlannedCommand planned)
{
    m_error = planned.reason;
    if (!planned) {
        return false;
    }
    if (!m_document.push(planned.command.release())) {
        m_error = m_document.errorString();
        return false;
    }
    if (!planned.notes.isEmpty()) {
        emit noted(planned.notes);
    }
    return true;
}

bool ObjectTreeModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    DesignerObject *renamed = role == Qt::EditRole ? object(index) : nullptr;
    // Closing an editor without a change renames nothing.
    return renamed
           && (renamed->getIdName() == value.toString()
               || push(Commands::renameOf(renamed, value.toString())));
}

QStringList ObjectTreeModel::mimeTypes() const
{
    return {mimeType};
}

QMimeData *ObjectTreeModel::mimeData(const QModelIndexList &indexes) const
{
    QList<DesignerObject *> objects;
    for (const QModelIndex &index : indexes) {
        if (DesignerObject *dragged = object(index); dragged && dragged->listProperty()) {
            objects.append(dragged);
        }
    }
    return objects.isEmpty() ? nullptr : new DraggedObjects(this, objects);
}

QList<DesignerObject *> ObjectTreeModel::draggedObjects(const QMimeData *data) const
{
    return DraggedObjects::of(data, this);
}

//! The objects and their new place.
struct ObjectTreeModel::Drop
{
    QList<DesignerObject *> objects;
    SharedProperty list;
    qsizetype index = -1; //!< of the item after them; -1 for the end of the list
};

bool ObjectTreeModel::readDrop(const QMimeData *data, Qt::DropAction action, int row,
                               const QModelIndex &parent, Drop &drop) const
{
    drop.objects = parent.isValid() ? DraggedObjects::of(data, this) : QList<DesignerObject *>();
    for (const DesignerObject *object : std::as_const(drop.objects)) {
        const DesignerObject *owner = nodeAt(parent)->object;
        const SharedProperty list = owner ? ProjectPath::listFor(*owner, *object)
                                          : ProjectPath::listFor(m_document.project(), *object);
        const bool isOther = drop.list && list != drop.list;
        const bool isCopyElsewhere = action == Qt::CopyAction && list != object->listProperty();
        if (!list || isOther || isCopyElsewhere || object->project() != &m_document.project()) {
            return false;
        }
        for (; owner; owner = owner->ownerObject()) {
            if (owner == object) {
                return false;
            }
        }
        drop.list = list;
    }
    const ObjectTree::Branch branch = drop.list ? m_tree->branchOf(drop.list) : ObjectTree::Branch();
    if (!branch.node || branch.node != nodeAt(parent)) {
        return false;
    }
    if (row >= 0 && row < branch.firstRow + branch.rows().count()) {
        drop.index = std::max<qsizetype>(row - branch.firstRow, 0);
    }
    return action == Qt::MoveAction || action == Qt::CopyAction;
}

bool ObjectTreeModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int,
                                      const QModelIndex &parent) const
{
    Drop drop;
    return readDrop(data, action, row, parent, drop);
}

bool ObjectTreeModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int,
                                   const QModelIndex &parent)
{
    Drop drop;
    if (!readDrop(data, action, row, parent, drop)) {
        m_error = Common::LocalizationHelper::coreString(
            u"These objects cannot be put here. Drop them where objects of their kind are."_s);
        return false;
    }
    return push(action == Qt::CopyAction ? Commands::duplicationOf(drop.objects)
                                         : Commands::moveOf(drop.objects, drop.list, drop.index));
}

void ObjectTreeModel::reportData(const DesignerObject *object, const QList<int> &roles)
{
    if (const QModelIndex index = indexOf(object); index.isValid()) {
        emit dataChanged(index, index, roles);
    }
}

void ObjectTreeModel::valueChanged(const SharedProperty &property, const QString &)
{
    if (property->id() == "id"_L1) {
        reportData(property->parentObject(), {Qt::DisplayRole, Qt::EditRole, PathRole});
    }
}

void ObjectTreeModel::inserted(const SharedProperty &list, qsizetype index, DesignerObject *object)
{
    const ObjectTree::Branch branch = m_tree->branchOf(list);
    if (branch.node) {
        const int row = int(branch.firstRow + index);
        beginInsertRows(createIndex(int(ObjectTree::rowOf(*branch.node)), 0, branch.node), row, row);
        m_tree->insert(branch, index, object);
        endInsertRows();
    }
}

//! Views may still access the object here, so remove its row first.
void ObjectTreeModel::aboutToRemove(const SharedProperty &, qsizetype, DesignerObject *object)
{
    if (ObjectTree::Node *node = m_tree->nodeOf(object)) {
        const QModelIndex index = indexOf(object);
        beginRemoveRows(parent(index), index.row(), index.row());
        m_tree->remove(*node);
        endRemoveRows();
    }
}

void ObjectTreeModel::moved(const SharedProperty &list, qsizetype from, qsizetype to)
{
    const ObjectTree::Branch branch = m_tree->branchOf(list);
    if (branch.node) {
        const QModelIndex owner = createIndex(int(ObjectTree::rowOf(*branch.node)), 0, branch.node);
        const int row = int(branch.firstRow + from);
        const int before = int(branch.firstRow + (to > from ? to + 1 : to));
        beginMoveRows(owner, row, row, owner, before);
        ObjectTree::move(branch, from, to);
        endMoveRows();
    }
}

void ObjectTreeModel::aboutToReplace(const SharedProperty &list, qsizetype index, DesignerObject *oldObject,
                                     DesignerObject *)
{
    aboutToRemove(list, index, oldObject);
}

void ObjectTreeModel::replaced(const SharedProperty &list, qsizetype index, DesignerObject *,
                               DesignerObject *newObject)
{
    inserted(list, index, newObject);
}

void ObjectTreeModel::reordered(const SharedProperty &list)
{
    const ObjectTree::Branch branch = m_tree->branchOf(list);
    if (!branch.node) {
        return;
    }
    const QModelIndex owner = createIndex(int(ObjectTree::rowOf(*branch.node)), 0, branch.node);
    emit layoutAboutToBeChanged({owner}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    m_tree->reorder(branch, list->listItems());
    QModelIndexList after;
    for (const QModelIndex &index : before) {
        after.append(createIndex(int(ObjectTree::rowOf(*nodeAt(index))), index.column(), nodeAt(index)));
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({owner}, VerticalSortHint);
}

void ObjectTreeModel::validityChanged(const SharedProperty &property)
{
    if (const QModelIndex list = indexOf(property); list.isValid()) {
        emit dataChanged(list, list, validityRoles);
    }
    reportData(property->parentObject(), validityRoles);
}

void ObjectTreeModel::objectValidityChanged(DesignerObject *object)
{
    reportData(object, validityRoles);
}

void ObjectTreeModel::descriptorChanged(const SharedProperty &property)
{
    if (const QModelIndex list = indexOf(property); list.isValid()) {
        emit dataChanged(list, list);
    } else if (!property->isValid()) {
        reportData(property->parentObject(), validityRoles);
    }
}

void ObjectTreeModel::clear()
{
    beginResetModel();
    m_tree->clear();
    endResetModel();
}

void ObjectTreeModel::projectAboutToLoad()
{
    clear();
}

void ObjectTreeModel::projectLoaded()
{
    beginResetModel();
    m_tree->read(m_document.project());
    endResetModel();
}

void ObjectTreeModel::projectAboutToBeDestroyed()
{
    clear();
}

} // namespace Halvane::Corvex::Designer
