// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/VariableImport.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/core/properties/BasicProperties.h"
#include "corvex/variables/NumberVariable.h"

#include <QLocale>
#include <QRegularExpression>
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
    QString className; //!< empty if the table has no class
};

VariableImport::VariableImport(const QByteArray &csv, const DesignerObject &project, QChar separator)
    : VariableImport(project)
{
    begin(csv, separator);
    while (readRow()) { }
}

VariableImport::VariableImport(const DesignerObject &project)
    : m_project(project)
{ }

void VariableImport::begin(const QByteArray &csv, QChar separator)
{
    m_separator = separator;
    const QString text = decode(csv);
    if (m_separator.isNull()) {
        m_separator = CsvText::separatorOf(text);
    }
    m_rows = m_problems.isEmpty() ? CsvText::read(text, m_problems, m_separator) : QList<CsvText::Row>();
    if (!m_rows.isEmpty() && readHeader(m_rows.takeFirst().fields)) {
        return;
    }
    m_rows.clear();
    if (m_problems.isEmpty()) {
        m_problems.append({1, u"The first line must name the columns, each once, including \"name\"."_s});
    }
}

bool VariableImport::readRow()
{
    if (m_nextRow == m_rows.size()) {
        return false;
    }
    const CsvText::Row &row = m_rows.at(m_nextRow++);
    readRecord({row.line, row.fields, row.fields.value(m_nameColumn),
                m_classColumn < 0 ? QString() : row.fields.value(m_classColumn)});
    return true;
}

QString VariableImport::decode(const QByteArray &csv)
{
    const auto encoding = QStringDecoder::encodingForData(csv).value_or(QStringDecoder::Utf8);
    QStringDecoder decoder(encoding);
    const QString text = decoder(csv);
    if (encoding != QStringDecoder::Utf8 && csv.size() % 2 != 0) {
        m_problems.append({int(text.count(u'\n')) + 1,
                           u"The table ends in the middle of a character; it is incomplete."_s});
    } else if (decoder.hasError() || text.contains(QChar::Null)) {
        int line = 1;
        for (const QByteArray &bytes : csv.split('\n')) {
            if (!bytes.isValidUtf8() || bytes.contains('\0')) {
                break;
            }
            ++line;
        }
        m_problems.append({line,
                           u"The table is neither in UTF-8 nor in UTF-16 with a byte order mark. Save it as "
                           "\"CSV UTF-8\"."_s});
    }
    return text;
}

bool VariableImport::readHeader(QStringList header)
{
    for (QString &column : header) {
        column = column.trimmed();
    }
    while (!header.isEmpty() && header.constLast().isEmpty()) {
        header.removeLast();
    }
    QStringList lowered;
    for (const QString &column : std::as_const(header)) {
        lowered.append(column.toLower());
    }
    m_columns = header;
    m_nameColumn = lowered.indexOf(u"name"_s);
    m_classColumn = lowered.indexOf(u"class"_s);
    return m_nameColumn >= 0 && lowered.removeDuplicates() == 0;
}

bool VariableImport::fail(const Record &record, const QString &problem)
{
    m_problems.append({record.line, problem});
    return false;
}

void VariableImport::readRecord(Record record)
{
    while (record.fields.size() > m_columns.size() && record.fields.constLast().isEmpty()) {
        record.fields.removeLast();
    }
    if (record.fields.size() != m_columns.size()) {
        fail(record, u"The row has %1 fields for %2 columns."_s.arg(QString::number(record.fields.size()),
                                                                    QString::number(m_columns.size())));
        return;
    }
    if (const int earlier = m_lines.value(record.name); earlier > 0) {
        fail(record, u"\"%1\" is also in line %2."_s.arg(record.name, QString::number(earlier)));
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

//! Whether an empty field means the default text of the property.
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

//! The property that a column names, in any case; null if the class has none. The name of a variable is not a
//! property of a column.
SharedProperty VariableImport::propertyOf(const DesignerObject &variable, qsizetype column) const
{
    const QString &id = m_columns.at(column);
    const auto found = std::ranges::find_if(variable.properties(), [&id](const SharedProperty &property) {
        return property->id().compare(id, Qt::CaseInsensitive) == 0;
    });
    return found == variable.properties().end() || *found == variable.idProperty() ? SharedProperty()
                                                                                   : *found;
}

//! The field in the form that the property reads.
QString VariableImport::textOf(const DesignerObject &variable, const SharedProperty &property,
                               const QString &field, QString &error) const
{
    static const QRegularExpression commaNumber(u"^[+-]?[0-9]*,[0-9]+([eE][+-]?[0-9]+)?$"_s);
    static const QRegularExpression wholeWithExponent(u"^[+-]?[0-9]+[eE][+-]?[0-9]+$"_s);
    const bool isNumber = (property->id() == "value"_L1 && NumberVariable::holdsNumber(variable))
                          || dynamic_cast<const RealProperty *>(property.data());
    if (isNumber && wholeWithExponent.match(field).hasMatch()) {
        // Without a point, a variable takes only digits.
        return QString::number(field.toDouble(), 'f', QLocale::FloatingPointShortest);
    }
    if (m_separator != u',' && isNumber && commaNumber.match(field).hasMatch()) {
        return QString(field).replace(u',', u'.');
    }
    return m_fieldReader ? m_fieldReader(*property, field, error) : field;
}

//! Sets a property to the field of a column. If the class lacks the property, the field must be empty.
bool VariableImport::set(const Record &record, DesignerObject &copy, qsizetype column)
{
    const QString &field = record.fields.at(column);
    const SharedProperty property = propertyOf(copy, column);
    if (!property) {
        return field.isEmpty()
               || fail(record, u"%1 has no property \"%2\"."_s.arg(copy.className(), m_columns.at(column)));
    }
    const QString id = property->id();
    const QString before = property->valueString();
    if (before == field) {
        return true;
    }
    QString text;
    QString error;
    if (!field.isEmpty()) {
        text = textOf(copy, property, field, error);
    } else if (isDefault(copy, property, before)) {
        return true;
    } else {
        text = m_defaults.value(copy.className())->getProperty(id)->valueString();
    }
    if (!error.isEmpty()) {
        return fail(record, u"%1.%2: %3"_s.arg(record.name, id, error));
    }
    const DesignerObject::Change change = copy.changeValue(property, text);
    if (change != DesignerObject::Change::Done && change != DesignerObject::Change::Unchanged) {
        return fail(record, u"%1.%2: \"%3\" is not a valid value."_s.arg(record.name, id, text));
    }
    const bool isNumber =
        id != "value"_L1 || !NumberVariable::lacksNumber(static_cast<const ProjectVariable &>(copy));
    if (!property->isValid() || !isNumber) {
        m_invalidValues.append(
            {record.line, u"%1.%2: %3"_s.arg(record.name, id,
                                             isNumber ? property->errorString()
                                                      : u"\"%1\" is not a number."_s.arg(text))});
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
        const SharedProperty property = propertyOf(variable, column);
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
                         ? u"\"%1\" is not in the project. Give a class to add it."_s.arg(record.name)
                         : u"\"%1\" is not a class of variables."_s.arg(record.className));
        return;
    }
    if (record.name.isEmpty() || !variable->setIdName(record.name)) {
        fail(record, u"\"%1\" is not a valid name for a variable."_s.arg(record.name));
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
