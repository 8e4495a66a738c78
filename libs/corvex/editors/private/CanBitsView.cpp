// SPDX-License-Identifier: MIT
#include "corvex/editors/private/CanBitsView.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/Theme.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

constexpr int bytes = 8;
constexpr int bitsPerByte = 8;
constexpr int rowHeight = 16;
constexpr int firstHue = 210;
constexpr int nextHue = 100; //!< degrees, so that neighbours differ

} // namespace

void CanBitsView::setParts(const QList<Part> &parts)
{
    m_parts = parts;
    QStringList lines;
    for (const Part &part : parts) {
        lines.append(
            LocalizationHelper::coreString(u"%1: bits %2 to %3"_s)
                .arg(part.name, QString::number(part.start + 1), QString::number(part.start + part.length)));
    }
    setAccessibleDescription(lines.join(u'\n'));
    update();
}

QSize CanBitsView::sizeHint() const
{
    return {200, (bytes + 1) * rowHeight + 1};
}

//! Bit 8 is at the left, as in tables of the standard.
QRect CanBitsView::bitRect(int bit) const
{
    const int left = fontMetrics().horizontalAdvance(u"Byte 8 "_s);
    const double cell = double(width() - left - 1) / bitsPerByte;
    const int column = bitsPerByte - 1 - bit % bitsPerByte;
    const int x = left + int(column * cell);
    return {x, (1 + bit / bitsPerByte) * rowHeight, left + int((column + 1) * cell) - x, rowHeight};
}

QList<int> CanBitsView::partsAt(int bit) const
{
    QList<int> found;
    for (int part = 0; part < int(m_parts.size()); ++part) {
        if (bit >= m_parts.at(part).start && bit < m_parts.at(part).start + m_parts.at(part).length) {
            found.append(part);
        }
    }
    return found;
}

void CanBitsView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(Theme::muted(palette()));
    for (int bit = 0; bit < bitsPerByte; ++bit) {
        const QRect cell = bitRect(bit);
        painter.drawText(QRect(cell.left(), 0, cell.width(), rowHeight), Qt::AlignCenter,
                         QString::number(bit + 1));
    }
    for (int byte = 0; byte < bytes; ++byte) {
        painter.drawText(QRect(0, (byte + 1) * rowHeight, width(), rowHeight),
                         Qt::AlignVCenter | Qt::AlignLeft,
                         LocalizationHelper::coreString(u"Byte %1"_s).arg(QString::number(byte + 1)));
    }
    const int lightness = Theme::isDark(palette()) ? 90 : 190;
    for (int bit = 0; bit < bytes * bitsPerByte; ++bit) {
        const QList<int> parts = partsAt(bit);
        QColor color = palette().color(QPalette::Base);
        if (parts.size() > 1) {
            color = Theme::error(palette());
        } else if (!parts.isEmpty()) {
            color = QColor::fromHsl((firstHue + parts.first() * nextHue) % 360, 110, lightness);
        }
        painter.fillRect(bitRect(bit), color);
        painter.setPen(Theme::line(palette()));
        painter.drawRect(bitRect(bit));
    }
}

bool CanBitsView::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        QStringList names;
        for (int bit = 0; bit < bytes * bitsPerByte; ++bit) {
            if (bitRect(bit).contains(help->pos())) {
                for (const int part : partsAt(bit)) {
                    names.append(m_parts.at(part).name);
                }
            }
        }
        QToolTip::showText(help->globalPos(), names.join(u'\n'), this);
        return true;
    }
    return QWidget::event(event);
}

} // namespace Halvane::Corvex::Designer
