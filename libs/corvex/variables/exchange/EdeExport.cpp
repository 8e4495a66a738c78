// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/EdeExport.h"

#include "corvex/common/BACDeviceInfo.h"
#include "corvex/common/BACnetTables.h"
#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/variables/BACnetDevice.h"
#include "corvex/variables/BACnetObject.h"
#include "corvex/variables/BACnetPropertyList.h"
#include "corvex/variables/exchange/CsvText.h"

#include <QMap>
#include <QSet>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::BACnetTables::Entry;

constexpr int deviceType = 8;

//! Outputs and values, which other devices may write.
constexpr int settableTypes[] = {1, 2, 4, 5, 14, 19};

enum Property {
    ActiveText = 4,
    Description = 28,
    HighLimit = 45,
    InactiveText = 46,
    LowLimit = 59,
    MaximumPresentValue = 65,
    MinimumPresentValue = 69,
    PresentValue = 85,
    StateText = 110,
    Units = 117,
};

QString row(const QStringList &fields)
{
    return CsvText::row(fields, u';');
}

QString textOf(const DesignerObject &object, QStringView property)
{
    return object.getProperty(property)->valueString();
}

//! The number for a name, which may already be a number; empty for any other text.
QString numberOf(const QString &name, const QList<Entry> &entries)
{
    const auto entry =
        std::ranges::find_if(entries, [&name](const Entry &candidate) { return candidate.name == name; });
    bool isNumber = false;
    const int number = entry != entries.end() ? entry->number : name.toInt(&isNumber);
    return entry != entries.end() || isNumber ? QString::number(number) : QString();
}

//! A table of the given \a numbers and their meanings.
QByteArray glossary(const QString &title, const QString &columns, const QList<Entry> &entries,
                    const QSet<QString> &numbers)
{
    QString text = row({title}) + row(columns.split(u';'));
    for (const Entry &entry : entries) {
        if (numbers.contains(QString::number(entry.number))) {
            text += row({QString::number(entry.number), Common::BACnetTables::displayText(entry.name)});
        }
    }
    return text.toUtf8();
}

//! The constant properties of an object, which are known before the device runs.
class KnownValues
{
public:
    KnownValues(const BACnetPropertyList &list, const DesignerObject &project)
    {
        for (const BACnetPropertyList::Entry &entry : list.entries()) {
            m_values.insert(entry.property, valueOf(entry.source, project));
        }
    }

    QString operator[](Property property) const { return m_values.value(property); }

    //! The names of the states, beginning with the first.
    QStringList stateTexts() const
    {
        const QString listed = m_values.value(StateText);
        if (!listed.isEmpty()) {
            return listed.split(u'|');
        }
        const QStringList pair{m_values.value(InactiveText), m_values.value(ActiveText)};
        return pair.join(QString()).isEmpty() ? QStringList() : pair;
    }

private:
    static QString valueOf(const GeneralDataInfo &source, const DesignerObject &project)
    {
        if (source.valueType() == GeneralDataInfo::ConstantValue) {
            return source.value();
        }
        const DesignerObject *variable = source.valueType() == GeneralDataInfo::VariableValue
                                             ? project.getItemInListProperty(u"variables"_s, source.value())
                                             : nullptr;
        const QString text = variable ? textOf(*variable, u"value") : QString();
        // The states of binary objects are numbers.
        return text == "true"_L1 ? u"1"_s : text == "false"_L1 ? u"0"_s : text;
    }

    QMap<int, QString> m_values;
};

class Writer
{
public:
    Writer(const DesignerObject &project, const QDate &lastChange)
        : m_project(project)
        , m_lastChange(lastChange)
    { }

    Exported write()
    {
        findPanel();
        for (const DesignerObject *object :
             m_project.getListItemsInListPropertyOfType(u"variables"_s, u"BACnetObject"_s)) {
            addObject(*object);
        }
        addFiles();
        return m_exported;
    }

private:
    void findPanel()
    {
        for (const DesignerObject *object :
             m_project.getListItemsInListPropertyOfType(u"variables"_s, BACnetDevice::kindName())) {
            if (textOf(*object, u"isLocal") == "true"_L1) {
                m_device = textOf(*object, u"objIdentifier");
                const Common::BACDeviceInfo info(textOf(*object, u"reqProps"));
                const QString name = info.objectName().isEmpty() ? object->getIdName() : info.objectName();
                addRow({object->getIdName(), m_device, name, QString::number(deviceType), m_device,
                        info.description()});
                return;
            }
        }
        m_exported.problems.append(
            u"The list needs the number of the local BACnet device, but the project has no such device."_s);
    }

