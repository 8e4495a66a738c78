// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"
#include "corvex/editors/EditorRequests.h"
#include "corvex/inspector/PropertySheet.h"

#include <QScrollArea>

#include <memory>

namespace Halvane::Corvex::Designer {

class EditorHistory;
class PanelRows;
class ProjectDocument;
class PropertyEditor;

/*! The properties of the selected objects of a document: titles, editors and what is wrong, in groups that
    can be closed. Edits go to the history of the document.

    Rows are created when they come into view, and are used again for the next selection, so a panel appears
    at once whatever is selected.
*/
class CORVEX_EXPORT PropertyPanel : public QScrollArea
{
    Q_OBJECT

public:
    //! The document must outlive the panel.
    explicit PropertyPanel(ProjectDocument &document, QWidget *parent = nullptr);
    ~PropertyPanel() override;

    PropertySheet &sheet() { return m_sheet; }
    //! What the editors of the panel want from the window.
    EditorRequests &requests() { return m_requests; }
    //! Only shows rows with this text in title, id or value; case is ignored. Remains for other selections.
    void setFilter(const QString &text);
    const QString &filter() const { return m_filter; }
    //! Scrolls to the row, opens its group, and gives it the focus. Null if there is no such row or if it is
    //! hidden.
    PropertyEditor *reveal(const QString &id);

    QSize sizeHint() const override;

signals:
    //! Notes for the user about an edit that was made.
    void noted(const QStringList &notes);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    void showSelection();

    ProjectDocument &m_document;
    PropertySheet m_sheet;
    EditorRequests m_requests;
    EditorHistory *m_history;
    PanelRows *m_rows;
    QString m_filter;
};

} // namespace Halvane::Corvex::Designer
