// SPDX-License-Identifier: MIT
#include "corvex/hardware/HardwareConfigurations.h"

#include "corvex/hardware/ConfigurationContainer.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace Halvane::Corvex::Designer {

namespace {

//! Gives access to the constructor, which otherwise only the factory uses.
struct Installed : public ConfigurationContainer
{ };

HardwareConfigurations *theInstance = nullptr;

} // namespace

HardwareConfigurations::HardwareConfigurations(QObject *parent)
    : QObject(parent)
    , m_installed(std::make_unique<Installed>())
{ }

HardwareConfigurations::~HardwareConfigurations()
{
    if (theInstance == this) {
        theInstance = nullptr;
    }
}

bool HardwareConfigurations::createInstance(const QString &path)
{
    if (!QCoreApplication::instance() || !QFileInfo::exists(path)) {
        return false;
    }
    delete theInstance;
    auto *configurations = new HardwareConfigurations(QCoreApplication::instance());
    if (!configurations->installed()->initialize() || !configurations->installed()->loadDirectory(path)) {
        configurations->setParent(nullptr);
        delete configurations;
        return false;
    }
    theInstance = configurations;
    return true;
}

HardwareConfigurations *HardwareConfigurations::instance()
{
    return theInstance;
}

} // namespace Halvane::Corvex::Designer
