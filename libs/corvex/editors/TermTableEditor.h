// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/editors/PropertyEditor.h"

#include <vector>

class QPushButton;
class QVBoxLayout;

namespace Halvane::Corvex::Designer {

class GeneralDataList;
class KdTableView;
class TermTable;
struct TermColumn;

//! A list of terms as a table that is filled like a spreadsheet. Each change of the table is an entry.
class CORVEX_EXPORT TermTableEditor : public PropertyEditor
{
    Q_OBJECT

public:
    using PropertyEditor::PropertyEditor;

    bool isWide() const override { return true; }
    KdTableView *view() const { return m_view; }

protected:
    virtual const std::vector<TermColumn> &columns() const = 0;
    //! The number of terms before the first entry.
    virtual qsizetype headSize() const { return 0; }
    //! Adds fields above or below the table. \a layout contains the table.
    virtual void createMore(QVBoxLayout *layout);
    //! Shows them, after each change of the table.
    virtual void showMore();
    //! What is wrong with an entry beside the others, by row.
    virtual QHash<int, QString> conflicts() const;

    TermTable *table() const { return m_table; }
    //! Buttons beneath the table.
    void addTool(QPushButton *button);
    //! Replaces all terms, as one entry.
    void enterTerms(const GeneralDataList &terms);

    void createFields() override;
    void showRow() override;
    Entry entryFor(const DesignerProperty &property) const override;

private:
    TermTable *m_table = nullptr;
    KdTableView *m_view = nullptr;
    QWidget *m_tools = nullptr;
    QLabel *m_mixed = nullptr;
};

} // namespace Halvane::Corvex::Designer
