// SPDX-License-Identifier: MIT
#include "corvex/checks/DeviceCheck.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/DeviceChannels.h"
#include "corvex/project/Project.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString translated(const char *text)
{
    return Common::LocalizationHelper::coreString(QString::fromUtf8(text));
}

const Configuration *modelOf(const DesignerObject &object)
{
    return object.project() ? object.project()->configurationObject() : nullptr;
}

//! "1, 2, 5"
QString listed(const QList<int> &channels)
{
    QStringList numbers;
    for (const int channel : channels) {
        numbers.append(QString::number(channel));
    }
    return numbers.join(u", "_s);
}

bool isCanVariable(const DesignerObject &object)
{
    return object.isKindOfClass(u"CANVariable"_s);
}

} // namespace

bool DeviceCheck::concerns(const DesignerObject &object)
{
    return isCanVariable(object) || DeviceChannels::of(object.className());
}

void DeviceCheck::look(const DesignerObject &object)
{
    const Configuration *model = modelOf(object);
    if (!model) {
        return;
    }
    const DeviceChannels *channels =
        DeviceChannels::of(isCanVariable(object) ? u"CANBusDevice"_s : object.className());
    const QList<int> available = channels->available(*model);
    const SharedProperty channel = object.getProperty(u"channel");
    if (!channel) {
        if (available.isEmpty()) {
            report(object, ProblemCode::ModelLacks, {model->getIdName(), translated(channels->name)});
        }
        return;
    }
    // A number that no model has is the property's own problem.
    const int number = channel->valueString().toInt();
    if (number < 1 || available.contains(number)) {
        return;
    }
    const QString numbers = available.isEmpty() ? translated("none") : listed(available);
    report(*channel, ProblemCode::ChannelMissing,
           {model->getIdName(), QString::number(number), translated(channels->name), numbers});
}

} // namespace Halvane::Corvex::Designer
