// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectBuilder.h"

namespace Halvane::Corvex::Examples {

/*! The example project PumpStation: the panel of a small pumping station with a wet well, two pumps and a
    pressure main. It has no file; writeImages() gives its images theirs. */
class PumpStation
{
public:
    PumpStation();

    std::unique_ptr<Designer::Project> build();
    //! What could not be done; nothing, unless the drawing itself is at fault.
    QStringList problems() const { return m_builder.problems(); }

    //! Draws the pictures that the project shows into an existing folder.
    static bool writeImages(const QString &folder);

private:
    void addVariables();
    void mapRegisters();
    void addNetworks();
    void addSavedSettings();
    void drawScreens();

    ProjectBuilder m_builder;
};

} // namespace Halvane::Corvex::Examples
