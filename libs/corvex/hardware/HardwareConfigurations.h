// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QObject>

#include <memory>

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;

//! The installed device models, read once. There is one instance per process, a child of the application
//! object.
class CORVEX_EXPORT HardwareConfigurations : public QObject
{
    Q_OBJECT

public:
    ~HardwareConfigurations() override;

    //! Reads the folder "Configurations" in \a path and replaces an earlier instance. Returns false, without
    //! an instance, if there is no such folder or no application object. Requires the factory.
    static bool createInstance(const QString &path);
    //! Null before createInstance().
    static HardwareConfigurations *instance();

    ConfigurationContainer *installed() const { return m_installed.get(); }

private:
    explicit HardwareConfigurations(QObject *parent);

    std::unique_ptr<ConfigurationContainer> m_installed;
};

} // namespace Halvane::Corvex::Designer
