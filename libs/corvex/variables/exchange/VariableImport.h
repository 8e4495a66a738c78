// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/DesignerObject.h"

#include <QHash>

#include <vector>

namespace Halvane::Corvex::Designer {

/*! What a table of variables, as VariableExport writes it, would change in a project.

    Variables are found by their names. One that is not there yet is made, for which the table has to tell the
   class. Properties without a column, and variables without a row, stay as they are. An empty field is the
   empty text where the property holds just that, else the default of the class.
*/
class VariableImport
{
public:
    struct Change
    {
        SharedProperty property;
        QString after;
    };

    //! Compares the table \a csv, in UTF-8, with the variables of \a project, which stays as it is. The table
    //! can be taken over when there are no problems.
    VariableImport(const QByteArray &csv, const DesignerObject &project);

    const QList<Change> &changes() const { return m_changes; }
    const std::vector<std::unique_ptr<DesignerObject>> &additions() const { return m_additions; }
    //! The new variables, for their new owner.
    std::vector<std::unique_ptr<DesignerObject>> takeAdditions() { return std::move(m_additions); }
    //! How many variables of the table are in the project already, as the table has them.
    qsizetype unchangedCount() const { return m_unchangedCount; }
    //! What cannot be taken over, each with its line: "line 3: ...".
    const QStringList &problems() const { return m_problems; }
    //! Values that the model can hold and that are not valid, in the same form.
    const QStringList &invalidValues() const { return m_invalidValues; }

private:
    struct Record;

    bool readHeader(const QStringList &header);
    void readRecord(const Record &record);
    void change(const Record &record, DesignerObject &variable);
    void add(const Record &record);
    bool isDefault(const DesignerObject &variable, const SharedProperty &property, const QString &text);
    bool set(const Record &record, DesignerObject &copy, qsizetype column);
    bool fail(const Record &record, const QString &problem);

    const DesignerObject &m_project;
    QStringList m_columns;
    qsizetype m_nameColumn = -1;
    qsizetype m_classColumn = -1;
    QHash<QString, int> m_lines;
    QHash<QString, std::shared_ptr<DesignerObject>> m_defaults;
    QList<Change> m_changes;
    std::vector<std::unique_ptr<DesignerObject>> m_additions;
    qsizetype m_unchangedCount = 0;
    QStringList m_problems;
    QStringList m_invalidValues;
};

} // namespace Halvane::Corvex::Designer
