// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerProperty.h"
#include "corvex/editing/words/EditPlan.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace Halvane::Corvex::Designer {

class EditPlanner;
class Project;
struct EditCall;

/*! Edits a project by lines such as "set Main.title.text Hello", one edit per line, and records what was
    done. EditLine defines the words, ProjectPath the paths. Empty lines and lines that begin with "#" are
    ignored.

    Each line is one step in the project's history, except undo and redo. An "add" with values is one step,
    too.
*/
class CORVEX_EXPORT EditScript
{
public:
    //! A value changed by an edit.
    struct Change
    {
        QString property; //!< its path
        QString before;
        QString after;
        // The forms that people write; empty without setReportsReadable().
        QString readableBefore;
        QString readableAfter;
    };
    //! A completed edit.
    struct Edit
    {
        QString text;          //!< its text in the history
        QStringList parts;     //!< the texts of its parts, if it has several
        QList<Change> changes; //!< ordered by path
    };
    enum class Result {
        Done,
        Failed,
        Follows, //!< it cannot be done because an earlier line failed
    };

    //! \a loadModels is called when an edit needs the device models and they are not loaded. It returns
    //! whether they are available now.
    explicit EditScript(Project &project, std::function<bool()> loadModels = {});
    ~EditScript();
    Q_DISABLE_COPY_MOVE(EditScript)

    //! From now on, changes also have their readable forms, which takes time.
    void setReportsReadable(bool reports) { m_reportsReadable = reports; }

    //! Plans the edit of a line for the current state of the project. Changes nothing. For an "add" with
    //! values, it plans only the addition.
    EditPlan plan(const QString &line) const;
    //! Does the edit. On failure the project is unchanged, and refusal() gives the reason.
    Result run(const QString &line);
    const EditRefusal &refusal() const { return m_refusal; }
    const QList<Edit> &edits() const { return m_edits; }
    //! The output of all lines since the last call, including failed ones.
    QStringList takeOutput() { return std::exchange(m_output, {}); }
    //! The values that the edits set and that the project keeps although they are invalid, with the reasons:
    //! "Main.lamp.opacity: opacity takes numbers from 10 to 100, not 300." Sorted.
    QStringList invalidValues() const;
    //! Permanently undoes all edits, including the files that they added.
    void undoAll();

private:
    bool perform(EditPlan &plan);
    bool push(EditPlan &plan);
    bool addWithValues(const EditCall &call);
    Result noteFailure(const EditCall &call);

    Project &m_project;
    std::unique_ptr<EditPlanner> m_planner;
    EditRefusal m_refusal;
    QList<Edit> m_edits;
    QSet<SharedProperty> m_changed; //!< by "set"
    QStringList m_output;
    bool m_hasFailed = false;
    bool m_isLost = false; //!< the current position in the history depends on failed lines
    bool m_reportsReadable = false;
    QSet<QString> m_unmade; //!< names that failed lines would have assigned
};

} // namespace Halvane::Corvex::Designer
