// SPDX-License-Identifier: MIT
#include "corvex/preview/state/ProblemLog.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

QString PanelProblem::toString() const
{
    return element.isEmpty() ? message : element + u": "_s + message;
}

void ProblemLog::report(const QString &element, const QString &message)
{
    const PanelProblem problem{element, message};
    qsizetype index = m_indexes.value(problem.toString(), -1);
    if (index < 0) {
        index = m_problems.size();
        m_indexes.insert(problem.toString(), index);
        m_problems.append(problem);
    } else {
        ++m_problems[index].count;
    }
    emit changed(index);
}

void ProblemLog::clear()
{
    m_problems.clear();
    m_indexes.clear();
    emit changed(-1);
}

} // namespace Halvane::Corvex::Preview
