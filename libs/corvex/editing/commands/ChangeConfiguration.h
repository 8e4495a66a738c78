// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Configuration;
class Element;
class Project;
struct DeviceChannels;

/*! Makes a project one for another device model: takes over what the hardware of the model fixes, and gives
    hardware elements whose channel the model does not have the first one that is free on their screen. */
class CORVEX_EXPORT ChangeConfiguration : public ModelCommand
{
public:
    //! A hardware element whose channel the new model does not have.
    struct Move
    {
        QString element; //!< its path
        int from;
        int to; //!< 0: no channel is free, and the element keeps the one that is not there
    };

    ChangeConfiguration(Project *project, const Configuration *model, UndoCommand *parent = nullptr);
    //! Takes the installed model of that name.
    ChangeConfiguration(Project *project, const QString &modelName, UndoCommand *parent = nullptr);

    //! What becomes of the elements that cannot stay on their channels.
    const QList<Move> &moves() const { return m_moves; }

private:
    void setupCommand(Configuration *own, const Configuration *model);
    void setupHardwareElements(const Project *project, const Configuration *model);
    void moveElements(const QList<Element *> &users, const DeviceChannels &channels,
                      const Configuration &model);

    QList<Move> m_moves;
};

} // namespace Halvane::Corvex::Designer
