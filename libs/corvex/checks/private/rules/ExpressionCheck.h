// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/checks/Check.h"

namespace Halvane::Corvex::Designer {

struct FunctionCall;
class GeneralDataInfo;
class GeneralDataList;
struct ExpressionPurpose;

//! Checks types in the expressions of screens: assignments, conditions, operations, arguments of functions,
//! and variables without a value.
class ExpressionCheck : public PropertyCheck
{
public:
    explicit ExpressionCheck(const Project &project)
        : m_project(project)
    { }

    bool concerns(const DesignerProperty &property) override;
    void look(const DesignerProperty &property) override;

private:
    void lookAtMeaning(const DesignerProperty &property, const GeneralDataList &terms,
                       const ExpressionPurpose &purpose);
    void lookAtTerms(const DesignerProperty &property, const GeneralDataList &terms);
    void lookAtCall(const DesignerProperty &property, const FunctionCall &call);
    void lookAtAssignments(const DesignerProperty &property, const GeneralDataList &terms);
    void lookAtCondition(const DesignerProperty &property, const GeneralDataList &terms);
    void lookAtColors(const DesignerProperty &property, const GeneralDataList &terms);

    const Project &m_project;
};

} // namespace Halvane::Corvex::Designer
