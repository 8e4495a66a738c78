// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace Halvane::Corvex::Designer {
class DesignerObject;
class PropertyPanel;
class SearchLine;
} // namespace Halvane::Corvex::Designer

namespace Halvane::Corvex::Nova {

class Workspace;

//! The properties of the selected objects: what is selected, a filter, and the rows.
class PropertiesPanel : public QWidget
{
    Q_OBJECT

public:
    explicit PropertiesPanel(Workspace &workspace, QWidget *parent = nullptr);

    Designer::PropertyPanel &rows() const { return *m_rows; }

protected:
    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void describeSelection();

    Workspace &m_workspace;
    QLabel *m_icon;
    QLabel *m_title;
    QLabel *m_kind;
    Designer::SearchLine *m_filter;
    Designer::PropertyPanel *m_rows;
};

} // namespace Halvane::Corvex::Nova
