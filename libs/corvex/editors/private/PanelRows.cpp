// SPDX-License-Identifier: MIT
#include "corvex/editors/private/PanelRows.h"

#include "corvex/editors/Editors.h"
#include "corvex/editors/PropertyEditor.h"
#include "corvex/editors/private/PanelRow.h"
#include "corvex/widgets/Theme.h"

#include <QEvent>

namespace Halvane::Corvex::Designer {

namespace {

//! Rows below the view that exist too, so that the Tab key reaches them.
constexpr int spareRows = 2;

// The column of titles, in shares of the width.
constexpr double narrowestTitles = 0.3;
constexpr double widestTitles = 0.48;
constexpr double muchTooLong = 1.25;

} // namespace

PanelRows::PanelRows(PropertySheet &sheet, EditorRequests &requests, QWidget *parent)
    : QWidget(parent)
    , m_sheet(sheet)
    , m_requests(requests)
{
    connect(&sheet, &PropertySheet::modelReset, this, &PanelRows::rebuild);
    connect(&sheet, &PropertySheet::rowsInserted, this, &PanelRows::rebuild);
    connect(&sheet, &PropertySheet::rowsRemoved, this, &PanelRows::rebuild);
    connect(&sheet, &PropertySheet::rowsMoved, this, &PanelRows::rebuild);
    connect(&sheet, &PropertySheet::dataChanged, this,
            [this](const QModelIndex &first, const QModelIndex &, const QList<int> &roles) {
                onDataChanged(first, roles);
            });
}

PanelRows::~PanelRows() = default;

void PanelRows::setFilter(const QString &text)
{
    m_filter = text;
    rebuild();
}

void PanelRows::setView(int width, int top, int height)
{
    m_top = top;
    m_viewHeight = height;
    if (width != this->width()) {
        resize(width, this->height());
        measureTitles();
        for (Line &line : m_lines) {
            if (PanelRow *row = m_rows.value(line.id)) {
                row->setTitleWidth(titleWidth(width));
                line.height = row->heightFor(width);
            }
        }
    }
    createVisible();
}

bool PanelRows::isShown(int row) const
{
    const SheetRow &shown = m_sheet.row(row);
    const auto contains = [this](const QString &text) {
        return text.contains(m_filter, Qt::CaseInsensitive);
    };
    return shown.isVisible
           && (m_filter.isEmpty() || contains(shown.title) || contains(shown.id)
               || (contains(shown.value) && !Editors::isSecret(shown)));
}

int PanelRows::estimate() const
{
    return Theme::fieldHeight(this) + Theme::gap;
}

int PanelRows::titleWidth(int width) const
{
    return std::clamp(m_longestTitle + Theme::margin + 2 * Theme::gap, int(width * narrowestTitles),
                      int(width * widestTitles));
}

//! The longest title decides, except those that would be cut anyway or are above a wide editor.
void PanelRows::measureTitles()
{
    QFont bold = font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    const int most = int(width() * widestTitles) - Theme::margin - 2 * Theme::gap;
    m_longestTitle = 0;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        const int title = isShown(row) ? metrics.horizontalAdvance(m_sheet.row(row).title) : 0;
        if (title <= most * muchTooLong) {
            m_longestTitle = std::max(m_longestTitle, std::min(title, most));
        }
    }
}

//! Lists the lines again. Existing rows are kept.
void PanelRows::rebuild()
{
    m_lines.clear();
    measureTitles();
    QString group;
    for (int row = 0; row < m_sheet.rowCount(); ++row) {
        if (!isShown(row)) {
            continue;
        }
        const SheetRow &shown = m_sheet.row(row);
        if (shown.group != group) {
            group = shown.group;
            m_lines.push_back({{}, group, headerFor(group)->sizeHint().height()});
        }
        if (!m_closed.contains(group) || !m_filter.isEmpty()) {
            PanelRow *known = m_rows.value(shown.id);
            if (known && !known->fits(shown)) {
                delete m_rows.take(shown.id);
                known = nullptr;
            }
            if (known) {
                known->showRow(shown);
                known->setTitleWidth(titleWidth(width()));
            }
            m_lines.push_back({shown.id, group, known ? known->heightFor(width()) : estimate()});
        }
    }
    createVisible();
}

