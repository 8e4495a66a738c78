// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/inspector/PropertySheet.h"

#include <QAbstractButton>
#include <QWidget>

class QToolButton;

namespace Halvane::Corvex::Designer {

class PropertyEditor;
class RowTitle;

//! A row of a property panel: the title, the editor, and a button that resets the value.
class PanelRow : public QWidget
{
    Q_OBJECT

public:
    PanelRow(PropertySheet &sheet, const SheetRow &row, QWidget *parent);

    PropertyEditor *editor() const { return m_editor; }
    //! Whether this row can show another row of the sheet with the same id.
    bool fits(const SheetRow &row) const;
    void showRow(const SheetRow &row);
    //! The height that the row needs for that width.
    int heightFor(int width) const;
    //! The width of the column of titles.
    void setTitleWidth(int width);

signals:
    void resetRequested();
    void heightChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void showReset(const QString &text);
    void placeReset();
    void place();
    void settle();

    PropertySheet &m_sheet;
    QString m_editorName;
    QString m_kind;
    RowTitle *m_title;
    PropertyEditor *m_editor;
    QToolButton *m_reset = nullptr; //!< created with the first value that is not the default
    int m_titleWidth = 0;
    bool m_isSettleDue = false;
};

//! The header of a group in a property panel. A click opens or closes the group.
class PanelHeader : public QAbstractButton
{
    Q_OBJECT

public:
    PanelHeader(const QString &title, QWidget *parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    bool m_showsFocus = false; //!< only when it came by key
};

} // namespace Halvane::Corvex::Designer
