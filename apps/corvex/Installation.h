// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QString>

namespace Halvane::Corvex::Designer {
class ConfigurationContainer;
}

namespace Halvane::Corvex::Tool {

class Call;

//! Finds the files installed with the program; the build tree has the same layout. The options --plugins and
//! --configurations take precedence.
class Installation
{
public:
    //! Creates the factory and loads all plug-ins. Reports a plug-in that fails to load and continues;
    //! objects of its classes are kept as they are stored in the files.
    static ExitCode loadFactory(const Call &call);
    //! The installed device models. Null, after a message to the user, if no models are installed. Requires
    //! the factory.
    static Designer::ConfigurationContainer *loadModels(const Call &call);
    //! The message for an unknown device model.
    static QString unknownModel(const QString &name, const Designer::ConfigurationContainer &models);
};

} // namespace Halvane::Corvex::Tool
