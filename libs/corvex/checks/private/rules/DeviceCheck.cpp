// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/DeviceCheck.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/DeviceChannels.h"
#include "corvex/project/Project.h"
#include "corvex/variables/ProjectVariable.h"

#include <numeric>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr auto ethernetName = "Ethernet ports";

QString translated(const char *text)
{
    return Common::LocalizationHelper::coreString(QString::fromUtf8(text));
}

//! "1, 2, 5"
QString listed(const QList<int> &channels)
{
    QStringList numbers;
    for (const int channel : channels) {
        numbers.append(QString::number(channel));
    }
    return numbers.isEmpty() ? translated("none") : numbers.join(u", "_s);
}

using Connection = ProjectVariable::Connection;

//! What an object needs of the model, other than a channel of its own.
Connection connectionOf(const DesignerObject &object)
{
    if (const auto *variable = kindCast<ProjectVariable>(&object)) {
        return variable->connection();
    }
    return object.isKindOfClass(u"EthernetPort"_s) ? Connection::Ethernet : Connection::None;
}

} // namespace

DeviceCheck::DeviceCheck(const Project &project, const ConfigurationContainer &models)
    : m_model(project.configurationObject())
{
    const Configuration *installed = m_model ? models.configuration(m_model->getIdName()) : nullptr;
    m_ethernetPorts = installed ? installed->ethernetPorts() : std::nullopt;
}

bool DeviceCheck::isOnDevice(const DesignerObject &object)
{
    return connectionOf(object) != Connection::None || DeviceChannels::of(object.className());
}

bool DeviceCheck::concerns(const DesignerObject &object)
{
    const Connection connection = connectionOf(object);
    return m_model
           && (connection == Connection::Can || DeviceChannels::of(object.className())
               || (m_ethernetPorts && connection == Connection::Ethernet));
}

void DeviceCheck::look(const DesignerObject &object)
{
    const char *name = ethernetName;
    QList<int> available(m_ethernetPorts.value_or(0));
    std::iota(available.begin(), available.end(), 1);
    if (const Connection connection = connectionOf(object); connection != Connection::Ethernet) {
        const DeviceChannels *channels =
            DeviceChannels::of(connection == Connection::Can ? u"CANBusDevice"_s : object.className());
        name = channels->name;
        available = channels->available(*m_model);
    }
    if (const SharedProperty channel = object.getProperty(u"channel")) {
        // A number that exists on no model is reported by the property itself.
        const int number = channel->valueString().toInt();
        if (number >= 1 && !available.contains(number)) {
            report(*channel, ProblemCode::ChannelMissing,
                   {m_model->getIdName(), QString::number(number), translated(name), listed(available)});
        }
        return;
    }
    const SharedProperty network = object.getProperty(u"bacnetType");
    if (available.isEmpty() && (!network || network->valueString() == "BACnetIP"_L1)) {
        report(object, ProblemCode::ModelLacks, {m_model->getIdName(), translated(name)});
    }
}

} // namespace Halvane::Corvex::Designer
