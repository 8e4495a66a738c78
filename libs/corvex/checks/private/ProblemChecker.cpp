// SPDX-License-Identifier: MIT
#include "corvex/checks/private/ProblemChecker.h"

#include "corvex/checks/ProblemList.h"
#include "corvex/checks/private/ProblemRows.h"
#include "corvex/editing/undo/UndoStack.h"
#include "corvex/project/Project.h"

#include <QCoreApplication>

using namespace std::chrono_literals;

namespace Halvane::Corvex::Designer {

namespace {

//! The maximum delay for repainting or handling a key.
constexpr auto slice = 10ms;
//! The part of a slice for examining objects. The rest is for shared checks.
constexpr auto lookingTime = 6ms;

//! The time until the next attempt while another thread reads the project.
constexpr auto pauseWhileRead = 50ms;

using Origin = ProblemRows::Origin;

} // namespace

ProblemChecker::ProblemChecker(Project &project, const ConfigurationContainer &models, ProblemList &list,
                               ProblemRows &rows)
    : m_models(models)
    , m_list(list)
    , m_rows(rows)
    , m_marks(project, *this)
{
    m_timer.setSingleShot(true);
    QObject::connect(&m_timer, &QTimer::timeout, &m_list, [this] { runSlice(); });
    m_marks.markAll();
}

ProblemChecker::~ProblemChecker() = default;

void ProblemChecker::setCurrent(bool isCurrent)
{
    if (isCurrent != m_isCurrent) {
        m_isCurrent = isCurrent;
        emit m_list.currentChanged(isCurrent);
    }
}

void ProblemChecker::marked()
{
    setCurrent(false);
    if (!m_timer.isActive() && QCoreApplication::instance()) {
        m_timer.start(0ms);
    }
}

void ProblemChecker::left(const DesignerObject *object)
{
    m_rows.drop(object);
    m_onDevice.remove(object);
    for (ClaimStore &claims : m_claims) {
        claims.drop(object);
    }
}

void ProblemChecker::reordered(const DesignerObject *item)
{
    for (ClaimStore &claims : m_claims) {
        item ? claims.compareGroupsOf(item) : claims.compareAll();
    }
}

void ProblemChecker::cleared()
{
    m_timer.stop();
    m_checks.reset();
    m_claims.clear();
    m_onDevice.clear();
    m_rows.clear();
    setCurrent(true);
}

void ProblemChecker::runSlice()
{
    run(QDeadlineTimer(slice));
    if (!m_isCurrent) {
        m_timer.start(project()->undoStack()->mayValidate() ? 0ms : pauseWhileRead);
    }
}

void ProblemChecker::run(QDeadlineTimer deadline)
{
    if (!project() || !project()->undoStack()->mayValidate()) {
        return;
    }
    do {
        if (m_marks.takeConfigurationMark() || !m_checks) {
            renewChecks();
        }
        if (m_marks.takeFileMark()) {
            checkFile();
        }
        checkObjects(QDeadlineTimer(lookingTime));
        if (m_marks.isEmpty()) {
            compareGroups(deadline);
        }
        m_rows.flush();
        if (m_marks.isEmpty() && areClaimsCurrent()) {
            m_timer.stop();
            setCurrent(true);
        }
    } while (!m_isCurrent && !deadline.hasExpired());
}

//! The checks store data of the device model.
void ProblemChecker::renewChecks()
{
    m_checks.emplace(CheckWalk::withAllChecks(*project(), m_models));
    m_claims.resize(size_t(m_checks->sharedChecks().size()));
    for (const DesignerObject *object : std::as_const(m_onDevice)) {
        m_marks.mark(const_cast<DesignerObject *>(object));
    }
    checkFile();
}

void ProblemChecker::checkFile()
{
    m_checks->lookAtFile(*project());
    m_rows.set(project(), {Origin::file}, m_checks->takeProblems(*project()));
}

void ProblemChecker::checkObjects(QDeadlineTimer deadline)
{
    QSet<DesignerObject *> seen;
    while (!m_marks.isEmpty() && !deadline.hasExpired()) {
        DesignerObject *object = m_marks.take();
        if (seen.contains(object)) {
            m_marks.mark(object);
            break;
        }
        if (object) {
            look(object);
            seen.insert(object);
        }
    }
    QHash<const DesignerObject *, QList<Problem>> found;
    for (const Problem &problem : m_checks->takeProblems(*project())) {
        found[problem.source].append(problem);
    }
    for (DesignerObject *object : std::as_const(seen)) {
        m_rows.set(object, {Origin::object}, found.value(object));
    }
}

void ProblemChecker::look(DesignerObject *object)
{
    object->validateProperties();
    m_marks.unmark(object); // validating it has marked it again
    m_checks->look(*object);
    if (m_checks->isOnDevice(*object)) {
        m_onDevice.insert(object);
    }
    for (const qsizetype index : m_checks->sharedChecksFor(*object)) {
        const ClaimStore::Claims claims = m_checks->sharedChecks().at(index)->claims(*object);
        for (const QString &key : m_claims[size_t(index)].set(object, claims)) {
            m_rows.set(object, {index, key}, {});
        }
    }
}

bool ProblemChecker::areClaimsCurrent() const
{
    return std::ranges::all_of(m_claims, &ClaimStore::isCurrent);
}

void ProblemChecker::compareGroups(QDeadlineTimer deadline)
{
    for (size_t index = 0; index < m_claims.size(); ++index) {
        SharedCheck &check = *m_checks->sharedChecks().at(qsizetype(index));
        while (!m_claims[index].isCurrent() && !deadline.hasExpired()) {
            const SharedCheck::Group group = m_claims[index].takeChanged();
            if (group.subjects.isEmpty()) {
                continue;
            }
            check.compare(group);
            QHash<const DesignerObject *, QList<Problem>> found;
            for (const Problem &problem : check.takeProblems()) {
                found[problem.source].append(problem);
            }
            for (const DesignerObject *subject : group.subjects) {
                m_rows.set(const_cast<DesignerObject *>(subject), {qsizetype(index), group.key},
                           found.value(subject));
            }
        }
    }
}

} // namespace Halvane::Corvex::Designer
