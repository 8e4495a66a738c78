// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/VariableImport.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/variables/NumberVariable.h"
#include "corvex/variables/exchange/CsvText.h"

#include <QSet>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

std::unique_ptr<DesignerObject> makeVariable(const QString &className)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    if (!factory || !factory->canCreateObject(className)) {
        return nullptr;
    }
    std::unique_ptr<DesignerObject> object(factory->createObject(className));
    if (object) {
        object->setParent(nullptr);
    }
    return object && object->isKindOfClass(ProjectVariable::kindName()) ? std::move(object) : nullptr;
}

} // namespace

struct VariableImport::Record
{
    int line;
    QStringList fields;
    QString name;
    QString className; //!< empty when the table does not tell it
};

VariableImport::VariableImport(const QByteArray &csv, const DesignerObject &project)
    : m_project(project)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(csv);
    QList<CsvText::Row> rows;
    QString error;
    if (decoder.hasError()) {
        m_problems.append(u"line 1: The table is not in UTF-8."_s);
    } else if (!CsvText::read(text, rows, error)) {
        m_problems.append(error);
    } else if (rows.isEmpty() || !readHeader(rows.constFirst().fields)) {
        m_problems.append(
            u"line 1: The first line has to name the columns, each once, \"name\" among them."_s);
    } else {
        for (const CsvText::Row &row : rows.sliced(1)) {
            readRecord({row.line, row.fields, row.fields.value(m_nameColumn),
                        m_classColumn < 0 ? QString() : row.fields.value(m_classColumn)});
        }
    }
}

bool VariableImport::readHeader(const QStringList &header)
{
    m_columns = header;
    m_nameColumn = header.indexOf(u"name"_s);
    m_classColumn = header.indexOf(u"class"_s);
    return m_nameColumn >= 0 && QSet<QString>(header.begin(), header.end()).size() == header.size();
}

bool VariableImport::fail(const Record &record, const QString &problem)
{
    m_problems.append(u"line %1: %2"_s.arg(QString::number(record.line), problem));
    return false;
}

void VariableImport::readRecord(const Record &record)
{
    if (record.fields.size() != m_columns.size()) {
        fail(record, u"There are %1 fields for %2 columns."_s.arg(QString::number(record.fields.size()),
                                                                  QString::number(m_columns.size())));
        return;
    }
    if (const int earlier = m_lines.value(record.name); earlier > 0) {
        fail(record, u"\"%1\" is in line %2, too."_s.arg(record.name, QString::number(earlier)));
        return;
    }
    m_lines.insert(record.name, record.line);
    DesignerObject *variable = m_project.getItemInListProperty(u"variables"_s, record.name);
    if (!variable) {
        add(record);
    } else if (!record.className.isEmpty() && record.className != variable->className()) {
        fail(record, u"\"%1\" is a %2 and cannot become a %3."_s.arg(record.name, variable->className(),
                                                                     record.className));
    } else {
        change(record, *variable);
    }
}

//! Whether an empty field asks for the text that the property has when it is new.
bool VariableImport::isDefault(const DesignerObject &variable, const SharedProperty &property,
                               const QString &text)
{
    std::shared_ptr<DesignerObject> &fresh = m_defaults[variable.className()];
    if (!fresh) {
        fresh = makeVariable(variable.className());
    }
    const SharedProperty initial = fresh ? fresh->getProperty(property->id()) : nullptr;
    return initial && initial->valueString() == text;
}

//! Sets what the field of a column says; a field that the class has no property for must be empty.
bool VariableImport::set(const Record &record, DesignerObject &copy, qsizetype column)
{
    const QString &id = m_columns.at(column);
    const QString &field = record.fields.at(column);
    const SharedProperty property = id == "id"_L1 ? nullptr : copy.getProperty(id);
    if (!property) {
        return field.isEmpty() || fail(record, u"%1 has no property \"%2\"."_s.arg(copy.className(), id));
    }
    const QString before = property->valueString();
    if (before == field) {
        return true;
    }
    QString text = field;
    if (field.isEmpty()) {
        if (isDefault(copy, property, before)) {
            return true;
        }
        text = m_defaults.value(copy.className())->getProperty(id)->valueString();
    }
    const bool wasSet = copy.changePropertyValue(property, text);
    // A text that cannot be read changes nothing; one in another spelling of the same value does not, either.
    const bool isRead =
        property->valueString() != before || (property->canRead(text) && property->equalsValue(text));
    if (!wasSet || !isRead) {
        return fail(record, u"%1.%2: \"%3\" is no value for it."_s.arg(record.name, id, text));
    }
    const bool isNumber =
        id != "value"_L1 || !NumberVariable::lacksNumber(static_cast<const ProjectVariable &>(copy));
    if (!property->isValid() || !isNumber) {
        m_invalidValues.append(u"line %1: %2.%3: %4"_s.arg(QString::number(record.line), record.name, id,
                                                           isNumber ? property->errorString()
                                                                    : u"\"%1\" is no number."_s.arg(text)));
    }
    return true;
}

void VariableImport::change(const Record &record, DesignerObject &variable)
{
    std::unique_ptr<DesignerObject> copy;
    const qsizetype changesBefore = m_changes.size();
    for (qsizetype column = 0; column < m_columns.size(); ++column) {
        if (column == m_nameColumn || column == m_classColumn) {
            continue;
        }
        const SharedProperty property = variable.getProperty(m_columns.at(column));
        if (property && property->valueString() == record.fields.at(column)) {
            continue;
        }
        if (!copy) {
            copy.reset(DesignerObject::createCopy(&variable));
        }
        if (copy && set(record, *copy, column) && property) {
            const QString after = copy->getProperty(property->id())->valueString();
            if (after != property->valueString()) {
                m_changes.append({property, after});
            }
        }
    }
    m_unchangedCount += m_changes.size() == changesBefore;
}

void VariableImport::add(const Record &record)
{
    std::unique_ptr<DesignerObject> variable = makeVariable(record.className);
    if (!variable) {
        fail(record, record.className.isEmpty()
                         ? u"\"%1\" is not in the project; a class is needed to make it."_s.arg(record.name)
                         : u"\"%1\" is no class of variables."_s.arg(record.className));
        return;
    }
    if (record.name.isEmpty() || !variable->setIdName(record.name)) {
        fail(record, u"\"%1\" is no name for a variable."_s.arg(record.name));
        return;
    }
    for (qsizetype column = 0; column < m_columns.size(); ++column) {
        if (column != m_nameColumn && column != m_classColumn) {
            set(record, *variable, column);
        }
    }
    m_additions.push_back(std::move(variable));
}

} // namespace Halvane::Corvex::Designer
