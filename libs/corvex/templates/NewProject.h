// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>

#include <memory>

namespace Halvane::Corvex::Designer {

class Configuration;
class Project;

//! Starts projects.
class CORVEX_EXPORT NewProject
{
public:
    //! The name of the first screen.
    static QString screenName();
    //! Creates the project D/P/P.kdproj for a device model in the existing folder D = \a parentPath, with one
    //! screen, which is the default screen. Null, with a text for the user in \a error, on failure.
    static std::unique_ptr<Project> create(const QString &parentPath, const QString &name,
                                           const Configuration &model, QString &error);
};

} // namespace Halvane::Corvex::Designer
