// SPDX-License-Identifier: MIT
#include "corvex/editors/BACnetEditors.h"

#include "corvex/common/BACDeviceInfo.h"
#include "corvex/common/BACnetTables.h"
#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/private/TermTable.h"
#include "corvex/variables/BACnetObject.h"
#include "corvex/widgets/KdComboBox.h"
#include "corvex/widgets/KdLineEdit.h"
#include "corvex/widgets/Theme.h"

#include <QFormLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::BACDeviceInfo;
using Common::LocalizationHelper;
namespace BACnetTables = Common::BACnetTables;

constexpr int highestInstance = 4194302;
constexpr int highestProperty = 4194303;

//! A field of the device record. It has either a text or a number.
struct DeviceField
{
    const char *title;
    const QString &(BACDeviceInfo::*text)() const = nullptr;
    void (BACDeviceInfo::*setText)(const QString &) = nullptr;
    int (BACDeviceInfo::*number)() const = nullptr;
    void (BACDeviceInfo::*setNumber)(int) = nullptr;
    int maximum = 0;
};

constexpr DeviceField deviceFields[] = {
    {"Object name", &BACDeviceInfo::objectName, &BACDeviceInfo::setObjectName},
    {"Description", &BACDeviceInfo::description, &BACDeviceInfo::setDescription},
    {"Location", &BACDeviceInfo::location, &BACDeviceInfo::setLocation},
    {"Model name", &BACDeviceInfo::modelName, &BACDeviceInfo::setModelName},
    {"Vendor name", &BACDeviceInfo::vendorName, &BACDeviceInfo::setVendorName},
    {"Vendor identifier", nullptr, nullptr, &BACDeviceInfo::vendorIdentifier,
     &BACDeviceInfo::setVendorIdentifier, 65535},
    {"APDU timeout (ms)", nullptr, nullptr, &BACDeviceInfo::apduTimeout, &BACDeviceInfo::setApduTimeout,
     std::numeric_limits<int>::max()},
    {"APDU retries", nullptr, nullptr, &BACDeviceInfo::numberOfApduRetries,
     &BACDeviceInfo::setNumberOfApduRetries, std::numeric_limits<int>::max()},
};

QString takesNumber(const QString &what, int maximum)
{
    return LocalizationHelper::coreString(u"%1 takes a whole number from 0 to %2."_s)
        .arg(what, QString::number(maximum));
}

QStringList namesOf(const QList<BACnetTables::Entry> &entries)
{
    QStringList names;
    std::ranges::transform(entries, std::back_inserter(names), &BACnetTables::Entry::name);
    return names;
}

const QStringList *propertyNames()
{
    static const QStringList names = namesOf(BACnetTables::properties());
    return &names;
}

const QStringList *dataTypeNames()
{
    static const QStringList names = namesOf(BACnetTables::dataTypes());
    return &names;
}

} // namespace

void BACObjIdEditor::createFields()
{
    m_type = new KdComboBox(this);
    for (const BACnetTables::Entry &type : BACnetTables::objectTypes()) {
        m_type->addItem(BACnetTables::displayText(type.name), type.number);
    }
    m_type->setMinimumContentsLength(8);
    addField(m_type, LocalizationHelper::coreString(u"type"_s), 3);
    m_instance = addLine(LocalizationHelper::coreString(u"instance"_s), 2);
    connect(m_type, &KdComboBox::chosen, this, &BACObjIdEditor::completeEntry);
    connect(m_type, &KdComboBox::stepped, this, &BACObjIdEditor::completeStep);
}

void BACObjIdEditor::showRow()
{
    const auto identifier = row().isMixed ? std::nullopt : BACnetObject::readIdentifier(row().value);
    m_type->setPlaceholderText(row().isMixed ? mixedText() : QString());
    m_instance->setPlaceholderText(row().isMixed ? mixedText() : QString());
    int place = identifier ? m_type->findData(identifier->type) : -1;
    if (identifier && place < 0) { // a type of the manufacturer
        place = m_type->count();
        m_type->addItem(LocalizationHelper::coreString(u"Type %1"_s).arg(QString::number(identifier->type)),
                        identifier->type);
    }
    m_type->setCurrentIndex(place);
    m_instance->setShownText(identifier ? QString::number(identifier->instance) : QString());
}

