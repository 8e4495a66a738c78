// SPDX-License-Identifier: MIT
// The import of a table of variables as a job of ProjectDocument.
#include "corvex/common/LocalizationHelper.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/editing/commands/variables/ImportVariables.h"
#include "corvex/editing/words/ReadableValue.h"
#include "corvex/project/Project.h"

#include <QScopedValueRollback>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::Job;
using Common::LocalizationHelper;
using Common::Progress;

//! The number of changes per command: small enough for a slice, and large enough for few commands.
constexpr qsizetype changesAtOnce = 16;
//! The maximum number of lines in an error; a wrong table has thousands of them.
constexpr qsizetype mostLines = 100;

QString textOf(QList<CsvText::Problem> problems)
{
    std::ranges::stable_sort(problems, {}, &CsvText::Problem::line);
    QStringList lines;
    for (const CsvText::Problem &problem : std::as_const(problems)) {
        if (lines.size() == mostLines) {
            lines.append(LocalizationHelper::coreString(u"%1 more lines are wrong."_s)
                             .arg(problems.size() - mostLines));
            break;
        }
        lines.append(problem.line > 0 ? problem.toString() : problem.text);
    }
    return lines.join(u'\n');
}

} // namespace

//! Imports a table in small steps: first compares all rows, and then, if there are no errors, applies the
//! changes in a gesture of the document. The gesture is rolled back if the run is deleted before it is
//! complete.
class ProjectDocument::ImportRun
{
    Q_DISABLE_COPY_MOVE(ImportRun)

public:
    explicit ImportRun(ProjectDocument &document)
        : m_document(&document)
        , m_import(document.project())
    { }
    ~ImportRun()
    {
        if (m_isApplying && m_document) {
            const QScopedValueRollback<bool> isOwnEdit(m_document->m_isOwnEdit, true);
            m_document->m_history->rollBackGesture();
        }
    }

    void begin(const QByteArray &table, QChar separator)
    {
        m_import.setFieldReader(ReadableValue::fieldReader(m_document->project()));
        m_import.begin(table, separator);
    }

    Job::Next compare(Progress &progress, QString &error)
    {
        if (!m_isComparing) {
            m_isComparing = true;
            progress.begin(LocalizationHelper::coreString(u"Comparing the table with the project"_s),
                           m_import.rowCount());
        }
        progress.advance();
        if (m_import.readRow()) {
            return Job::Next::More;
        }
        error = textOf(m_import.problems() + m_import.invalidValues());
        return error.isEmpty() ? Job::Next::Done : Job::Next::Failed;
    }

    Job::Next apply(Progress &progress, QString &error, std::optional<ImportResult> &result)
    {
        const QScopedValueRollback<bool> isOwnEdit(m_document->m_isOwnEdit, true);
        if (!m_isApplying && !beginApplying(progress, error)) {
            return Job::Next::Failed;
        }
        if (m_nextChange == m_import.changes().size() && m_nextAddition == m_additions.size()) {
            return commit(error, result);
        }
        return pushNext(progress, error) ? Job::Next::More : Job::Next::Failed;
    }

private:
    bool beginApplying(Progress &progress, QString &error)
    {
        m_isApplying =
            m_document->m_history->beginGesture(LocalizationHelper::coreString(u"Import variables"_s));
        if (!m_isApplying) {
            error = m_document->m_history->errorString();
            return false;
        }
        m_additions = m_import.takeAdditions();
        for (const auto &variable : m_additions) {
            m_added.append(variable.get());
        }
        progress.begin(LocalizationHelper::coreString(u"Importing variables"_s),
                       m_import.changes().size() + qsizetype(m_additions.size()));
        return true;
    }

    bool pushNext(Progress &progress, QString &error)
    {
        const QList<VariableImport::Change> changes = m_import.changes().mid(m_nextChange, changesAtOnce);
        m_nextChange += changes.size();
        std::vector<std::unique_ptr<DesignerObject>> additions;
        if (changes.isEmpty()) {
            additions.push_back(std::move(m_additions[m_nextAddition++]));
        }
        progress.advance(changes.size() + qsizetype(additions.size()));
        Project &project = m_document->project();
        UndoStack *stack = project.undoStack();
        const bool isDone =
            stack->push(new ImportVariables(project.variables(), changes, std::move(additions)));
        error = isDone ? QString() : stack->errorString();
        return isDone;
    }

    //! The names of new variables can only be compared with all others now.
    Job::Next commit(QString &error, std::optional<ImportResult> &result)
    {
        QList<CsvText::Problem> problems;
        for (const DesignerObject *variable : std::as_const(m_added)) {
            if (!variable->idProperty()->isValid()) {
                const QString name = variable->getIdName();
                problems.append(
                    {m_import.lineOf(name), u"%1: %2"_s.arg(name, variable->idProperty()->errorString())});
            }
        }
        error = textOf(problems);
        if (!error.isEmpty()) {
            return Job::Next::Failed;
        }
        m_isApplying = false;
        m_document->m_history->commitGesture();
        result = {m_import.changes().size(), m_added.size(), m_import.unchangedCount()};
        return Job::Next::Done;
    }

    QPointer<ProjectDocument> m_document;
    VariableImport m_import;
    std::vector<std::unique_ptr<DesignerObject>> m_additions;
    QList<const DesignerObject *> m_added;
    qsizetype m_nextChange = 0;
    size_t m_nextAddition = 0;
    bool m_isComparing = false;
    bool m_isApplying = false;
};

std::unique_ptr<ProjectDocument::ImportJob> ProjectDocument::importVariables(const QByteArray &table,
                                                                             QChar separator)
{
    QString reason;
    if (!mayRead() || !result(mayEdit(reason), reason)) {
        return nullptr;
    }
    auto job = std::make_unique<ImportJob>();
    addReader(job.get(),
              LocalizationHelper::coreString(
                  u"Variables are being imported. Wait until the import has finished, or cancel it."_s),
              true);
    auto run = std::make_shared<ImportRun>(*this);
    job->addInThread([run, table, separator](Progress &progress, QString &) {
        progress.begin(LocalizationHelper::coreString(u"Reading the table"_s));
        run->begin(table, separator);
        return true;
    });
    job->addInSlices([run](Progress &progress, QString &error) { return run->compare(progress, error); });
    job->addInSlices([run, place = job->resultPlace()](Progress &progress, QString &error) {
        return run->apply(progress, error, *place);
    });
    run.reset();
    job->start();
    return job;
}

} // namespace Halvane::Corvex::Designer