    void addObject(const DesignerObject &object)
    {
        const QString text = textOf(object, u"objectID");
        const std::optional<BACnetObject::Identifier> identifier = BACnetObject::readIdentifier(text);
        if (!identifier) {
            m_exported.problems.append(
                u"%1.objectID: \"%2\" is not a type and instance, as in \"2,1\"."_s.arg(object.getIdName(),
                                                                                        text));
            return;
        }
        const auto [type, instance] = *identifier;
        BACnetPropertyList list;
        QString error;
        const SharedProperty terms = object.getProperty(u"properties");
        if (!list.read(valueAs<GeneralDataListProperty>(terms), error)) {
            m_exported.problems.append(u"%1.properties: %2"_s.arg(object.getIdName(), error));
        }
        const KnownValues known(list, m_project);
        const QString unit = numberOf(known[Units], Common::BACnetTables::units());
        if (!unit.isEmpty()) {
            m_units.insert(unit);
        }
        const bool isSettable = std::ranges::find(settableTypes, type) != std::end(settableTypes);
        addRow({object.getIdName(),
                m_device,
                textOf(object, u"bacnetObjName"),
                QString::number(type),
                QString::number(instance),
                known[Description],
                known[PresentValue],
                known[MinimumPresentValue],
                known[MaximumPresentValue],
                isSettable ? u"Y"_s : u"N"_s,
                {},
                known[HighLimit],
                known[LowLimit],
                referenceTo(known.stateTexts()),
                unit});
    }

    void addRow(QStringList fields)
    {
        constexpr qsizetype columns = 17;
        m_types.insert(fields.at(3));
        fields.resize(columns);
        m_rows += row(fields);
    }

    //! Objects with equal texts share one reference.
    QString referenceTo(const QStringList &texts)
    {
        if (texts.isEmpty()) {
            return {};
        }
        qsizetype place = m_stateTexts.indexOf(texts);
        if (place < 0) {
            place = m_stateTexts.size();
            m_stateTexts.append(texts);
        }
        return QString::number(place + 1);
    }

    QByteArray objectList() const
    {
        QStringList kinds(5, u"mandatory"_s);
        kinds.append(QStringList(12, u"optional"_s));
        kinds.first().prepend(u'#');
        return QString(row({u"# Engineering-Data-Exchange - B.I.G.-EU"_s})
                       + row({u"PROJECT_NAME"_s, m_project.getIdName()})
                       + row({u"VERSION_OF_REFERENCEFILE"_s, u"1"_s})
                       + row({u"TIMESTAMP_OF_LAST_CHANGE"_s, m_lastChange.toString(Qt::ISODate)})
                       + row({u"AUTHOR_OF_LAST_CHANGE"_s, u"corvex"_s})
                       + row({u"VERSION_OF_LAYOUT"_s, u"2.3"_s}) + row(kinds)
                       + row({u"# keyname"_s, u"device obj.-instance"_s, u"object-name"_s, u"object-type"_s,
                              u"object-instance"_s, u"description"_s, u"present-value-default"_s,
                              u"min-present-value"_s, u"max-present-value"_s, u"settable"_s,
                              u"supports COV"_s, u"hi-limit"_s, u"low-limit"_s, u"state-text-reference"_s,
                              u"unit-code"_s, u"vendor-specific-address"_s, u"notification-class"_s})
                       + m_rows)
            .toUtf8();
    }

    QByteArray stateTextList() const
    {
        QStringList columns{u"# Reference Number"_s, u"Text 1 or Inactive-Text"_s,
                            u"Text 2 or Active-Text"_s};
        for (const QStringList &texts : m_stateTexts) {
            while (columns.size() <= texts.size()) {
                columns.append(u"Text %1"_s.arg(QString::number(columns.size())));
            }
        }
        QString text = row({u"# State Text Reference"_s}) + row(columns);
        for (qsizetype i = 0; i < m_stateTexts.size(); ++i) {
            text += row(QStringList{QString::number(i + 1)} + m_stateTexts.at(i));
        }
        return text.toUtf8();
    }

    void addFiles()
    {
        using namespace Common::BACnetTables;
        const auto add = [this](const QString &ending, const QByteArray &bytes) {
            m_exported.files.append({u"%1_%2.csv"_s.arg(m_project.getIdName(), ending), bytes});
        };
        add(u"EDE"_s, objectList());
        add(u"ObjTypes"_s, glossary(u"# Encoding of BACnet Object Types"_s, u"# Code;Object Type"_s,
                                    objectTypes(), m_types));
        add(u"StateTexts"_s, stateTextList());
        add(u"Units"_s,
            glossary(u"# Encoding of BACnet Engineering Units"_s, u"# Code;Unit Text"_s, units(), m_units));
    }

    const DesignerObject &m_project;
    QDate m_lastChange;
    QString m_device = u"0"_s;
    QString m_rows;
    QSet<QString> m_types;
    QSet<QString> m_units;
    QList<QStringList> m_stateTexts;
    Exported m_exported;
};

} // namespace

Exported EdeExport::write(const DesignerObject &project, const QDate &lastChange)
{
    return Writer(project, lastChange).write();
}

} // namespace Halvane::Corvex::Designer
