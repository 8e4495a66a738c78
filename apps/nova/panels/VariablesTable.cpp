// SPDX-License-Identifier: MIT
#include "panels/VariablesTable.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/commands/Commands.h"
#include "corvex/editing/commands/variables/AddVariable.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/project/Project.h"
#include "corvex/variables/ProjectVariable.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include "project/Workspace.h"

#include <QApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

struct ColumnRow
{
    const char *title;      //!< English
    const char *propertyId; //!< null for the type
};

//! In the order of VariablesTable::Column.
constexpr ColumnRow columns[] = {
    {"Name", "id"}, {"Type", nullptr}, {"Value", "value"}, {"Persistent", "persistent"}};

SharedProperty propertyOf(const DesignerObject &variable, int column)
{
    const char *id = columns[column].propertyId;
    return id ? variable.getProperty(QString::fromLatin1(id)) : SharedProperty();
}

bool isEditable(const SharedProperty &property)
{
    return property && property->hasFlag(EditableFlag);
}

//! The class that fits the text of a new variable's value.
QString classFor(const QString &value)
{
    bool isNumber = false;
    value.toDouble(&isNumber);
    if (isNumber || value.isEmpty()) {
        return u"NumberVariable"_s;
    }
    return value == "true"_L1 || value == "false"_L1 ? u"BooleanVariable"_s : u"StringVariable"_s;
}

} // namespace

VariablesTable::VariablesTable(Workspace &workspace, QObject *parent)
    : CellTable(parent)
    , m_workspace(workspace)
{
    workspace.project().observers().add(this);
    refresh();
}

VariablesTable::~VariablesTable() = default;

QStringList VariablesTable::classNames()
{
    const DesignerFactory &factory = *DesignerFactory::instance();
    QStringList names;
    for (const QString &name : factory.creatableNames()) {
        const std::unique_ptr<DesignerObject> sample(factory.createSample(name));
        if (sample && sample->isKindOfClass(ProjectVariable::kindName())) {
            names.append(name);
        }
    }
    // Those that people use most come first.
    const QStringList first{u"NumberVariable"_s, u"BooleanVariable"_s, u"StringVariable"_s,
                            u"ColorVariable"_s};
    std::ranges::stable_partition(names, [&first](const QString &name) { return first.contains(name); });
    std::ranges::sort(names.begin(), names.begin() + first.size(), {},
                      [&first](const QString &name) { return first.indexOf(name); });
    return names;
}

bool VariablesTable::isShown(const DesignerObject *variable) const
{
    if (m_filter.isEmpty()) {
        return true;
    }
    return std::ranges::any_of(
        std::initializer_list<int>{NameColumn, TypeColumn, ValueColumn},
        [&](int column) { return textOf(*variable, column).contains(m_filter, Qt::CaseInsensitive); });
}

void VariablesTable::refresh()
{
    beginResetModel();
    m_shown = m_workspace.project().variables()->listItems();
    m_shown.removeIf([this](const DesignerObject *variable) { return !isShown(variable); });
    endResetModel();
}

void VariablesTable::setFilter(const QString &text)
{
    m_filter = text.trimmed();
    refresh();
}

int VariablesTable::rowOf(const DesignerObject *variable) const
{
    return int(m_shown.indexOf(variable));
}

int VariablesTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_shown.size());
}

int VariablesTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QString VariablesTable::textOf(const DesignerObject &variable, int column) const
{
    if (column == TypeColumn) {
        return DesignerFactory::displayNameOf(&variable);
    }
    const SharedProperty property = propertyOf(variable, column);
    return property ? ReadableValue::print(*property) : QString();
}

QVariant VariablesTable::data(const QModelIndex &index, int role) const
{
    const DesignerObject &variable = *m_shown.at(index.row());
    const SharedProperty property = propertyOf(variable, index.column());
    const QString error = property && !property->isValid() ? property->errorString() : QString();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return textOf(variable, index.column());
    case Qt::DecorationRole:
        return index.column() == NameColumn ? IconSet::objectIcon(variable.classNames()) : QVariant();
    case Qt::ToolTipRole:
        return error.isEmpty() ? textOf(variable, index.column()) : error;
    case Qt::ForegroundRole:
        if (!error.isEmpty()) {
            return Theme::error(QApplication::palette());
        }
        return index.column() == TypeColumn ? Theme::muted(QApplication::palette()) : QVariant();
    default:
        return {};
    }
}

QVariant VariablesTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    return orientation == Qt::Horizontal && role == Qt::DisplayRole
               ? LocalizationHelper::coreString(QString::fromLatin1(columns[section].title))
               : QVariant();
}

Qt::ItemFlags VariablesTable::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags flags = CellTable::flags(index) & ~Qt::ItemIsEditable;
    const Qt::ItemFlags dragged = index.column() == NameColumn ? Qt::ItemIsDragEnabled : Qt::NoItemFlags;
    return isEditable(propertyOf(*m_shown.at(index.row()), index.column()))
               ? flags | dragged | Qt::ItemIsEditable
               : flags | dragged;
}

QMimeData *VariablesTable::mimeData(const QModelIndexList &indexes) const
{
    QModelIndexList objects;
    for (const QModelIndex &index : indexes) {
        objects.append(m_workspace.tree().indexOf(m_shown.at(index.row())));
    }
    return m_workspace.tree().mimeData(objects);
}

QStringList VariablesTable::choices(const QModelIndex &cell) const
{
    return cell.column() == KeptColumn ? QStringList{u"true"_s, u"false"_s} : QStringList();
}

