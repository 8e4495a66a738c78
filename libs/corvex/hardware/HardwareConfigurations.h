// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QObject>

#include <memory>

namespace Halvane::Corvex::Designer {

class ConfigurationContainer;

//! The device models that are installed beside the tool, read once. One per process, a child of the
//! application object.
class CORVEX_EXPORT HardwareConfigurations : public QObject
{
    Q_OBJECT

public:
    ~HardwareConfigurations() override;

    /*! Reads the folder "Configurations" in \a path. False, and no instance, when there is none or no
       application object. An earlier instance is replaced. The factory must be there. */
    static bool createInstance(const QString &path);
    //! Null before createInstance().
    static HardwareConfigurations *instance();

    ConfigurationContainer *installed() const { return m_installed.get(); }

private:
    explicit HardwareConfigurations(QObject *parent);

    std::unique_ptr<ConfigurationContainer> m_installed;
};

} // namespace Halvane::Corvex::Designer
