// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"
#include "corvex/common/Export.h"

#include <QObject>

#include <memory>

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;
class ProblemApprovals;
class ProblemChecker;
class ProblemRows;
class Project;

/*! All problems of a project, updated while it is being edited.

    An edit marks the objects that it changed and those that refer to them. Marked objects are checked again
    in short slices while the event loop is idle, or all at once by update(). Checking an object also
    validates its properties, so that it takes account of edits elsewhere. When nothing is marked, the list
    contains the problems that ProjectProblems::find() finds after a validation of the whole project.

    A problem keeps its row until one with a smaller row is removed. New problems are added at the end. While
    a signal is emitted, the rows are those before or after the change, as the name of the signal says.

    When an object leaves the project, its problems are removed within the same operation. Therefore a slot
    must not change the model, and must not call update(). The list follows one project; if that is destroyed
    first, the list becomes empty.

    Checking an object writes to its properties. It waits while another thread reads the project, for example
    a job of ProjectDocument, as the gate of the history says.
*/
class CORVEX_EXPORT ProblemList : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProblemList)

public:
    //! Marks the whole project. \a models are the installed ones; they must outlive the list.
    ProblemList(Project &project, const ConfigurationContainer &models, QObject *parent = nullptr);
    ~ProblemList() override;

    //! Null after the project was destroyed.
    Project *project() const;

    //! Sets the approvals of problems; may be null. Not owned; they must outlive the list.
    void setApprovals(const ProblemApprovals *approvals);

    //! All problems, including approved ones.
    qsizetype count() const;
    //! Problems that are not approved.
    qsizetype count(Severity severity) const;
    qsizetype approvedCount() const;
    //! The row must be valid. The reference is valid until the list changes.
    const Problem &at(qsizetype row) const;
    QList<Problem> problems() const;

    // The time depends only on the number of problems of the object.
    //! The problems of the object itself, without those of objects in it. Problems of the file belong to the
    //! project.
    QList<Problem> problemsOf(const DesignerObject *object) const;
    QList<Problem> problemsOf(const DesignerProperty &property) const;
    QList<qsizetype> rowsOf(const DesignerObject *object) const;
    bool hasProblems(const DesignerObject *object) const;

    //! Whether nothing is marked.
    bool isCurrent() const;
    //! Checks everything that is marked now. For programs without an event loop, and for results that are
    //! needed at once. Does nothing while another thread reads the project.
    void update();
    //! Marks the whole project, for example when files of images have changed.
    void checkAll();

signals:
    void aboutToInsert(qsizetype first, qsizetype last);
    void inserted(qsizetype first, qsizetype last);
    void aboutToRemove(qsizetype first, qsizetype last);
    void removed(qsizetype first, qsizetype last);
    //! Problems in these rows may have been approved, or their approvals withdrawn.
    void changed(qsizetype first, qsizetype last);
    //! Problems of the object were added or removed. The object is in the project.
    void problemsChanged(Halvane::Corvex::Designer::DesignerObject *object);
    void currentChanged(bool isCurrent);

private:
    std::unique_ptr<ProblemRows> m_rows;
    std::unique_ptr<ProblemChecker> m_checker;
};

} // namespace Halvane::Corvex::Designer
