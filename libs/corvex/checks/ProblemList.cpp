// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemList.h"

#include "corvex/checks/private/ProblemChecker.h"
#include "corvex/checks/private/ProblemRows.h"

namespace Halvane::Corvex::Designer {

ProblemList::ProblemList(Project &project, const ConfigurationContainer &models, QObject *parent)
    : QObject(parent)
    , m_rows(std::make_unique<ProblemRows>(*this))
    , m_checker(std::make_unique<ProblemChecker>(project, models, *this, *m_rows))
{ }

ProblemList::~ProblemList() = default;

Project *ProblemList::project() const
{
    return m_checker->project();
}

void ProblemList::setApprovals(const ProblemApprovals *approvals)
{
    m_rows->setApprovals(approvals);
}

qsizetype ProblemList::approvedCount() const
{
    return m_rows->approvedCount();
}

qsizetype ProblemList::count() const
{
    return m_rows->count();
}

qsizetype ProblemList::count(Severity severity) const
{
    return m_rows->count(severity);
}

const Problem &ProblemList::at(qsizetype row) const
{
    return m_rows->at(row);
}

QList<Problem> ProblemList::problems() const
{
    QList<Problem> all;
    all.reserve(count());
    for (qsizetype row = 0; row < count(); ++row) {
        all.append(at(row));
    }
    return all;
}

QList<qsizetype> ProblemList::rowsOf(const DesignerObject *object) const
{
    return m_rows->rowsOf(object);
}

bool ProblemList::hasProblems(const DesignerObject *object) const
{
    return !rowsOf(object).isEmpty();
}

QList<Problem> ProblemList::problemsOf(const DesignerObject *object) const
{
    QList<Problem> found;
    for (const qsizetype row : rowsOf(object)) {
        found.append(at(row));
    }
    return found;
}

QList<Problem> ProblemList::problemsOf(const DesignerProperty &property) const
{
    QList<Problem> found = problemsOf(property.parentObject());
    found.removeIf([&property](const Problem &problem) { return problem.property != property.id(); });
    return found;
}

bool ProblemList::isCurrent() const
{
    return m_checker->isCurrent();
}

void ProblemList::update()
{
    m_checker->run(QDeadlineTimer(QDeadlineTimer::Forever));
}

void ProblemList::checkAll()
{
    m_checker->checkAll();
}

} // namespace Halvane::Corvex::Designer
