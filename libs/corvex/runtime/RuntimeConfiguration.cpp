// SPDX-License-Identifier: MIT
#include "corvex/runtime/RuntimeConfiguration.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/VariantStream.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/common/private/PasswordHash.h"
#include "corvex/values/records/ObjectLinkInfo.h"
#include "corvex/variables/BACnetDevice.h"
#include "corvex/variables/CANVariable.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::VariantStream::MapWriter;

namespace {

const QString variablesKey = u"variables"_s;
const QString persistentKey = u"persistent"_s;
const QString typeKey = u"type"_s;
const QString valueKey = u"value"_s;

QString valueOf(const DesignerObject *object, QStringView property)
{
    const SharedProperty found = object ? object->getProperty(property) : nullptr;
    return found ? found->valueString() : QString();
}

//! The QML id of the first screen on the device; empty if there are no screens.
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
    sortVariables();
    m_settings = {{u"defaultScreen"_s, defaultScreen(project)},
                  {u"version"_s, valueOf(&project, u"version")},
                  {u"comControlPassword"_s, QString()},
                  {u"reintializePassword"_s, QString()}};
    return addPasswords(project, error);
}

//! Sorts the variables as in a map. If several have the same key, which a project with problems may contain,
//! keeps the last one.
void RuntimeConfiguration::sortVariables()
{
    // Usually the project has this order already.
    if (std::ranges::adjacent_find(m_variables, std::greater_equal(), &Variable::key) == m_variables.end()) {
        return;
    }
    std::ranges::stable_sort(m_variables, {}, &Variable::key);
    const auto hasHeir = [](const Variable &variable, const Variable &next) {
        return variable.key == next.key;
    };
    const auto kept = std::unique(m_variables.rbegin(), m_variables.rend(), hasHeir).base();
    m_variables.erase(m_variables.begin(), kept);
}

void RuntimeConfiguration::addVariable(const ProjectVariable &variable)
{
    if (const auto *can = kindCast<CANVariable>(&variable)) {
        m_can.add(*can);
    } else if (const auto *device = kindCast<BACnetDevice>(&variable)) {
        m_bacnet.addDevice(*device);
    } else if (variable.isKindOfClass(u"BACnetObject"_s)) {
        m_bacnet.addObject(variable);
    } else if (const QString key = variable.configurationKey(); !key.isEmpty()) {
        addRecord(key, variable);
    }
}

void RuntimeConfiguration::addRecord(const QString &key, const ProjectVariable &variable)
{
    m_variables.push_back({key, variable.persistent()->valueString() == "true"_L1,
                           int(variable.variableType()), variable.toVariant()});
}

QVariantMap RuntimeConfiguration::configMap() const
{
    QVariantMap variables;
    for (const auto &[key, isPersistent, type, value] : m_variables) {
        const QVariantMap record{{persistentKey, isPersistent}, {typeKey, type}, {valueKey, value}};
        variables.insert(key, record);
    }
    QVariantMap config = m_settings;
    config.insert(variablesKey, variables);
    return config;
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
        QString hash;
        if (valueOf(device, enabled) == "true"_L1) {
            hash = Common::PasswordHash::of(valueOf(device, password), {project.getIdName(), name});
            if (hash.isEmpty()) {
                *error = Common::LocalizationHelper::coreString(
                    u"There is not enough memory to hash the passwords (64 MB)."_s);
                return false;
            }
        }
        m_settings.insert(name, hash);
    }
    return true;
}

void RuntimeConfiguration::writeVariables(MapWriter &writer) const
{
    writer.beginMap(variablesKey, qsizetype(m_variables.size()));
    QHash<int, QByteArray> starts[2];
    for (const auto &[name, isPersistent, type, value] : m_variables) {
        QByteArray &start = starts[isPersistent][type];
        if (start.isEmpty()) {
            start = MapWriter::encoded(persistentKey, isPersistent) + MapWriter::encoded(typeKey, type);
        }
        writer.beginMap(name, 3);
        writer.addEncoded(start);
        writer.add(valueKey, value);
    }
}

//! Writes the same bytes as variantToFile() for configMap().
bool RuntimeConfiguration::writeConfig(const QString &path, QString *error) const
{
    constexpr qsizetype usualRecordSize = 160;
    QVariantMap config = m_settings;
    config.insert(variablesKey, QVariant());
    QByteArray bytes;
    bytes.reserve(qsizetype(m_variables.size()) * usualRecordSize);
    MapWriter writer(&bytes, config.size());
    for (const auto &[key, setting] : config.asKeyValueRange()) {
        if (key == variablesKey) {
            writeVariables(writer);
        } else {
            writer.add(key, setting);
        }
    }
    if (!writer.isGood()) {
        *error = Common::LocalizationHelper::coreString(
            u"A variable has a value of a type that the device does not support."_s);
        return false;
    }
    return Common::FileHelper::writeFile(path, bytes, error);
}

bool RuntimeConfiguration::write(const QString &folder, QString *error) const
{
    using Common::FileHelper;
    return FileHelper::variantToFile(canMap(), u"%1/canConfig.kdrc"_s.arg(folder), false, error)
           && FileHelper::variantToFile(bacnetMap(), u"%1/bacConfig.kdrc"_s.arg(folder), false, error)
           && writeConfig(u"%1/config.kdrc"_s.arg(folder), error);
}

} // namespace Halvane::Corvex::Designer
