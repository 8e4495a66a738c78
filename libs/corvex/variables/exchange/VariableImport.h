// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/variables/exchange/CsvText.h"

#include <QHash>

#include <functional>
#include <vector>

namespace Halvane::Corvex::Designer {

/*! The changes that a table in the form of VariableExport would make to a project.

    Variables are identified by name. New variables are added; for them the table must give a class.
    Properties without a column, and variables without a row, are not changed. An empty field means an empty
    text if the property has that text, and otherwise the default of the class.

    Tables from spreadsheets are supported: in UTF-8, or in UTF-16 with a byte order mark; with ",", ";" or
    tabs; with column names in any case, and with empty columns at the end. Unless the separator is ",",
    numbers may have a decimal comma.
*/
class CORVEX_EXPORT VariableImport
{
public:
    struct Change
    {
        SharedProperty property;
        QString after;
    };

    //! Reads a field that differs from the stored text of its property into the text to store. Sets the
    //! error, for the user, if it cannot be read. The property may belong to a copy outside of the project.
    using FieldReader =
        std::function<QString(const DesignerProperty &property, const QString &field, QString &error)>;

    //! Compares the table \a csv with the variables of \a project, which is not changed. A null \a separator
    //! is detected in the first line. The table can be imported if there are no problems.
    VariableImport(const QByteArray &csv, const DesignerObject &project, QChar separator = {});

    //! For tables whose fields have other forms than the stored one. Call it first.
    void setFieldReader(FieldReader reader) { m_fieldReader = std::move(reader); }

    // The same in several steps.
    explicit VariableImport(const DesignerObject &project);
    //! Splits the table into rows. Does not use the project, so it may run in another thread.
    void begin(const QByteArray &csv, QChar separator = {});
    qsizetype rowCount() const { return m_rows.size(); }
    //! Compares the next row. Returns false if there was none.
    bool readRow();

    const QList<Change> &changes() const { return m_changes; }
    const std::vector<std::unique_ptr<DesignerObject>> &additions() const { return m_additions; }
    //! Moves the new variables to their new owner.
    std::vector<std::unique_ptr<DesignerObject>> takeAdditions() { return std::move(m_additions); }
    //! The number of variables that the project has already with the same values.
    qsizetype unchangedCount() const { return m_unchangedCount; }
    //! Everything that cannot be imported.
    const QList<CsvText::Problem> &problems() const { return m_problems; }
    //! Values that the model can store but that are not valid.
    const QList<CsvText::Problem> &invalidValues() const { return m_invalidValues; }
    //! The line of the variable in the table; 0 if it has none.
    int lineOf(const QString &name) const { return m_lines.value(name); }

private:
    struct Record;

    QString decode(const QByteArray &csv);
    bool readHeader(QStringList header);
    void readRecord(Record record);
    void change(const Record &record, DesignerObject &variable);
    void add(const Record &record);
    SharedProperty propertyOf(const DesignerObject &variable, qsizetype column) const;
    bool isDefault(const DesignerObject &variable, const SharedProperty &property, const QString &text);
    QString textOf(const DesignerObject &variable, const SharedProperty &property, const QString &field,
                   QString &error) const;
    bool set(const Record &record, DesignerObject &copy, qsizetype column);
    bool fail(const Record &record, const QString &problem);

    const DesignerObject &m_project;
    FieldReader m_fieldReader;
    QChar m_separator;
    QList<CsvText::Row> m_rows; //!< without the names of the columns
    qsizetype m_nextRow = 0;
    QStringList m_columns;
    qsizetype m_nameColumn = -1;
    qsizetype m_classColumn = -1;
    QHash<QString, int> m_lines;
    QHash<QString, std::shared_ptr<DesignerObject>> m_defaults;
    QList<Change> m_changes;
    std::vector<std::unique_ptr<DesignerObject>> m_additions;
    qsizetype m_unchangedCount = 0;
    QList<CsvText::Problem> m_problems;
    QList<CsvText::Problem> m_invalidValues;
};

} // namespace Halvane::Corvex::Designer
