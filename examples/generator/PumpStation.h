// SPDX-License-Identifier: MIT
#pragma once

#include "ProjectBuilder.h"

namespace Halvane::Corvex::Examples {

//! The example project PumpStation: the panel of a small pumping station with a wet well, two pumps and a
//! pressure main. It has no file; writeImages() writes the files of its images.
class PumpStation
{
public:
    PumpStation();

    std::unique_ptr<Designer::Project> build();
    //! Failed operations; always empty unless this class has an error.
    QStringList problems() const { return m_builder.problems(); }

    //! Draws the images of the project into an existing folder.
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
