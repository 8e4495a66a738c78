// SPDX-License-Identifier: MIT
#include "corvex/checks/private/ProblemRows.h"

#include "corvex/checks/ProblemApprovals.h"
#include "corvex/checks/ProblemList.h"

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

bool isSame(const Problem &left, const Problem &right)
{
    return left.code == right.code && left.property == right.property && left.message == right.message
           && left.line == right.line && left.column == right.column && left.source == right.source
           && (left.source || left.object == right.object);
}

} // namespace

ProblemRows::ProblemRows(ProblemList &list)
    : m_list(list)
{ }

ProblemRows::~ProblemRows() = default;

void ProblemRows::setApprovals(const ProblemApprovals *approvals)
{
    QObject::disconnect(m_connection);
    m_approvals = approvals;
    if (approvals) {
        m_connection =
            QObject::connect(approvals, &ProblemApprovals::changed, &m_list, [this] { markApproved(); });
    }
    markApproved();
}

void ProblemRows::markApproved()
{
    for (const std::unique_ptr<Entry> &entry : m_rows) {
        countIn(entry->problem, -1);
        entry->problem.isApproved = m_approvals && m_approvals->isApproved(entry->problem);
        countIn(entry->problem, 1);
    }
    if (count() > 0) {
        emit m_list.changed(0, count() - 1);
    }
}

void ProblemRows::countIn(const Problem &problem, qsizetype by)
{
    (problem.isApproved ? m_approvedCount : m_counts.at(size_t(problem.severity()))) += by;
}

qsizetype ProblemRows::rowOf(const Entry &entry) const
{
    const auto row = std::ranges::lower_bound(
        m_rows, entry.serial, {}, [](const std::unique_ptr<Entry> &each) { return each->serial; });
    return row - m_rows.begin();
}

QList<qsizetype> ProblemRows::rowsOf(const DesignerObject *owner) const
{
    QList<qsizetype> rows;
    for (const Entry *entry : m_byOwner.value(owner)) {
        if (entry->serial > 0) {
            rows.append(rowOf(*entry));
        }
    }
    std::ranges::sort(rows);
    return rows;
}

void ProblemRows::set(DesignerObject *owner, const Origin &origin, QList<Problem> problems)
{
    const QList<Entry *> known = m_byOwner.value(owner);
    for (Entry *entry : known) {
        if (entry->origin != origin) {
            continue;
        }
        const auto kept = std::ranges::find_if(
            problems, [entry](const Problem &problem) { return isSame(problem, entry->problem); });
        if (kept != problems.end()) {
            problems.erase(kept);
        } else {
            forget(entry);
            m_touched.insert(owner);
        }
    }
    for (const Problem &problem : std::as_const(problems)) {
        m_coming.push_back(std::make_unique<Entry>(Entry{0, owner, origin, problem}));
        m_byOwner[owner].append(m_coming.back().get());
        m_touched.insert(owner);
    }
}

//! An entry with a row remains until the row is removed.
void ProblemRows::forget(Entry *entry)
{
    const auto known = m_byOwner.find(entry->owner);
    known->removeOne(entry);
    if (known->isEmpty()) {
        m_byOwner.erase(known);
    }
    if (entry->serial > 0) {
        m_going.push_back(entry);
    } else {
        std::erase_if(m_coming, [entry](const auto &coming) { return coming.get() == entry; });
    }
}

//! Removes from the last to the first, adjacent rows together.
void ProblemRows::removeRows(std::vector<const Entry *> entries)
{
    std::ranges::sort(entries, {}, &Entry::serial);
    while (!entries.empty()) {
        const qsizetype last = rowOf(*entries.back());
        qsizetype first = last + 1;
        while (!entries.empty() && rowOf(*entries.back()) == first - 1) {
            --first;
            countIn(entries.back()->problem, -1);
            entries.pop_back();
        }
        emit m_list.aboutToRemove(first, last);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        emit m_list.removed(first, last);
    }
}

void ProblemRows::flush()
{
    removeRows(std::exchange(m_going, {}));
    if (!m_coming.empty()) {
        const qsizetype first = count();
        const qsizetype last = first + qsizetype(m_coming.size()) - 1;
        emit m_list.aboutToInsert(first, last);
        for (std::unique_ptr<Entry> &entry : m_coming) {
            entry->serial = ++m_lastSerial;
            entry->problem.isApproved = m_approvals && m_approvals->isApproved(entry->problem);
            countIn(entry->problem, 1);
            m_rows.push_back(std::move(entry));
        }
        m_coming.clear();
        emit m_list.inserted(first, last);
    }
    for (DesignerObject *owner : std::exchange(m_touched, {})) {
        emit m_list.problemsChanged(owner);
    }
}

void ProblemRows::drop(const DesignerObject *owner)
{
    if (m_byOwner.isEmpty()) {
        return;
    }
    for (Entry *entry : m_byOwner.value(owner)) {
        forget(entry);
    }
    removeRows(std::exchange(m_going, {}));
}

void ProblemRows::clear()
{
    m_byOwner.clear();
    if (m_rows.empty()) {
        return;
    }
    const qsizetype last = count() - 1;
    emit m_list.aboutToRemove(0, last);
    m_rows.clear();
    m_counts.fill(0);
    m_approvedCount = 0;
    emit m_list.removed(0, last);
}

} // namespace Halvane::Corvex::Designer
