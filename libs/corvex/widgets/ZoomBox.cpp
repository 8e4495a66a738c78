// SPDX-License-Identifier: MIT
#include "corvex/widgets/ZoomBox.h"

#include "corvex/common/LocalizationHelper.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr double scales[] = {0.05, 0.1, 0.25, 0.5, 0.75, 1, 1.5, 2, 3, 4, 6, 8, 12, 16, 24, 32};
//! A scale that differs from a usual one by less is the usual one.
constexpr double sameScale = 1.001;

QString textOf(double scale)
{
    return u"%1 %"_s.arg(std::max(1, qRound(scale * 100)));
}

} // namespace

ZoomBox::ZoomBox(QWidget *parent)
    : QComboBox(parent)
{
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    setAccessibleName(LocalizationHelper::coreString(u"Zoom"_s));
    addItem(LocalizationHelper::coreString(u"Fit"_s));
    for (const double scale : scales) {
        addItem(textOf(scale), scale);
    }
    setMaxVisibleItems(count());
    setScale(1);
    connect(this, &QComboBox::activated, this, [this](int row) {
        const QVariant scale = itemData(row);
        setScale(m_scale);
        if (scale.isValid()) {
            emit scaleRequested(scale.toDouble());
        } else {
            emit fitRequested();
        }
    });
}

void ZoomBox::setScale(double scale)
{
    m_scale = scale;
    setEditText(textOf(scale));
}

double ZoomBox::larger(double scale)
{
    const auto *next = std::ranges::upper_bound(scales, scale * sameScale);
    return next == std::end(scales) ? largest : *next;
}

double ZoomBox::smaller(double scale)
{
    const auto *next = std::ranges::lower_bound(scales, scale / sameScale);
    return next == std::begin(scales) ? smallest : *std::prev(next);
}

void ZoomBox::enter(const QString &text)
{
    QString number = text.trimmed();
    if (number.endsWith(u'%')) {
        number.chop(1);
    }
    bool ok = false;
    const double percent = locale().toDouble(number.trimmed(), &ok);
    setScale(m_scale);
    if (ok && percent > 0) {
        emit scaleRequested(std::clamp(percent / 100, smallest, largest));
    }
}

void ZoomBox::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        enter(currentText());
    } else if (event->key() == Qt::Key_Escape) {
        setScale(m_scale);
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void ZoomBox::focusOutEvent(QFocusEvent *event)
{
    setScale(m_scale);
    QComboBox::focusOutEvent(event);
}

void ZoomBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

} // namespace Halvane::Corvex::Designer
