// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/variables/exchange/CsvText.h"

#include <QHash>

#include <vector>

namespace Halvane::Corvex::Designer {

/*! What a table of variables, as VariableExport writes it, would change in a project.

    Variables are found by their names. One that is not there yet is made; for that the table has to name its
   class. Properties without a column, and variables without a row, stay as they are. An empty field is the
    empty text where the property holds just that, else the default of the class.

    Tables of spreadsheets are read, too: in UTF-8, or in UTF-16 with a mark at the start; with ",", ";" or
   tabs; with column names in any case, and with empty columns at the end. Where the separator is not ",", a
   number may have a decimal comma.
*/
class CORVEX_EXPORT VariableImport
{
public:
    struct Change
    {
        SharedProperty property;
        QString after;
    };

    //! Compares the table \a csv with the variables of \a project, which stays as it is. A null \a separator
    //! is found by the first line. The table can be taken over when there are no problems.
    VariableImport(const QByteArray &csv, const DesignerObject &project, QChar separator = {});

    const QList<Change> &changes() const { return m_changes; }
    const std::vector<std::unique_ptr<DesignerObject>> &additions() const { return m_additions; }
    //! The new variables, for their new owner.
    std::vector<std::unique_ptr<DesignerObject>> takeAdditions() { return std::move(m_additions); }
    //! How many variables of the table are in the project already, as the table has them.
    qsizetype unchangedCount() const { return m_unchangedCount; }
    //! What cannot be taken over.
    const QList<CsvText::Problem> &problems() const { return m_problems; }
    //! Values that the model can hold and that are not valid.
    const QList<CsvText::Problem> &invalidValues() const { return m_invalidValues; }
    //! Where the table has the variable; 0 for another one.
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
    QString textOf(const DesignerObject &variable, const SharedProperty &property,
                   const QString &field) const;
    bool set(const Record &record, DesignerObject &copy, qsizetype column);
    bool fail(const Record &record, const QString &problem);

    const DesignerObject &m_project;
    QChar m_separator;
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
