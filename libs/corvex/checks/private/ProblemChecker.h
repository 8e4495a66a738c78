// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/private/CheckWalk.h"
#include "corvex/checks/private/ClaimStore.h"
#include "corvex/checks/private/EditMarks.h"

#include <QDeadlineTimer>
#include <QTimer>

#include <optional>

namespace Halvane::Corvex::Designer {

class ProblemList;
class ProblemRows;

//! Checks the marked parts of a project in slices, and updates the rows of a ProblemList.
class ProblemChecker : private EditMarks::Listener
{
    Q_DISABLE_COPY_MOVE(ProblemChecker)

public:
    ProblemChecker(Project &project, const ConfigurationContainer &models, ProblemList &list,
                   ProblemRows &rows);
    ~ProblemChecker() override;

    Project *project() const { return m_marks.project(); }
    bool isCurrent() const { return m_isCurrent; }
    void checkAll() { m_marks.markAll(); }
    //! Checks until the deadline, or until nothing is marked.
    void run(QDeadlineTimer deadline);

private:
    void marked() override;
    void left(const DesignerObject *object) override;
    void reordered(const DesignerObject *item) override;
    void cleared() override;

    void runSlice();
    void renewChecks();
    //! Objects are examined together, because some checks parse what they have found all at once.
    void checkObjects(QDeadlineTimer deadline);
    void look(DesignerObject *object);
    void checkFile();
    void compareGroups(QDeadlineTimer deadline);
    bool areClaimsCurrent() const;
    void setCurrent(bool isCurrent);

    const ConfigurationContainer &m_models;
    ProblemList &m_list;
    ProblemRows &m_rows;
    std::optional<CheckWalk> m_checks;
    std::vector<ClaimStore> m_claims;        //!< by shared check
    QSet<const DesignerObject *> m_onDevice; //!< the objects that depend on the device model
    QTimer m_timer;
    bool m_isCurrent = true;
    EditMarks m_marks;
};

} // namespace Halvane::Corvex::Designer
