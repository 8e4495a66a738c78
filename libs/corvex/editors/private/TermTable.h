// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/values/expressions/GeneralDataList.h"
#include "corvex/widgets/CellTable.h"

#include <functional>

namespace Halvane::Corvex::Designer {

class Project;

/*! A column of a TermTable. A column with a term shows the term of the entry at that place; the other columns
    show what follows from the entry, and cannot be edited.
*/
struct TermColumn
{
    enum Kind {
        Integer, //!< a whole number from minimum to maximum
        Number,
        Text,
        Name,    //!< a text from names, or a number up to maximum, if that is not 0
        Source,  //!< a variable or a property of an element
        Value,   //!< a source or a constant
        Derived, //!< not a term
    };
    using Terms = QList<GeneralDataInfo>;

    const char *title;
    Kind kind = Text;
    const char *initial = ""; //!< the text in a new row
    int minimum = 0;
    int maximum = 0;
    //! How the cell is shown instead of its text.
    QString (*display)(const QString &text) = nullptr;
    //! The text of a derived column.
    QString (*derive)(const Terms &entry, int parameter) = nullptr;
    const QStringList *(*names)() = nullptr;
    //! The number continues in new rows and when cells are filled downwards.
    bool counts = false;
};

/*! The terms of a list as a table: entries of a fixed number of terms, one row each, after some terms that
    belong to the list as a whole. Any list can be shown and comes back unchanged, also one that is incomplete
   or has terms of other types.

    A text that does not fit its column stays in its cell, and error() says why.
*/
class TermTable : public CellTable
{
    Q_OBJECT

public:
    //! \a head is the number of terms before the first entry. \a parameter is passed to derived columns.
    TermTable(const std::vector<TermColumn> &columns, qsizetype head, int parameter, QObject *parent);

    //! The project that names in sources refer to.
    void setProject(const Project *project) { m_project = project; }
    void setTerms(const GeneralDataList &terms);
    GeneralDataList terms() const;
    //! The reason for the first text that does not fit; empty if all fit.
    QString error() const;

    //! A term of the head. An empty one if the list is shorter.
    GeneralDataInfo headTerm(qsizetype place) const { return m_head.value(place); }
    void setHeadTerm(qsizetype place, const GeneralDataInfo &term);
    const QList<TermColumn::Terms> &entries() const { return m_entries; }

    void setReadOnly(bool isReadOnly) { m_isReadOnly = isReadOnly; }
    //! Marks cells that are in conflict with others, by row.
    void setConflicts(const QHash<int, QString> &conflicts);

    void enterCells(const QList<CellText> &cells) override;
    void addRow(int before) override;
    void deleteRows(const QList<int> &rows) override;
    QString continuedText(const QModelIndex &cell, int steps) const override;
    QStringList choices(const QModelIndex &cell) const override;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

signals:
    //! The user has changed the entries.
    void entered();

private:
    struct Reading
    {
        GeneralDataInfo term;
        QString error;
    };
    Reading read(const TermColumn &column, const QString &text) const;
    Reading readName(const TermColumn &column, const QString &text) const;
    Reading readSource(const TermColumn &column, const QString &text) const;
    QString textOf(int row, int column) const;
    QString print(const GeneralDataInfo &term) const;
    TermColumn::Terms newEntry(int row) const;
    void enterCell(const CellText &cell);

    struct Refused
    {
        QString text;
        QString error;
    };
    const std::vector<TermColumn> &m_columns;
    qsizetype m_headSize;
    qsizetype m_entrySize;
    int m_parameter;
    const Project *m_project = nullptr;
    TermColumn::Terms m_head;
    QList<TermColumn::Terms> m_entries;
    QMap<std::pair<int, int>, Refused> m_refused; //!< by row and column
    QHash<int, QString> m_conflicts;
    bool m_isReadOnly = false;
};

} // namespace Halvane::Corvex::Designer
