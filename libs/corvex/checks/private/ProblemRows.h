// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"

#include <QHash>
#include <QSet>

#include <array>
#include <memory>
#include <vector>

namespace Halvane::Corvex::Designer {

class ProblemApprovals;
class ProblemList;

//! The rows of a ProblemList; emits its signals. Objects without problems need no memory.
class ProblemRows
{
public:
    //! The check that found a problem. The problems of an object with the same origin are replaced together.
    struct Origin
    {
        static constexpr qsizetype object = -1; //!< the checks of single objects and properties
        static constexpr qsizetype file = -2;

        qsizetype check = object; //!< or the index of a shared check
        QString key = {};         //!< the key of a group of that check

        friend bool operator==(const Origin &, const Origin &) = default;
    };

    explicit ProblemRows(ProblemList &list);
    ~ProblemRows();

    qsizetype count() const { return qsizetype(m_rows.size()); }
    qsizetype count(Severity severity) const { return m_counts.at(size_t(severity)); }
    qsizetype approvedCount() const { return m_approvedCount; }
    void setApprovals(const ProblemApprovals *approvals);
    const Problem &at(qsizetype row) const { return m_rows.at(size_t(row))->problem; }
    //! In the order of their rows.
    QList<qsizetype> rowsOf(const DesignerObject *owner) const;

    //! Replaces the problems of one origin. Rows change with the next flush().
    void set(DesignerObject *owner, const Origin &origin, QList<Problem> problems);
    //! Removes rows, then adds rows, and emits the signals for both.
    void flush();
    //! Immediately removes the rows of an object that leaves the project.
    void drop(const DesignerObject *owner);
    void clear();

private:
    struct Entry
    {
        quint64 serial = 0; //!< increases with the rows; 0 until the entry has a row
        DesignerObject *owner;
        Origin origin;
        Problem problem;
    };

    qsizetype rowOf(const Entry &entry) const;
    void removeRows(std::vector<const Entry *> entries);
    void forget(Entry *entry);
    void countIn(const Problem &problem, qsizetype by);
    void markApproved();

    ProblemList &m_list;
    std::vector<std::unique_ptr<Entry>> m_rows;
    std::vector<std::unique_ptr<Entry>> m_coming;
    std::vector<const Entry *> m_going;
    QHash<const DesignerObject *, QList<Entry *>> m_byOwner; //!< without those to be removed
    QSet<DesignerObject *> m_touched;
    std::array<qsizetype, 3> m_counts{}; //!< by severity, without approved ones
    qsizetype m_approvedCount = 0;
    QPointer<const ProblemApprovals> m_approvals;
    QMetaObject::Connection m_connection; //!< to the approvals
    quint64 m_lastSerial = 0;
};

} // namespace Halvane::Corvex::Designer
