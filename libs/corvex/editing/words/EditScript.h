// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
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

/*! Edits a project by lines of words, one edit each, such as "set Main.title.text Hello", and notes what was
    done. The words are those of EditLine, the paths those of ProjectPath. An empty line and one that starts
    with "#" ask for nothing.

    Each line is one step of the project's history, except undo and redo. */
class CORVEX_EXPORT EditScript
{
public:
    //! A value that an edit changed.
    struct Change
    {
        QString property; //!< its path
        QString before;
        QString after;
    };
    //! One edit that was made.
    struct Edit
    {
        QString text;          //!< what the history calls it
        QStringList parts;     //!< the same of what it is made of, when that is more than one thing
        QList<Change> changes; //!< in the order of their paths
    };
    enum class Result {
        Done,
        Failed,
        Follows, //!< it cannot be done, since an earlier line failed
    };

    /*! \a loadModels is called when an edit needs the installed device models and they have not been read. It
        answers whether they are there now. */
    explicit EditScript(Project &project, std::function<bool()> loadModels = {});
    ~EditScript();
    Q_DISABLE_COPY_MOVE(EditScript)

    //! The edit that a line asks for, as the project is now. Changes nothing.
    EditPlan plan(const QString &line) const;
    //! Makes the edit. When it cannot be made the project is as before, and refusal() has the reason.
    Result run(const QString &line);
    const EditRefusal &refusal() const { return m_refusal; }
    const QList<Edit> &edits() const { return m_edits; }
    //! What lines had to tell since the last call, those that failed included.
    QStringList takeOutput() { return std::exchange(m_output, {}); }
    //! Takes all edits back for good, with the files that came with them.
    void undoAll();

private:
    bool perform(EditPlan &plan);
    bool push(EditPlan &plan);
    Result noteFailure(const EditCall &call);

    Project &m_project;
    std::unique_ptr<EditPlanner> m_planner;
    EditRefusal m_refusal;
    QList<Edit> m_edits;
    QStringList m_output;
    bool m_hasFailed = false;
    bool m_isLost = false;  //!< where the history would be now depends on lines that failed
    QSet<QString> m_unmade; //!< names that failed lines would have given
};

} // namespace Halvane::Corvex::Designer