void PanelRows::onDataChanged(const QModelIndex &first, const QList<int> &roles)
{
    const SheetRow &row = m_sheet.row(first.row());
    const bool changesShape = roles.contains(PropertySheet::VisibleRole)
                              || roles.contains(PropertySheet::EditorRole)
                              || roles.contains(PropertySheet::GroupRole);
    if (changesShape) {
        rebuild();
    } else if (PanelRow *known = m_rows.value(row.id)) {
        known->showRow(row);
    }
}

PanelHeader *PanelRows::headerFor(const QString &group)
{
    PanelHeader *&header = m_headers[group];
    if (!header) {
        header = new PanelHeader(group, this);
        connect(header, &PanelHeader::clicked, this, [this, group] { toggle(group); });
    }
    return header;
}

void PanelRows::toggle(const QString &group)
{
    if (!m_closed.remove(group)) {
        m_closed.insert(group);
    }
    rebuild();
}

PanelRow *PanelRows::rowFor(const Line &line)
{
    PanelRow *&row = m_rows[line.id];
    if (!row) {
        const QString id = line.id;
        row = new PanelRow(m_sheet, m_sheet.row(m_sheet.rowOf(id)), this);
        row->editor()->setRequests(&m_requests);
        row->setTitleWidth(titleWidth(width()));
        connect(row, &PanelRow::heightChanged, this, [this, row = row, id] {
            const auto changed = std::ranges::find(m_lines, id, &Line::id);
            const int height = row->heightFor(width());
            if (changed != m_lines.end() && changed->height != height) {
                changed->height = height;
                place();
            }
        });
        connect(row, &PanelRow::resetRequested, this, [this, id] {
            if (const int number = m_sheet.rowOf(id); number >= 0) {
                emit planned(std::make_shared<PlannedCommand>(m_sheet.reset(number)));
            }
        });
        emit created(row->editor());
    }
    return row;
}

//! Creates the rows in view, and places all of them.
void PanelRows::createVisible()
{
    int top = Theme::margin;
    int spare = spareRows;
    for (Line &line : m_lines) {
        const bool isAbove = top + line.height < m_top;
        if (!isAbove && !line.id.isEmpty() && (top <= m_top + m_viewHeight || spare-- > 0)) {
            line.height = rowFor(line)->heightFor(width());
        }
        top += line.height;
    }
    place();
}

void PanelRows::place()
{
    constexpr int mostRounds = 3; // a text that wraps knows its height when it has its width
    m_isPlaceDue = true;
    for (int round = 0; !m_isPlacing && round < mostRounds && m_isPlaceDue; ++round) {
        m_isPlaceDue = false;
        m_isPlacing = true;
        placeOnce();
        m_isPlacing = false;
    }
}

void PanelRows::placeOnce()
{
    QSet<const QWidget *> shown;
    const QWidget *previous = nullptr;
    int top = Theme::margin;
    for (Line &line : m_lines) {
        line.top = top;
        QWidget *widget =
            line.id.isEmpty() ? static_cast<QWidget *>(m_headers.value(line.group)) : m_rows.value(line.id);
        if (widget) {
            widget->setGeometry(0, top, width(), line.height);
            widget->show();
            shown.insert(widget);
            QWidget *field = line.id.isEmpty() ? widget : m_rows.value(line.id)->editor();
            if (previous) {
                setTabOrder(const_cast<QWidget *>(previous), field);
            }
            previous = field;
        }
        top += line.height;
    }
    for (PanelRow *row : std::as_const(m_rows)) {
        if (!shown.contains(row)) {
            row->hide();
        }
    }
    for (PanelHeader *header : std::as_const(m_headers)) {
        if (!shown.contains(header)) {
            header->hide();
        }
    }
    resize(width(), top + Theme::margin);
}

PropertyEditor *PanelRows::open(const QString &id)
{
    const int number = m_sheet.rowOf(id);
    if (number < 0 || !isShown(number)) {
        return nullptr;
    }
    if (m_closed.contains(m_sheet.row(number).group)) {
        m_headers.value(m_sheet.row(number).group)->setChecked(true);
        toggle(m_sheet.row(number).group);
    }
    const auto line = std::ranges::find(m_lines, id, &Line::id);
    PanelRow *row = rowFor(*line);
    line->height = row->heightFor(width());
    place();
    return row->editor();
}

void PanelRows::completeEntries()
{
    for (const PanelRow *row : std::as_const(m_rows)) {
        if (row->editor()->hasEntry()) {
            emit row->editor()->entered();
        }
    }
}

bool PanelRows::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        rebuild();
    }
    return QWidget::event(event);
}

} // namespace Halvane::Corvex::Designer
