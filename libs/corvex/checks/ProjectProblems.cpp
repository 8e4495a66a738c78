// SPDX-License-Identifier: MIT
#include "corvex/checks/ProjectProblems.h"

#include "corvex/checks/CheckWalk.h"
#include "corvex/checks/CodeCheck.h"
#include "corvex/checks/DeviceCheck.h"
#include "corvex/checks/ExpressionCheck.h"
#include "corvex/checks/FieldbusCheck.h"
#include "corvex/checks/FileCheck.h"
#include "corvex/checks/InvalidValueCheck.h"
#include "corvex/checks/LogCheck.h"
#include "corvex/checks/ModbusCheck.h"
#include "corvex/checks/NumberCheck.h"
#include "corvex/checks/ReferenceCheck.h"
#include "corvex/project/Project.h"

namespace Halvane::Corvex::Designer {

QList<Problem> ProjectProblems::find(const Project &project, const ConfigurationContainer &models)
{
    FileCheck file(models);
    InvalidValueCheck invalidValues;
    NumberCheck numbers;
    ReferenceCheck references(project);
    DeviceCheck device(project, models);
    FieldbusCheck fieldbuses;
    ModbusCheck registers;
    ExpressionCheck expressions(project);
    LogCheck logs;
    CodeCheck code;

    CheckWalk walk;
    walk.add(file);
    walk.add(invalidValues);
    walk.add(numbers);
    walk.add(references);
    walk.add(device);
    walk.add(fieldbuses);
    walk.add(registers);
    walk.add(expressions);
    walk.add(logs);
    walk.add(code);
    return walk.run(project);
}

} // namespace Halvane::Corvex::Designer
