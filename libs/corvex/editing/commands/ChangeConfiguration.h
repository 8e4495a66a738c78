// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Configuration;
class Project;

/*! Makes a project one for another device model: takes over what the hardware of the model fixes, and gives
    hardware elements whose channel the model does not have the first one that is free on their screen. */
class ChangeConfiguration : public ModelCommand
{
public:
    ChangeConfiguration(Project *project, const Configuration *model, UndoCommand *parent = nullptr);
    //! Takes the installed model of that name.
    ChangeConfiguration(Project *project, const QString &modelName, UndoCommand *parent = nullptr);

private:
    void setupCommand(Configuration *own, const Configuration *model);
    void setupHardwareElements(const Project *project, const Configuration *model);
};

} // namespace Halvane::Corvex::Designer
