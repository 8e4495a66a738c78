// SPDX-License-Identifier: MIT
#include "corvex/inspector/ProblemsModel.h"

#include "corvex/checks/ProblemList.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/ModelObservers.h"
#include "corvex/project/Project.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

QString placeOf(const Problem &problem)
{
    return problem.property.isEmpty() ? problem.path() : u"%1: %2"_s.arg(problem.path(), problem.property);
}

QStringList textsOf(const QList<ProblemFix> &fixes)
{
    QStringList texts;
    for (const ProblemFix &fix : fixes) {
        texts.append(fix.text);
    }
    return texts;
}

} // namespace

ProblemsModel::ProblemsModel(ProblemList &problems, QObject *parent)
    : QAbstractTableModel(parent)
    , m_problems(problems)
{
    if (Project *project = problems.project()) {
        project->observers().add(this);
    }
    connect(&problems, &ProblemList::aboutToInsert, this,
            [this](qsizetype first, qsizetype last) { beginInsertRows({}, int(first), int(last)); });
    connect(&problems, &ProblemList::inserted, this, [this] { endInsertRows(); });
    connect(&problems, &ProblemList::aboutToRemove, this,
            [this](qsizetype first, qsizetype last) { beginRemoveRows({}, int(first), int(last)); });
    connect(&problems, &ProblemList::removed, this, [this] { endRemoveRows(); });
    connect(&problems, &ProblemList::changed, this, [this](qsizetype first, qsizetype last) {
        emit dataChanged(index(int(first), 0), index(int(last), ColumnCount - 1), {ApprovedRole});
    });
}

ProblemsModel::~ProblemsModel() = default;

const Problem &ProblemsModel::problem(int row) const
{
    return m_problems.at(row);
}

QList<ProblemFix> ProblemsModel::fixes(int row) const
{
    return ProblemFix::of(problem(row));
}

int ProblemsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_problems.count());
}

int ProblemsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant ProblemsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Problem &problem = this->problem(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return index.column() == MessageColumn ? problem.message : placeOf(problem);
    case Qt::ToolTipRole:
    case CureRole:
        return LocalizationHelper::coreString(QString::fromUtf8(problem.kind().cure));
    case SeverityRole:
        return int(problem.severity());
    case SeverityNameRole:
        return QString(problem.kind().severityWord());
    case CodeRole:
        return QString::fromLatin1(problem.kind().word);
    case MessageRole:
        return problem.message;
    case PathRole:
        return problem.path();
    case PropertyRole:
        return problem.property;
    case ObjectRole:
        return QVariant::fromValue<DesignerObject *>(problem.source);
    case ApprovedRole:
        return problem.isApproved;
    case FixesRole:
        return textsOf(fixes(index.row()));
    default:
        return {};
    }
}

QVariant ProblemsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return QAbstractTableModel::headerData(section, orientation, role);
    }
    return LocalizationHelper::coreString(section == MessageColumn ? u"Problem"_s : u"Place"_s);
}

QHash<int, QByteArray> ProblemsModel::roleNames() const
{
    QHash<int, QByteArray> names = QAbstractTableModel::roleNames();
    names.insert({{SeverityRole, "severity"},
                  {SeverityNameRole, "severityName"},
                  {CodeRole, "code"},
                  {MessageRole, "message"},
                  {PathRole, "path"},
                  {PropertyRole, "propertyId"},
                  {ObjectRole, "object"},
                  {CureRole, "cure"},
                  {ApprovedRole, "isApproved"},
                  {FixesRole, "fixes"}});
    return names;
}

//! Paths contain the new name.
void ProblemsModel::valueChanged(const SharedProperty &property, const QString &)
{
    if (property->id() != "id"_L1 || m_problems.count() == 0) {
        return;
    }
    const QList<int> roles{Qt::DisplayRole, PathRole};
    const DesignerObject *renamed = property->parentObject();
    if (!renamed->childObjects().isEmpty()) {
        emit dataChanged(index(0, MessageColumn), index(rowCount() - 1, PlaceColumn), roles);
        return;
    }
    for (const qsizetype row : m_problems.rowsOf(renamed)) {
        emit dataChanged(index(int(row), MessageColumn), index(int(row), PlaceColumn), roles);
    }
}

} // namespace Halvane::Corvex::Designer
