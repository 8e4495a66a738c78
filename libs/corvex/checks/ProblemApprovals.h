// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"
#include "corvex/common/Export.h"

#include <QObject>

#include <memory>

namespace Halvane::Corvex::Designer {

class Project;

/*! The problems of a project that somebody knows of and wants to keep.

    They are in a file of their own in the folder of the project (Project::approvalsPath()): one JSON object
   on each line, in the order of the paths, so that version control merges them line by line. Keys are "code",
    "object" (the path), "property", "message" and "reason"; the last is for people.

    An approval is for one message about one object. It follows the object when that or one above it is
    renamed or moved, and the names in its message. An object that is deleted takes its approvals with it;
   undo brings them back. Approvals of what the project does not have stay in the file as they are.

    The file is written when the project is saved. A file that cannot be read is never overwritten.
*/
class CORVEX_EXPORT ProblemApprovals : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProblemApprovals)

public:
    //! Reads the file; errorString() tells why that failed. It is read again when the project is loaded.
    explicit ProblemApprovals(Project &project, QObject *parent = nullptr);
    ~ProblemApprovals() override;

    bool isApproved(const Problem &problem) const;
    //! Empty for a problem that is not approved, too.
    QString reasonFor(const Problem &problem) const;
    //! Sets isApproved of each problem.
    void mark(QList<Problem> &problems) const;

    //! A problem that was approved before gets the new reason.
    void approve(const Problem &problem, const QString &reason = {});
    //! False when the problem is not approved.
    bool withdraw(const Problem &problem);

    //! Writes the file if it has to change, and removes it when nothing is approved. False, with a text for
    //! errorString(), when that fails.
    bool save();
    //! Why the file could not be read or written; empty when all is well.
    QString errorString() const;

signals:
    //! Other problems than before are approved.
    void changed();

private:
    class Follower;
    std::unique_ptr<Follower> m_follower;
};

} // namespace Halvane::Corvex::Designer
