// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QVariantMap>

#include <array>

namespace Halvane::Corvex::Common {

//! The properties of a BACnet device object that a project may set. For empty texts and zeros the device
//! keeps its own values.
class CORVEX_COMMON_EXPORT BACDeviceInfo
{
public:
    BACDeviceInfo() = default;
    //! Reads the form that toString() writes: every key exactly once, in any order. If ok is false, the
    //! record is empty.
    explicit BACDeviceInfo(const QString &text, bool *ok = nullptr);

    //! "key: value;" items joined with a space, keys in ascending order, texts as Base64.
    QString toString() const;
    //! The same items, with values as texts and numbers.
    QVariantMap toVariantMap() const;

    const QString &objectName() const { return m_objectName; }
    void setObjectName(const QString &objectName) { m_objectName = objectName; }
    const QString &description() const { return m_description; }
    void setDescription(const QString &description) { m_description = description; }
    const QString &location() const { return m_location; }
    void setLocation(const QString &location) { m_location = location; }
    const QString &modelName() const { return m_modelName; }
    void setModelName(const QString &modelName) { m_modelName = modelName; }
    const QString &vendorName() const { return m_vendorName; }
    void setVendorName(const QString &vendorName) { m_vendorName = vendorName; }
    //! Assigned by ASHRAE, 0 to 65535.
    int vendorIdentifier() const { return m_vendorIdentifier; }
    void setVendorIdentifier(int vendorIdentifier) { m_vendorIdentifier = vendorIdentifier; }
    //! In milliseconds.
    int apduTimeout() const { return m_apduTimeout; }
    void setApduTimeout(int apduTimeout) { m_apduTimeout = apduTimeout; }
    int numberOfApduRetries() const { return m_numberOfApduRetries; }
    void setNumberOfApduRetries(int numberOfApduRetries) { m_numberOfApduRetries = numberOfApduRetries; }

    bool operator==(const BACDeviceInfo &other) const = default;

private:
    struct TextField
    {
        QLatin1StringView key;
        QString BACDeviceInfo::*member;
    };
    struct NumberField
    {
        QLatin1StringView key;
        int BACDeviceInfo::*member;
        int maximum;
    };
    static const std::array<TextField, 5> textFields;
    static const std::array<NumberField, 3> numberFields;

    bool readItem(QStringView key, QStringView value);

    QString m_objectName;
    QString m_description;
    QString m_location;
    QString m_modelName;
    QString m_vendorName;
    int m_vendorIdentifier = 0;
    int m_apduTimeout = 0;
    int m_numberOfApduRetries = 0;
};

} // namespace Halvane::Corvex::Common
