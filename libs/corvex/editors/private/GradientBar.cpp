// SPDX-License-Identifier: MIT
#include "corvex/editors/private/GradientBar.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/values/text/ReadableText.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/AccessibleValue.h"
#include "corvex/widgets/ColorSwatch.h"
#include "corvex/widgets/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr double handleRadius = 6;
constexpr double away = 32; //!< the distance at which a dragged stop is removed
constexpr int fewestStops = 2;
constexpr int hundred = 100;
constexpr int largeStep = 10;

int hundredths(double position)
{
    return qRound(position * hundred);
}

} // namespace

GradientBar::GradientBar(QWidget *parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    refresh();
}

QSize GradientBar::sizeHint() const
{
    return {120, Theme::fieldHeight(this) + int(2 * handleRadius) + 2};
}

QRectF GradientBar::bar() const
{
    return QRectF(rect()).adjusted(handleRadius + 1, 1, -handleRadius - 1, -2 * handleRadius - 3);
}

double GradientBar::xOf(double position) const
{
    return bar().left() + position * bar().width();
}

//! The nearest hundredth.
double GradientBar::positionAt(double x) const
{
    return hundredths(std::clamp((x - bar().left()) / bar().width(), 0.0, 1.0)) / double(hundred);
}

bool GradientBar::isFree(double position) const
{
    return std::ranges::none_of(m_stops, [position](const QGradientStop &stop) {
        return hundredths(stop.first) == hundredths(position);
    });
}

int GradientBar::stopAt(const QPointF &point) const
{
    int nearest = -1;
    double best = handleRadius + 2;
    for (int index = 0; index < m_stops.size() && point.y() >= bar().bottom() - handleRadius; ++index) {
        const double distance = std::abs(xOf(m_stops.at(index).first) - point.x());
        if (distance <= best) {
            best = distance;
            nearest = index;
        }
    }
    return nearest;
}

QColor GradientBar::colorAt(double position) const
{
    const auto after = std::ranges::find_if(
        m_stops, [position](const QGradientStop &stop) { return stop.first >= position; });
    if (after == m_stops.end()) {
        return m_stops.isEmpty() ? QColor(Qt::black) : m_stops.constLast().second;
    }
    if (after == m_stops.begin()) {
        return after->second;
    }
    const auto &[start, first] = *std::prev(after);
    const auto share = float((position - start) / (after->first - start));
    const auto mix = [share](float from, float to) { return from + (to - from) * share; };
    const QColor &second = after->second;
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()), mix(first.alphaF(), second.alphaF()))
        .toRgb();
}

void GradientBar::setStops(const QGradientStops &stops)
{
    m_stops = stops;
    std::ranges::stable_sort(m_stops, {}, &QGradientStop::first);
    m_selected = stops.isEmpty() ? -1 : std::clamp(m_selected, 0, int(stops.size()) - 1);
    refresh();
}

void GradientBar::refresh()
{
    QString words = m_text;
    if (m_selected >= 0) {
        const auto &[position, color] = m_stops.at(m_selected);
        words = LocalizationHelper::coreString(u"%1 of %2: %3 at %4 %"_s)
                    .arg(QString::number(m_selected + 1), QString::number(m_stops.size()),
                         ReadableText::fromColor(ValueConversion::toString(color)),
                         QString::number(hundredths(position)));
    }
    AccessibleValue::set(this, words);
    update();
}

void GradientBar::setText(const QString &text)
{
    m_text = text;
    refresh();
}

void GradientBar::select(int index)
{
    if (index >= 0 && index < m_stops.size() && index != m_selected) {
        m_selected = index;
        refresh();
        emit selectionChanged();
    }
}

//! Inserts the stop at its place, and selects it.
void GradientBar::insert(const QGradientStop &stop)
{
    const auto place = std::ranges::lower_bound(m_stops, stop.first, {}, &QGradientStop::first);
    m_selected = int(place - m_stops.begin());
    m_stops.insert(m_selected, stop);
    refresh();
}

void GradientBar::add(double position)
{
    if (!isFree(position)) {
        return;
    }
    insert({position, colorAt(position)});
    refresh();
    emit selectionChanged();
    emit changed();
}

void GradientBar::removeSelected()
{
    if (m_stops.size() > fewestStops && m_selected >= 0) {
        m_stops.removeAt(m_selected);
        setStops(m_stops);
        emit selectionChanged();
        emit changed();
    }
}

//! Returns false if another stop is there.
bool GradientBar::moveSelected(double position)
{
    if (m_selected < 0 || !isFree(position)) {
        return false;
    }
    insert({position, m_stops.takeAt(m_selected).second});
    refresh();
    return true;
}

void GradientBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEnabled()) {
        painter.setOpacity(0.5);
    }
    const bool isFocused = hasFocus();
    painter.setBrush(m_stops.isEmpty() ? palette().brush(QPalette::Base) : ColorSwatch::chessboard());
    painter.setPen(QPen(palette().color(isFocused ? QPalette::Highlight : QPalette::PlaceholderText),
                        isFocused ? 2 : 1));
    painter.drawRoundedRect(bar(), 2, 2);
    if (m_stops.isEmpty()) {
        painter.setPen(Theme::muted(palette()));
        painter.drawText(bar(), Qt::AlignCenter, m_text);
        return;
    }
    QLinearGradient gradient(bar().topLeft(), bar().topRight());
    gradient.setStops(m_stops);
    painter.setBrush(gradient);
    painter.drawRoundedRect(bar(), 2, 2);
    for (int index = 0; index < m_stops.size(); ++index) {
        const double x = xOf(m_stops.at(index).first);
        const double top = bar().bottom() + 1;
        QColor color = m_stops.at(index).second;
        color.setAlpha(255);
        painter.setBrush(color);
        const bool isSelected = index == m_selected;
        painter.setPen(QPen(palette().color(isSelected ? QPalette::Highlight : QPalette::WindowText),
                            isSelected ? 2.5 : 1));
        painter.drawPolygon(QPolygonF{{x, top},
                                      {x + handleRadius - 1, top + handleRadius - 1},
                                      {x + handleRadius - 1, top + 2 * handleRadius},
                                      {x - handleRadius + 1, top + 2 * handleRadius},
                                      {x - handleRadius + 1, top + handleRadius - 1}});
    }
}

void GradientBar::mousePressEvent(QMouseEvent *event)
{
    const int pressed = stopAt(event->position());
    m_isPressed = event->button() == Qt::LeftButton && pressed >= 0;
    select(pressed);
}

void GradientBar::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_isPressed) {
        return;
    }
    if (!m_isDragging) {
        m_isDragging = true;
        emit dragBegan();
    }
    const bool wasAway = m_isAway;
    const double y = event->position().y();
    m_isAway = (y < -away || y > height() + away) && (wasAway || m_stops.size() > fewestStops);
    const double position = positionAt(event->position().x());
    if (m_isAway && !wasAway) {
        m_away = m_stops.takeAt(m_selected);
        m_selected = std::min(m_selected, int(m_stops.size()) - 1);
    } else if (!m_isAway && wasAway) {
        insert(m_away);
    } else if (m_isAway || !moveSelected(position)) {
        return;
    }
    refresh();
    emit dragged();
}

void GradientBar::mouseReleaseEvent(QMouseEvent *)
{
    m_isPressed = false;
    m_isAway = false;
    if (std::exchange(m_isDragging, false)) {
        emit dragEnded();
        emit selectionChanged();
    }
}

void GradientBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && stopAt(event->position()) < 0) {
        add(positionAt(event->position().x()));
    }
}

//! Moves the selected stop, over others if they are in the way.
void GradientBar::moveSelectedBy(double hundredthsToMove)
{
    if (m_selected < 0) {
        return;
    }
    const int direction = hundredthsToMove > 0 ? 1 : -1;
    const int distance = direction * std::max(1, int(std::abs(hundredthsToMove)));
    const int start = hundredths(m_stops.at(m_selected).first);
    for (int target = std::clamp(start + distance, 0, hundred);
         target >= 0 && target <= hundred && target != start; target += direction) {
        if (moveSelected(target / double(hundred))) {
            emit stepped();
            return;
        }
    }
}

void GradientBar::keyPressEvent(QKeyEvent *event)
{
    const int size = event->modifiers() & Qt::ShiftModifier ? largeStep : 1;
    switch (event->key()) {
    case Qt::Key_Left:
        return moveSelectedBy(-size);
    case Qt::Key_Right:
        return moveSelectedBy(size);
    case Qt::Key_Up:
        return select(m_selected - 1);
    case Qt::Key_Down:
        return select(m_selected + 1);
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return removeSelected();
    case Qt::Key_Insert:
        if (m_selected >= 0 && m_stops.size() >= fewestStops) {
            const int first = std::min(m_selected, int(m_stops.size()) - 2);
            add(hundredths((m_stops.at(first).first + m_stops.at(first + 1).first) / 2) / double(hundred));
        }
        return;
    case Qt::Key_Escape:
        m_isPressed = false;
        m_isAway = false;
        if (std::exchange(m_isDragging, false)) {
            emit dragCancelled();
        } else {
            emit restored();
        }
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace Halvane::Corvex::Designer
