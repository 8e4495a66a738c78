// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editing/commands/ModelCommand.h"

namespace Halvane::Corvex::Designer {

class Configuration;
class Element;
class Project;
struct DeviceChannels;

//! Converts a project to another device model: copies everything that the hardware of the model determines,
//! and gives each hardware element whose channel the model lacks the first free channel on its screen.
class CORVEX_EXPORT ChangeConfiguration : public ModelCommand
{
public:
    //! A hardware element whose channel the new model lacks.
    struct Move
    {
        QString element; //!< its path
        int from;
        int to; //!< 0 if no channel is free, and the element keeps the missing one
    };

    ChangeConfiguration(Project *project, const Configuration *model, UndoCommand *parent = nullptr);
    //! Uses the installed model with that name.
    ChangeConfiguration(Project *project, const QString &modelName, UndoCommand *parent = nullptr);

    //! The elements that need another channel.
    const QList<Move> &moves() const { return m_moves; }

private:
    void setupCommand(Configuration *own, const Configuration *model);
    void setupHardwareElements(const Project *project, const Configuration *model);
    void moveElements(const QList<Element *> &users, const DeviceChannels &channels,
                      const Configuration &model);

    QList<Move> m_moves;
};

} // namespace Halvane::Corvex::Designer
