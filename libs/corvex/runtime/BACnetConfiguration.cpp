// SPDX-License-Identifier: MIT
#include "corvex/runtime/BACnetConfiguration.h"

#include "corvex/common/BACDeviceInfo.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/values/text/NestedText.h"
#include "corvex/variables/BACnetDevice.h"
#include "corvex/variables/BACnetPropertyList.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

QVariant asText(const QString &text)
{
    return text;
}

QVariant asNumber(const QString &text)
{
    return text.toInt();
}

QVariant asTruth(const QString &text)
{
    return text == "true"_L1;
}

constexpr struct
{
    const char16_t *property;
    const char16_t *name;
    QVariant (*typed)(const QString &text);
} settings[] = {
    {u"objIdentifier", u"objId", asNumber}, {u"bacnetType", u"bcType", asText},
    {u"netNumber", u"netNum", asNumber},    {u"portNumber", u"portNum", asNumber},
    {u"isLocal", u"isLocal", asTruth},      {u"isFixed", u"isFixed", asTruth},
    {u"macAddress", u"macAdd", asText},     {u"ethernetIP", u"ethrIP", asText},
};

QString propertiesText(const DesignerObject &object)
{
    BACnetPropertyList list;
    QString error;
    const SharedProperty terms = object.getProperty(u"properties");
    if (!list.read(valueAs<GeneralDataListProperty>(terms), error)) {
        return {};
    }
    QStringList texts;
    for (const BACnetPropertyList::Entry &entry : list.entries()) {
        texts.append(u"%1:%2:%3"_s.arg(BACnetPropertyList::propertyName(entry.property), entry.dataType,
                                       NestedText::toField(entry.source.toString())));
    }
    return texts.join(u';');
}

} // namespace

void BACnetConfiguration::addDevice(const BACnetDevice &device)
{
    const QString deviceName = device.getIdName();
    const bool isPanel = device.isLocal()->valueString() == "true"_L1 && !m_devices.contains(u"objId"_s);
    for (const auto &[property, name, typed] : settings) {
        const QVariant value = typed(device.getProperty(property)->valueString());
        const QString key = QString::fromUtf16(name);
        m_devices.insert(u"%1|%2"_s.arg(key, deviceName), value);
        if (isPanel) {
            m_devices.insert(key, value);
        }
    }
    const QVariantMap items = Common::BACDeviceInfo(device.reqProps()->valueString()).toVariantMap();
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        m_devices.insert(u"%1|%2"_s.arg(item.key(), deviceName), item.value());
    }
}

void BACnetConfiguration::addObject(const DesignerObject &object)
{
    const auto field = [&object](QStringView id) {
        return NestedText::toField(object.getProperty(id)->valueString());
    };
    const QString text = propertiesText(object) + u";objectID:%1"_s.arg(field(u"objectID"))
                         + u";objName:%1"_s.arg(field(u"bacnetObjName"));
    m_objects.insert(object.getIdName(), text);
}

QVariantMap BACnetConfiguration::toMap() const
{
    return {{u"bacDevMap"_s, m_devices}, {u"bacObjMap"_s, m_objects}};
}

} // namespace Halvane::Corvex::Designer
