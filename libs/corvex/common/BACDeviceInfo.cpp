// SPDX-License-Identifier: MIT
#include "corvex/common/BACDeviceInfo.h"

#include "corvex/common/TextHelper.h"

#include <QMap>
#include <QSet>

#include <limits>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

constexpr std::array<BACDeviceInfo::TextField, 5> BACDeviceInfo::textFields{{
    {"description"_L1, &BACDeviceInfo::m_description},
    {"location"_L1, &BACDeviceInfo::m_location},
    {"modelName"_L1, &BACDeviceInfo::m_modelName},
    {"objectName"_L1, &BACDeviceInfo::m_objectName},
    {"vendorName"_L1, &BACDeviceInfo::m_vendorName},
}};

constexpr std::array<BACDeviceInfo::NumberField, 3> BACDeviceInfo::numberFields{{
    {"apduTimeout"_L1, &BACDeviceInfo::m_apduTimeout, std::numeric_limits<int>::max()},
    {"numberOfApduRetries"_L1, &BACDeviceInfo::m_numberOfApduRetries, 255},
    {"vendorIdentifier"_L1, &BACDeviceInfo::m_vendorIdentifier, 65535},
}};

QString BACDeviceInfo::toString() const
{
    QMap<QString, QString> items;
    for (const TextField &field : textFields) {
        items.insert(field.key, TextHelper::convertToBase64(this->*field.member));
    }
    for (const NumberField &field : numberFields) {
        items.insert(field.key, QString::number(this->*field.member));
    }
    QStringList texts;
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        texts.append(u"%1: %2;"_s.arg(item.key(), item.value()));
    }
    return texts.join(u' ');
}

QVariantMap BACDeviceInfo::toVariantMap() const
{
    QVariantMap items;
    for (const TextField &field : textFields) {
        items.insert(field.key, this->*field.member);
    }
    for (const NumberField &field : numberFields) {
        items.insert(field.key, this->*field.member);
    }
    return items;
}

bool BACDeviceInfo::readItem(QStringView key, QStringView value)
{
    bool ok = false;
    for (const TextField &field : textFields) {
        if (key == field.key) {
            this->*field.member = TextHelper::convertFromBase64(value.toString(), &ok);
        }
    }
    for (const NumberField &field : numberFields) {
        if (key == field.key) {
            const int number = value.toInt(&ok);
            ok = ok && number >= 0 && number <= field.maximum;
            this->*field.member = number;
        }
    }
    return ok;
}

BACDeviceInfo::BACDeviceInfo(const QString &text, bool *ok)
{
    const QString trimmed = text.trimmed();
    const QList<QStringView> items = QStringView(trimmed).chopped(trimmed.isEmpty() ? 0 : 1).split(u';');
    QSet<QStringView> keys;
    bool good = trimmed.endsWith(u';');
    for (const QStringView item : items) {
        const qsizetype colon = item.indexOf(u':');
        const QStringView key = item.first(qMax(colon, qsizetype(0))).trimmed();
        good = good && colon > 0 && !keys.contains(key) && readItem(key, item.sliced(colon + 1).trimmed());
        keys.insert(key);
    }
    good = good && size_t(keys.size()) == textFields.size() + numberFields.size();
    if (!good) {
        *this = BACDeviceInfo();
    }
    if (ok) {
        *ok = good;
    }
}

} // namespace Halvane::Corvex::Common
