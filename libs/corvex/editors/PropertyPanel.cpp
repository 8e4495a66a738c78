// SPDX-License-Identifier: MIT
#include "corvex/editors/PropertyPanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/document/ProjectDocument.h"
#include "corvex/editors/EditorHistory.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/editors/private/PanelRows.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

PropertyPanel::PropertyPanel(ProjectDocument &document, QWidget *parent)
    : QScrollArea(parent)
    , m_document(document)
    , m_sheet(document.project())
    , m_history(new EditorHistory(document, this))
    , m_rows(new PanelRows(m_sheet, m_requests))
{
    setWidget(m_rows);
    setWidgetResizable(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::ClickFocus); // a click beside the rows completes an entry
    setAccessibleName(LocalizationHelper::coreString(u"Properties"_s));
    connect(m_history, &EditorHistory::noted, this, &PropertyPanel::noted);
    connect(m_rows, &PanelRows::created, m_history, &EditorHistory::add);
    connect(m_rows, &PanelRows::planned, this, [this](const std::shared_ptr<PlannedCommand> &planned) {
        if (planned->command) {
            m_document.push(planned->command.release());
        }
    });
    connect(&document, &ProjectDocument::selectionChanged, this, &PropertyPanel::showSelection);
    showSelection();
}

PropertyPanel::~PropertyPanel() = default;

void PropertyPanel::showSelection()
{
    m_rows->completeEntries(); // for the objects that the user entered them for
    m_sheet.setObjects(m_document.selection());
}

void PropertyPanel::setFilter(const QString &text)
{
    m_filter = text;
    m_rows->setFilter(text);
}

PropertyEditor *PropertyPanel::reveal(const QString &id)
{
    PropertyEditor *editor = m_rows->open(id);
    if (editor) {
        ensureWidgetVisible(editor);
        editor->setFocus(Qt::TabFocusReason);
    }
    return editor;
}

QSize PropertyPanel::sizeHint() const
{
    return {340, 600};
}

void PropertyPanel::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    m_rows->setView(viewport()->width(), -m_rows->y(), viewport()->height());
}

void PropertyPanel::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    m_rows->setView(viewport()->width(), -m_rows->y(), viewport()->height());
}

} // namespace Halvane::Corvex::Designer
