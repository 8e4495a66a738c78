// SPDX-License-Identifier: MIT
#include "corvex/editors/private/PanelRow.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/editors/Editors.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/editors/private/RowTitle.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QLayout>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>
#include <QTextDocument>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int resetWidth = 22;

} // namespace

PanelRow::PanelRow(PropertySheet &sheet, const SheetRow &row, QWidget *parent)
    : QWidget(parent)
    , m_sheet(sheet)
    , m_editorName(Editors::nameFor(row))
    , m_kind(row.kind)
    , m_editor(Editors::createFor(row, this))
{
    m_title = new RowTitle(m_editor, this);
    connect(m_editor, &PropertyEditor::heightChanged, this, [this] {
        emit heightChanged();
        if (m_editor->isWide() && !std::exchange(m_isSettleDue, true)) {
            QMetaObject::invokeMethod(this, &PanelRow::settle, Qt::QueuedConnection);
        }
    });
    m_editor->setProperty(&sheet, row.id);
    showRow(row);
}

bool PanelRow::fits(const SheetRow &row) const
{
    return m_kind == row.kind && m_editorName == Editors::nameFor(row);
}

void PanelRow::showRow(const SheetRow &row)
{
    m_title->setTitle(row.title, !row.isDefault, row.isReadOnly);
    // The title may be cut off. A description with markup stays alone, or it would be shown as plain text.
    m_title->setToolTip(Qt::mightBeRichText(row.description) ? row.description
                        : row.description.isEmpty()          ? row.title
                                                             : row.title + u'\n' + row.description);
    if (!row.isDefault && !row.isReadOnly) {
        showReset(LocalizationHelper::coreString(u"Reset \"%1\" to its default"_s).arg(row.title));
    } else if (m_reset) {
        m_reset->hide();
    }
}

void PanelRow::showReset(const QString &text)
{
    if (!m_reset) {
        m_reset = new QToolButton(this);
        m_reset->setAutoRaise(true);
        m_reset->setIcon(IconSet::icon(IconSet::Reset));
        m_reset->setFocusPolicy(Qt::NoFocus);
        connect(m_reset, &QToolButton::clicked, this, &PanelRow::resetRequested);
        placeReset();
    }
    m_reset->setToolTip(text);
    m_reset->setAccessibleName(text);
    m_reset->show();
}

void PanelRow::placeReset()
{
    if (m_reset) {
        m_reset->setGeometry(width() - Theme::margin - resetWidth, 0, resetWidth, Theme::fieldHeight(this));
    }
}

void PanelRow::setTitleWidth(int width)
{
    if (m_titleWidth != width) {
        m_titleWidth = width;
        place();
    }
}

int PanelRow::heightFor(int width) const
{
    const int fields =
        m_editor->isWide() ? width - 2 * Theme::margin : width - m_titleWidth - Theme::margin - resetWidth;
    m_editor->layout()->activate(); // layouts in it keep their old sizes otherwise
    const int needed = m_editor->layout()->hasHeightForWidth()
                           ? m_editor->layout()->totalHeightForWidth(fields)
                           : m_editor->sizeHint().height();
    return (m_editor->isWide() ? Theme::fieldHeight(this) : 0) + std::max(needed, Theme::fieldHeight(this))
           + Theme::gap;
}

//! A field inside other fields has a new height: the layouts around it take it over, the inner ones first.
void PanelRow::settle()
{
    m_isSettleDue = false;
    const QList<QWidget *> parts = m_editor->findChildren<QWidget *>();
    for (auto part = parts.crbegin(); part != parts.crend(); ++part) {
        if (QLayout *layout = (*part)->layout()) {
            layout->invalidate();
            layout->activate();
        }
    }
    m_editor->layout()->invalidate();
    emit heightChanged();
}

void PanelRow::resizeEvent(QResizeEvent *)
{
    place();
}

void PanelRow::place()
{
    const int line = Theme::fieldHeight(this);
    const int left = m_titleWidth;
    const int right = width() - Theme::margin - resetWidth;
    placeReset();
    if (m_editor->isWide()) {
        m_title->setGeometry(Theme::margin, 0, right - Theme::margin, line);
        m_editor->setGeometry(Theme::margin, line, width() - 2 * Theme::margin, height() - line - Theme::gap);
    } else {
        m_title->setGeometry(Theme::margin, 0, left - Theme::margin, line);
        m_editor->setGeometry(left, 0, right - left, height() - Theme::gap);
    }
}

void PanelRow::contextMenuEvent(QContextMenuEvent *event)
{
    const int row = m_sheet.rowOf(m_editor->propertyId());
    if (row < 0) {
        return;
    }
    QMenu menu(this);
    QAction *copy = menu.addAction(LocalizationHelper::coreString(u"Copy Value"_s), this, [this, row] {
        QGuiApplication::clipboard()->setText(m_sheet.copy({row}));
    });
    copy->setEnabled(!m_sheet.row(row).isMixed && !Editors::isSecret(m_sheet.row(row)));
    QAction *reset = menu.addAction(LocalizationHelper::coreString(u"Reset to Default"_s), this,
                                    &PanelRow::resetRequested);
    reset->setEnabled(!m_sheet.row(row).isDefault && !m_sheet.row(row).isReadOnly);
    menu.exec(event->globalPos());
}

PanelHeader::PanelHeader(const QString &title, QWidget *parent)
    : QAbstractButton(parent)
{
    setText(title);
    setCheckable(true);
    setChecked(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(title);
}

QSize PanelHeader::sizeHint() const
{
    return {0, Theme::fieldHeight(this) + Theme::margin};
}

void PanelHeader::focusInEvent(QFocusEvent *event)
{
    m_showsFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    QAbstractButton::focusInEvent(event);
}

void PanelHeader::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Theme::line(palette()));
    painter.drawLine(0, 0, width(), 0);

    QStyleOption arrow;
    arrow.initFrom(this);
    arrow.rect = QRect(Theme::margin - 2, (height() - 12) / 2, 12, 12);
    style()->drawPrimitive(isChecked() ? QStyle::PE_IndicatorArrowDown : QStyle::PE_IndicatorArrowRight,
                           &arrow, &painter, this);
    QFont bold = font();
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect().adjusted(Theme::margin + 16, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, text());
    if (hasFocus() && m_showsFocus) {
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

} // namespace Halvane::Corvex::Designer
