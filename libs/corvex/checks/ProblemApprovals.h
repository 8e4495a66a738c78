// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"
#include "corvex/common/Export.h"

#include <QObject>

#include <memory>

namespace Halvane::Corvex::Designer {

class Project;

/*! The problems of a project that are known and intended.

    They are stored in a separate file in the folder of the project (Project::approvalsPath()): one JSON
    object per line, ordered by path, so that version control can merge the lines. Keys are "code", "object"
    (the path), "property", "message" and "reason"; the reason is for human readers.

    An approval refers to one message about one object. When the object or one of its owners is renamed or
    moved, the approval and the names in its message are updated. A deleted object takes its approvals with
    it; undo restores them. Approvals of objects that the project does not have remain in the file unchanged.

    The file is written when the project is saved. Changes that others have made to it in the meantime are
    kept. A file that cannot be read is never overwritten.
*/
class CORVEX_EXPORT ProblemApprovals : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProblemApprovals)

public:
    //! Reads the file; on failure, errorString() has the reason. The file is read again when the project is
    //! loaded.
    explicit ProblemApprovals(Project &project, QObject *parent = nullptr);
    ~ProblemApprovals() override;

    bool isApproved(const Problem &problem) const;
    //! Also empty for a problem that is not approved.
    QString reasonFor(const Problem &problem) const;
    //! Sets isApproved for each problem.
    void mark(QList<Problem> &problems) const;

    //! If the problem is approved already, replaces the reason.
    void approve(const Problem &problem, const QString &reason = {});
    //! Returns false if the problem is not approved.
    bool withdraw(const Problem &problem);

    //! Writes the file if it has changed, and deletes it if nothing is approved. On failure returns false,
    //! and errorString() has the reason.
    bool save();
    //! Why the file could not be read or written; empty on success.
    QString errorString() const;

signals:
    //! The set of approved problems has changed.
    void changed();
    //! The project was saved, but the approvals could not be written.
    void saveFailed(const QString &reason);

private:
    class Follower;
    std::unique_ptr<Follower> m_follower;
};

} // namespace Halvane::Corvex::Designer
