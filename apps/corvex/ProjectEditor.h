// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <memory>

namespace Halvane::Corvex::Designer {
class ModelCommand;
class Project;
class Screen;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Tool {

class Call;

/*! Edits a project by lines of text, one edit each: "set Main.title.text Hello". Words are those of
    EditLine, paths those of ProjectPath.

    Each line is one step of the project's history, except undo and redo. */
class ProjectEditor
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

    //! \a call tells where the device models are, which are read when an edit needs them.
    ProjectEditor(Designer::Project &project, const Call &call)
        : m_project(project)
        , m_call(call)
    { }

    enum class Result {
        Done,
        Failed,
        Follows, //!< it cannot be done, since an earlier line failed
    };
    //! When the line cannot be done the project is as before, and \a error has the reason for the user. An
    //! empty line and one that starts with "#" do nothing.
    Result run(const QString &line, QString &error);
    const QList<Edit> &edits() const { return m_edits; }
    //! What "print" lines have shown since the last call.
    QStringList takeOutput() { return std::exchange(m_output, {}); }
    //! Takes all edits back for good, with the files that came with them.
    void undoAll();

private:
    using Words = QStringList;
    struct Entry;
    static const QList<Entry> &entries();

    Result judgeFailure(const Entry *entry, const Words &words);
    bool push(Designer::ModelCommand *command);
    //! For a command that brings \a made into the model, which is refused when its name is not valid there.
    bool push(Designer::ModelCommand *command, const Designer::DesignerObject *made);
    bool fail(const QString &reason);
    Designer::DesignerObject *object(const QString &path);
    bool objects(const Words &paths, QList<Designer::DesignerObject *> &found);
    Designer::SharedProperty listFor(const QString &path, const Designer::DesignerObject &item);

    bool set(const Words &words);
    bool add(const Words &words);
    bool remove(const Words &words);
    bool rename(const Words &words);
    bool rename(Designer::DesignerObject &item, const QString &name);
    bool group(const Words &words);
    bool ungroup(const Words &words);
    bool splitGroup(const Words &words);
    bool swap(const Words &words);
    bool move(const Words &words);
    bool addImages(const Words &words);
    bool replaceImage(const Words &words);
    bool model(const Words &words);
    bool filter(const Words &words);
    bool undo(const Words &words);
    bool redo(const Words &words);
    bool print(const Words &words);
    bool step(const Words &words, int direction);

    Designer::Project &m_project;
    const Call &m_call;
    QList<Edit> m_edits;
    QStringList m_output;
    QString m_error;
    bool m_hasFailed = false;
    bool m_isLost = false;  //!< where the history would be now depends on lines that failed
    QSet<QString> m_unmade; //!< names that failed lines would have given
    QString m_rest;         //!< of the line after its second word, unchanged
};

} // namespace Halvane::Corvex::Tool