PropertyEditor::Entry BACObjIdEditor::entryFor(const DesignerProperty &property) const
{
    // What was not entered keeps the value of the object.
    const auto known = BACnetObject::readIdentifier(valueOf(property));
    const int type = m_type->currentIndex() >= 0 ? m_type->currentData().toInt() : known ? known->type : 0;
    bool isNumber = false;
    const int instance = m_instance->text().isEmpty() && known
                             ? known->instance
                             : m_instance->text().trimmed().toInt(&isNumber);
    if ((!isNumber && !m_instance->text().isEmpty()) || instance < 0 || instance > highestInstance) {
        return {{}, takesNumber(LocalizationHelper::coreString(u"The instance"_s), highestInstance)};
    }
    return {u"%1,%2"_s.arg(type).arg(instance), {}};
}

void BACDeviceEditor::createFields()
{
    auto *form = new QFormLayout;
    form->setContentsMargins(0, 0, 0, 0);
    form->setHorizontalSpacing(Theme::margin);
    form->setVerticalSpacing(Theme::gap);
    for (const DeviceField &field : deviceFields) {
        const QString title = LocalizationHelper::coreString(QString::fromLatin1(field.title));
        m_lines.append(prepareLine(new KdLineEdit(this), title));
        m_lines.constLast()->setPlaceholderText(LocalizationHelper::coreString(u"the device's own"_s));
        form->addRow(title, m_lines.constLast());
    }
    fields()->addLayout(form, 1);
}

void BACDeviceEditor::showRow()
{
    const BACDeviceInfo info(row().value);
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const DeviceField &field = deviceFields[i];
        const int number = field.number ? (info.*field.number)() : 0;
        m_lines.at(i)->setShownText(field.text    ? (info.*field.text)()
                                    : number == 0 ? QString()
                                                  : QString::number(number));
        if (row().isMixed) {
            m_lines.at(i)->setPlaceholderText(mixedText());
        }
    }
}

PropertyEditor::Entry BACDeviceEditor::entryFor(const DesignerProperty &property) const
{
    BACDeviceInfo info(valueOf(property));
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const DeviceField &field = deviceFields[i];
        if (row().isMixed && !m_lines.at(i)->hasEntry()) {
            continue;
        }
        const QString text = m_lines.at(i)->text();
        bool isNumber = true;
        const int number = field.number && !text.isEmpty() ? text.trimmed().toInt(&isNumber) : 0;
        if (!isNumber || number < 0 || (field.number && number > field.maximum)) {
            return {
                {},
                takesNumber(LocalizationHelper::coreString(QString::fromLatin1(field.title)), field.maximum)};
        }
        if (field.setText) {
            (info.*field.setText)(text);
        } else {
            (info.*field.setNumber)(number);
        }
    }
    return {info.toString(), {}};
}

const std::vector<TermColumn> &BACnetPropertiesEditor::columns() const
{
    static const std::vector<TermColumn> table{
        {.title = "Property",
         .kind = TermColumn::Name,
         .initial = "present-value",
         .maximum = highestProperty,
         .display = &BACnetTables::displayText,
         .names = &propertyNames},
        {.title = "Data type",
         .kind = TermColumn::Name,
         .initial = "real",
         .display = &BACnetTables::displayText,
         .names = &dataTypeNames},
        {.title = "Value", .kind = TermColumn::Value},
    };
    return table;
}

QHash<int, QString> BACnetPropertiesEditor::conflicts() const
{
    QHash<QString, int> firstRows;
    QHash<int, QString> conflicts;
    const QList<TermColumn::Terms> &entries = table()->entries();
    for (int row = 0; row < int(entries.size()); ++row) {
        const QString name = entries.at(row).value(0).value();
        if (firstRows.contains(name)) {
            const QString text = LocalizationHelper::coreString(u"The property \"%1\" is listed twice."_s)
                                     .arg(BACnetTables::displayText(name));
            conflicts.insert(row, text);
            conflicts.insert(firstRows.value(name), text);
        } else {
            firstRows.insert(name, row);
        }
    }
    return conflicts;
}

} // namespace Halvane::Corvex::Designer
