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

/*! All problems of a project, kept current while somebody edits it.

    An edit marks the objects that it touched and those that refer to them. Marked objects are checked again
    in short slices while the event loop is idle, and all at once by update(). Checking an object validates
    its properties, too, so that it knows of edits elsewhere. When nothing is marked, the list holds the
    problems that ProjectProblems::find() finds after a validation of the whole project.

    A problem keeps its row until another one with a smaller row goes. New problems come at the end. While a
    signal is emitted, the rows are those from before or after the change, as its name says.

    The problems of an object go as soon as the object leaves the project, within the operation that removes
    it. So a slot must not change the model, and must not call update(). The list follows one project; it may
    outlive the project, and is empty then.
*/
class CORVEX_EXPORT ProblemList : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProblemList)

public:
    //! All of the project is marked. \a models are those that are installed; they must outlive the list.
    ProblemList(Project &project, const ConfigurationContainer &models, QObject *parent = nullptr);
    ~ProblemList() override;

    //! Null once the project is destroyed.
    Project *project() const;

    //! Marks the problems that are approved; null for none. Not owned; they must outlive the list.
    void setApprovals(const ProblemApprovals *approvals);

    //! All problems, those that are approved included.
    qsizetype count() const;
    //! Those that are not approved.
    qsizetype count(Severity severity) const;
    qsizetype approvedCount() const;
    //! The row must be one of the list. The reference is good until the list changes.
    const Problem &at(qsizetype row) const;
    QList<Problem> problems() const;

    // In a time that depends only on the number of problems of the object.
    //! Those of the object itself, not of the objects in it. Problems of the file are those of the project.
    QList<Problem> problemsOf(const DesignerObject *object) const;
    QList<Problem> problemsOf(const DesignerProperty &property) const;
    QList<qsizetype> rowsOf(const DesignerObject *object) const;
    bool hasProblems(const DesignerObject *object) const;

    //! Whether nothing is marked.
    bool isCurrent() const;
    //! Checks everything that is marked now. For a build, and for programs without an event loop.
    void update();
    //! Marks the whole project, for example when files of images have changed.
    void checkAll();

signals:
    void aboutToInsert(qsizetype first, qsizetype last);
    void inserted(qsizetype first, qsizetype last);
    void aboutToRemove(qsizetype first, qsizetype last);
    void removed(qsizetype first, qsizetype last);
    //! Problems in these rows may have been approved, or approvals withdrawn.
    void changed(qsizetype first, qsizetype last);
    //! Problems of the object came or went; the object is in the project.
    void problemsChanged(Halvane::Corvex::Designer::DesignerObject *object);
    void currentChanged(bool isCurrent);

private:
    std::unique_ptr<ProblemRows> m_rows;
    std::unique_ptr<ProblemChecker> m_checker;
};

} // namespace Halvane::Corvex::Designer
