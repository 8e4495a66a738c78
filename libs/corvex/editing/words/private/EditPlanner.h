// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerProperty.h"
#include "corvex/editing/words/EditPlan.h"
#include "corvex/editing/words/private/SettingText.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Designer {

class EditPlanner;
class Project;
struct EditCall;
struct PlannedCommand;

//! A row in the table of all edits: the name of an edit and its planner.
struct EditForm
{
    const char *name;
    const char *usage;
    int fewest; //!< minimum number of words after the name
    int most;   //!< maximum number; -1 for any
    int given;  //!< the index of the word with the name of the new or renamed object, or -1
    void (EditPlanner::*plan)(const EditCall &call, EditPlan &plan) const;
};

//! A line of a script and its edit.
struct EditCall
{
    const EditForm *form = nullptr; //!< null if the line has no edit
    QStringList words;              //!< the words after the name of the edit
    QString rest;                   //!< the line after the first of the words, unchanged
    QList<SettingText> settings;    //!< the values of an added object
    bool endsWithBlank = false;     //!< blanks at the end of the line, which were dropped
    EditRefusal refusal;            //!< why the line is invalid

    bool movesHistory() const;
    QString givenName() const { return form && form->given >= 0 ? words.value(form->given) : QString(); }
};

//! Plans the edits of a script.
class EditPlanner
{
public:
    EditPlanner(Project &project, std::function<bool()> loadModels)
        : m_project(project)
        , m_loadModels(std::move(loadModels))
    { }

    static EditCall read(const QString &line);
    EditPlan plan(const EditCall &call) const;

private:
    friend struct EditCall;

    static const QList<EditForm> &forms();
    static const EditForm *formNamed(const QString &name);

    SharedProperty propertyToSet(const QString &path, EditPlan &plan) const;
    DesignerObject *object(const QString &path, EditPlan &plan) const;
    bool objects(const QStringList &paths, QList<DesignerObject *> &found, EditPlan &plan) const;
    SharedProperty listFor(const QString &path, const DesignerObject &item, EditPlan &plan) const;
    static void take(std::unique_ptr<ModelCommand> command, EditPlan &plan);
    static void take(PlannedCommand command, EditPlan &plan);

    // The edits.
    void set(const EditCall &call, EditPlan &plan) const;
    void setValue(const SharedProperty &property, const EditCall &call, EditPlan &plan) const;
    void add(const EditCall &call, EditPlan &plan) const;
    void copy(const EditCall &call, EditPlan &plan) const;
    void remove(const EditCall &call, EditPlan &plan) const;
    void rename(const EditCall &call, EditPlan &plan) const;
    void group(const EditCall &call, EditPlan &plan) const;
    void ungroup(const EditCall &call, EditPlan &plan) const;
    void splitGroup(const EditCall &call, EditPlan &plan) const;
    void swap(const EditCall &call, EditPlan &plan) const;
    void move(const EditCall &call, EditPlan &plan) const;
    void addImages(const EditCall &call, EditPlan &plan) const;
    void replaceImage(const EditCall &call, EditPlan &plan) const;
    void model(const EditCall &call, EditPlan &plan) const;
    void filter(const EditCall &call, EditPlan &plan) const;
    void undo(const EditCall &call, EditPlan &plan) const;
    void redo(const EditCall &call, EditPlan &plan) const;
    void print(const EditCall &call, EditPlan &plan) const;
    void step(const EditCall &call, EditPlan &plan, int direction) const;

    Project &m_project;
    std::function<bool()> m_loadModels;
};

} // namespace Halvane::Corvex::Designer
