// SPDX-License-Identifier: MIT
#include "corvex/checks/ProjectProblems.h"

#include "corvex/checks/CheckWalk.h"
#include "corvex/checks/CodeCheck.h"
#include "corvex/checks/FileCheck.h"
#include "corvex/checks/InvalidValueCheck.h"
#include "corvex/checks/NumberCheck.h"
#include "corvex/checks/ReferenceCheck.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

QList<Problem> ProjectProblems::find(const Project &project, const ConfigurationContainer &models)
{
    CodeCheck code;
    for (const DesignerObject *screen : project.screens()->listItems()) {
        code.add(*screen, screen->toQml(0));
    }
    return find(project, models, code);
}

QList<Problem> ProjectProblems::find(const Project &project, const ConfigurationContainer &models,
                                     CodeCheck &code)
{
    FileCheck file(models);
    InvalidValueCheck invalidValues;
    NumberCheck numbers;
    ReferenceCheck references(project);

    CheckWalk walk;
    walk.add(file);
    walk.add(invalidValues);
    walk.add(numbers);
    walk.add(references);
    return walk.run(project) + code.problems();
}

} // namespace Halvane::Corvex::Designer
