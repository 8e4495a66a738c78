// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QString>

namespace Halvane::Corvex::Designer {
class ConfigurationContainer;
}

namespace Halvane::Corvex::Tool {

class Call;

/*! What lies beside the program, in the build tree as after installation. The options --plugins and
    --configurations of the call come first. */
class Installation
{
public:
    /*! Makes the factory, with all plug-ins. One that cannot be loaded is told to the user and passed over:
       what it would have made is kept as it stands in the files. */
    static ExitCode loadFactory(const Call &call);
    //! The installed device models; null, once the user has been told, when there are none. Needs the
    //! factory.
    static Designer::ConfigurationContainer *loadModels(const Call &call);
    //! What to say of a device model that is not among them.
    static QString unknownModel(const QString &name, const Designer::ConfigurationContainer &models);
};

} // namespace Halvane::Corvex::Tool
