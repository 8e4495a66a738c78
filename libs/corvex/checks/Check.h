// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Problem.h"
#include "corvex/common/Export.h"

#include <algorithm>
#include <utility>

namespace Halvane::Corvex::Designer {

class Project;

/*! Finds problems of one kind.

    The base class defines what a check examines: PropertyCheck, ObjectCheck or ProjectCheck. Its result for a
    property depends only on the object of that property and on the objects that it names. So the part that an
    edit has changed can be checked separately, and one walk through the project serves all checks. Several
    threads share the walk. Each thread has its own checks, and the results are combined at the end.
*/
class CORVEX_EXPORT Check
{
public:
    Check() = default;
    virtual ~Check() = default;
    Q_DISABLE_COPY_MOVE(Check)

    //! Takes the results of \a later, a check of the same class that has examined a later part of the
    //! project.
    virtual void join(Check &later) { m_problems += std::exchange(later.m_problems, {}); }
    //! Called when the check has examined everything. It may then examine more, and finish again.
    virtual void finish(const Project &) { }
    const QList<Problem> &problems() const { return m_problems; }
    QList<Problem> takeProblems() { return std::exchange(m_problems, {}); }

protected:
    void report(const Problem &problem) { m_problems.append(problem); }
    template<class Subject>
    void report(const Subject &subject, ProblemCode code, const QStringList &values = {})
    {
        report(Problem::at(subject, code, values));
    }
    //! Problems with equal keys keep their order.
    template<class Key>
    void sortProblems(Key key)
    {
        std::ranges::stable_sort(m_problems, {}, key);
    }

private:
    QList<Problem> m_problems;
};

//! Examines one property at a time.
class CORVEX_EXPORT PropertyCheck : public Check
{
public:
    //! Whether the check examines such properties. The answer applies to all objects of the owner's class.
    virtual bool concerns(const DesignerProperty &property) = 0;
    virtual void look(const DesignerProperty &property) = 0;
};

//! Examines one object at a time, without the objects below it.
class CORVEX_EXPORT ObjectCheck : public Check
{
public:
    //! Whether the check examines such objects. The answer applies to all objects of the class.
    virtual bool concerns(const DesignerObject &object) = 0;
    virtual void look(const DesignerObject &object) = 0;
};

//! Examines the project as a whole: its file and its device model.
class CORVEX_EXPORT ProjectCheck : public Check
{
public:
    virtual void look(const Project &project) = 0;
};

} // namespace Halvane::Corvex::Designer
