// SPDX-License-Identifier: MIT
#include "corvex/runtime/RuntimeConfiguration.h"

#include "corvex/common/FileHelper.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/PasswordHash.h"
#include "corvex/values/ObjectLinkInfo.h"
#include "corvex/variables/AutoSettingVariable.h"
#include "corvex/variables/BACnetDevice.h"
#include "corvex/variables/CANVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QString valueOf(const DesignerObject *object, QStringView property)
{
    const SharedProperty found = object ? object->getProperty(property) : nullptr;
    return found ? found->valueString() : QString();
}

//! The QML id of the screen that the device shows first; empty without any screen.
QString defaultScreen(const DesignerObject &project)
{
    const QString chosen = ObjectLinkInfo(valueOf(&project, u"defaultScreen")).objectId();
    const DesignerObject *screen = project.getItemInListProperty(u"screens"_s, chosen);
    if (!screen) {
        screen = project.getItemInListPropertyAtIndex(u"screens"_s, 0);
    }
    return screen ? screen->getQmlIdName() : QString();
}

} // namespace

bool RuntimeConfiguration::collect(const DesignerObject &project, QString *error)
{
    *this = RuntimeConfiguration();
    if (const SharedProperty variables = project.getProperty(u"variables")) {
        for (const DesignerObject *object : variables->listItems()) {
            if (const auto *variable = kindCast<ProjectVariable>(object)) {
                addVariable(*variable);
            }
        }
    }
    m_config = {{u"defaultScreen"_s, defaultScreen(project)},
                {u"version"_s, valueOf(&project, u"version")},
                {u"comControlPassword"_s, QString()},
                {u"reintializePassword"_s, QString()},
                {u"variables"_s, m_variables}};
    return addPasswords(project, error);
}

void RuntimeConfiguration::addVariable(const ProjectVariable &variable)
{
    const QString kind = variable.className();
    if (kind == CANVariable::kindName()) {
        m_can.add(static_cast<const CANVariable &>(variable));
    } else if (kind == BACnetDevice::kindName()) {
        m_bacnet.addDevice(static_cast<const BACnetDevice &>(variable));
    } else if (kind == "BACnetObject"_L1) {
        m_bacnet.addObject(variable);
    } else if (kind == AutoSettingVariable::kindName()) {
        const auto &settings = static_cast<const AutoSettingVariable &>(variable);
        addRecord(u"%1.%2"_s.arg(settings.typeOfObject()->valueString(), variable.getIdName()), variable);
    } else if (kind != "MappingVariable"_L1 && kind != "LogVariable"_L1) {
        addRecord(variable.getIdName(), variable);
    }
}

void RuntimeConfiguration::addRecord(const QString &key, const ProjectVariable &variable)
{
    static const QString persistent = u"persistent"_s;
    static const QString type = u"type"_s;
    static const QString value = u"value"_s;
    m_variables.insert(key, QVariantMap{{persistent, variable.persistent()->valueString() == "true"_L1},
                                        {type, int(variable.variableType())},
                                        {value, variable.toVariant()}});
}

bool RuntimeConfiguration::addPasswords(const DesignerObject &project, QString *error)
{
    constexpr struct
    {
        const char16_t *key;
        const char16_t *enabled;
        const char16_t *password;
    } passwords[] = {
        {u"retreivePassword", u"enablePassword", u"password"},
        {u"uploadPassword", u"enableUpload", u"uploadPassword"},
    };
    const SharedProperty configuration = project.getProperty(u"configuration");
    const DesignerObject *device = configuration ? configuration->objectValue() : nullptr;
    for (const auto &[key, enabled, password] : passwords) {
        const QString name = QString::fromUtf16(key);
        const QString plain = valueOf(device, password);
        QString hash;
        if (valueOf(device, enabled) == "true"_L1 && !plain.isEmpty()) {
            hash = Common::PasswordHash::of(plain, {project.getIdName(), name});
            if (hash.isEmpty()) {
                *error = Common::LocalizationHelper::coreString(
                    u"There is not enough memory for the protection of the passwords (64 MB)."_s);
                return false;
            }
        }
        m_config.insert(name, hash);
    }
    return true;
}

bool RuntimeConfiguration::write(const QString &folder, QString *error) const
{
    const std::pair<QString, QVariantMap> files[] = {
        {u"%1/canConfig.kdrc"_s, canMap()},
        {u"%1/bacConfig.kdrc"_s, bacnetMap()},
        {u"%1/config.kdrc"_s, m_config},
    };
    return std::all_of(std::begin(files), std::end(files), [&](const auto &file) {
        return Common::FileHelper::variantToFile(file.second, file.first.arg(folder), false, error);
    });
}

} // namespace Halvane::Corvex::Designer
