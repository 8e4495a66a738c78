// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/ChangeConfiguration.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/DeviceChannels.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/project/elements/Element.h"

#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The values that the hardware determines.
constexpr std::array copied{
    "url"_L1,          "description"_L1,         "compatibleModels"_L1, "colorDepth"_L1,   "screenSize"_L1,
    "analogInputs"_L1, "alarmOutputs"_L1,        "serialCOMPorts"_L1,   "pwmFrequency"_L1, "pwmOutputs"_L1,
    "canbusPorts"_L1,  "digitalInputOutputs"_L1, "serialRS485Ports"_L1,
};

const Configuration *installed(const QString &modelName)
{
    const HardwareConfigurations *hardware = HardwareConfigurations::instance();
    return hardware ? hardware->installed()->configuration(modelName) : nullptr;
}

} // namespace

ChangeConfiguration::ChangeConfiguration(Project *project, const Configuration *model, UndoCommand *parent)
    : ModelCommand(project ? project->configuration() : SharedProperty(), true, parent)
{
    Configuration *own = project ? project->configurationObject() : nullptr;
    if (!own || !model) {
        refuse(Common::LocalizationHelper::coreString(u"No configuration can be found."_s));
        return;
    }
    setTitle(u"Change Model to \"%1\""_s, model->getIdName());
    setupCommand(own, model);
    setupHardwareElements(project, model);
}

ChangeConfiguration::ChangeConfiguration(Project *project, const QString &modelName, UndoCommand *parent)
    : ChangeConfiguration(project, installed(modelName), parent)
{
    if (!installed(modelName)) {
        refuse(Common::LocalizationHelper::coreString(u"The device model \"%1\" is not available."_s)
                   .arg(modelName));
    }
}

void ChangeConfiguration::setupCommand(Configuration *own, const Configuration *model)
{
    IdentifierInfo info = own->getIdInfo();
    info.setName(model->getIdName());
    addValueStep(own->idProperty(), info.toString());
    for (const QLatin1StringView id : copied) {
        addValueStep(own->getProperty(QString(id)), model->getProperty(QString(id))->valueString());
    }
}

void ChangeConfiguration::setupHardwareElements(const Project *project, const Configuration *model)
{
    for (const DeviceChannels &channels : DeviceChannels::all()) {
        for (const DesignerObject *item : project->screens()->listItems()) {
            moveElements(static_cast<const Screen *>(item)->getElementsOfType(channels.elementClass),
                         channels, *model);
        }
    }
}

//! Gives the elements of one screen whose channel number is too high the first free channels.
void ChangeConfiguration::moveElements(const QList<Element *> &users, const DeviceChannels &channels,
                                       const Configuration &model)
{
    const QList<int> available = channels.available(model);
    QList<int> free = available;
    for (const Element *user : users) {
        free.removeOne(user->getProperty(u"channel")->valueString().toInt());
    }
    for (const Element *user : users) {
        const SharedProperty channel = user->getProperty(u"channel");
        const int from = channel->valueString().toInt();
        if (from < 1 || available.contains(from)) {
            continue;
        }
        const int to = free.isEmpty() ? 0 : free.takeFirst();
        m_moves.append({user->objectPath(), from, to});
        if (to > 0) {
            addValueStep(channel, QString::number(to));
        }
    }
}

} // namespace Halvane::Corvex::Designer