DesignerObject *VariablesTable::addVariable(const QString &className, const QString &name, QString &error)
{
    std::unique_ptr<DesignerObject> variable(DesignerFactory::instance()->createUnowned(className));
    Project &project = m_workspace.project();
    if (!variable) {
        error = LocalizationHelper::coreString(u"There is no type \"%1\" of variables."_s).arg(className);
        return nullptr;
    }
    variable->setIdName(name.isEmpty() ? project.generateUniqueName(variable->baseName()) : name);
    DesignerObject *added = variable.get();
    auto command = std::make_unique<AddVariable>(variable.release(), &project);
    if (!command->isValid()) {
        error = command->errorString();
        return nullptr;
    }
    if (!m_workspace.document().push(command.release())) {
        error = m_workspace.document().errorString();
        return nullptr;
    }
    return added;
}

void VariablesTable::add(const QString &className)
{
    QString error;
    if (DesignerObject *variable = addVariable(className, {}, error)) {
        m_workspace.document().select({variable});
    } else {
        emit m_workspace.refused(error);
    }
}

bool VariablesTable::enter(DesignerObject &variable, const CellText &cell, QString &error)
{
    const SharedProperty property = propertyOf(variable, cell.column);
    if (!isEditable(property) || textOf(variable, cell.column) == cell.text) {
        return true; // a pasted table may repeat what cannot be changed
    }
    PlannedCommand planned;
    if (cell.column == NameColumn) {
        planned = Commands::renameOf(&variable, cell.text);
    } else {
        const ReadableValue::Reading reading = ReadableValue::read(*property, cell.text);
        error = reading.error;
        if (error.isEmpty()) {
            planned = Commands::changeOf({{property, reading.stored}});
        }
    }
    if (!planned) {
        error = error.isEmpty() ? planned.reason : error;
        return error.isEmpty();
    }
    if (!m_workspace.document().push(planned.command.release())) {
        error = m_workspace.document().errorString();
    }
    return error.isEmpty();
}

void VariablesTable::enterCells(const QList<CellText> &cells)
{
    ProjectDocument &document = m_workspace.document();
    if (!document.beginGesture(LocalizationHelper::coreString(u"Edit variables"_s))) {
        m_workspace.reportFailure();
        return;
    }
    // Rows move when names change, and rows of new variables are not in order.
    const QList<DesignerObject *> rows = m_shown;
    QHash<int, DesignerObject *> added;
    QString error;
    QHash<QPair<int, int>, QString> texts;
    for (const CellText &cell : cells) {
        texts.insert({cell.row, cell.column}, cell.text);
    }
    const auto textAt = [&texts](int row, int column) { return texts.value({row, column}); };
    for (const CellText &cell : cells) {
        DesignerObject *variable = rows.value(cell.row, added.value(cell.row));
        if (!variable) {
            const QString type = textAt(cell.row, TypeColumn);
            const QString known = DesignerFactory::instance()->classNameForDisplay(type);
            variable = addVariable(type.isEmpty()    ? classFor(textAt(cell.row, ValueColumn))
                                   : known.isEmpty() ? type
                                                     : known,
                                   textAt(cell.row, NameColumn), error);
            added.insert(cell.row, variable);
        }
        if (!variable || !enter(*variable, cell, error)) {
            const QString place = variable ? variable->getIdName() : QString::number(cell.row + 1);
            document.rollBackGesture();
            emit m_workspace.refused(u"%1: %2"_s.arg(place, error));
            return;
        }
    }
    document.commitGesture();
}

void VariablesTable::addRow(int /*before*/)
{
    add(u"NumberVariable"_s);
}

void VariablesTable::deleteRows(const QList<int> &rows)
{
    QList<DesignerObject *> variables;
    for (const int row : rows) {
        variables.append(m_shown.at(row));
    }
    m_workspace.push(Commands::deletionOf(variables));
}

void VariablesTable::inserted(const SharedProperty &list, qsizetype index, DesignerObject *object)
{
    if (list != m_workspace.project().variables() || !isShown(object)) {
        return;
    }
    const int row = m_filter.isEmpty() ? int(index) : int(m_shown.size());
    beginInsertRows({}, row, row);
    m_shown.insert(row, object);
    endInsertRows();
}

void VariablesTable::aboutToRemove(const SharedProperty &list, qsizetype /*index*/, DesignerObject *object)
{
    const int row = list == m_workspace.project().variables() ? rowOf(object) : -1;
    if (row >= 0) {
        beginRemoveRows({}, row, row);
        m_shown.removeAt(row);
        endRemoveRows();
    }
}

void VariablesTable::moved(const SharedProperty &list, qsizetype from, qsizetype to)
{
    if (list != m_workspace.project().variables() || !m_filter.isEmpty()) {
        return; // a filtered list keeps its order while the user works in it
    }
    beginMoveRows({}, int(from), int(from), {}, int(to > from ? to + 1 : to));
    m_shown.move(from, to);
    endMoveRows();
}

void VariablesTable::reordered(const SharedProperty &list)
{
    if (list == m_workspace.project().variables()) {
        refresh();
    }
}

void VariablesTable::valueChanged(const SharedProperty &property, const QString & /*previousValue*/)
{
    const DesignerObject *owner = property->parentObject();
    if (owner && owner->isKindOfClass(ProjectVariable::kindName())) {
        if (const int row = rowOf(owner); row >= 0) {
            emit dataChanged(index(row, 0), index(row, ColumnCount - 1));
        }
    }
}

void VariablesTable::projectAboutToLoad()
{
    beginResetModel();
    m_shown.clear();
    endResetModel();
}

void VariablesTable::projectLoaded()
{
    refresh();
}

} // namespace Halvane::Corvex::Nova
