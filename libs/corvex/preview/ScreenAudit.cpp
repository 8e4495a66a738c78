// SPDX-License-Identifier: MIT
#include "corvex/preview/ScreenAudit.h"

#include "corvex/common/PictureFile.h"
#include "corvex/preview/Panel.h"

#include <QColor>
#include <QImageReader>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlFile>
#include <QQuickItem>

#include <cmath>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

namespace {

// Ignore fractions of a pixel.
constexpr double tolerance = 0.5;

bool isDrawn(const QQuickItem *item)
{
    // Groups draw nothing themselves.
    return !item->objectName().isEmpty() && !item->property("indexes").isValid();
}

//! The children in drawing order.
QList<QQuickItem *> sortedChildren(const QQuickItem *item)
{
    QList<QQuickItem *> children = item->childItems();
    std::ranges::stable_sort(children, {}, &QQuickItem::z);
    return children;
}

double effectiveOpacity(const QQuickItem *item, const QQuickItem *screen)
{
    double opacity = 1;
    for (; item && item != screen; item = item->parentItem()) {
        opacity *= item->opacity();
    }
    return opacity;
}

bool isUpright(const QQuickItem *item, const QQuickItem *screen)
{
    for (; item && item != screen; item = item->parentItem()) {
        if (std::fmod(item->rotation(), 90) != 0) {
            return false;
        }
    }
    return true;
}

//! Whether it is an image that fills the item and has no transparent parts.
bool isOpaqueImage(const QQuickItem *item)
{
    constexpr int stretched = 0;
    const QVariant fillMode = item->property("fillMode");
    if (!fillMode.isValid() || fillMode.toInt() != stretched) {
        return false;
    }
    const QQmlContext *context = qmlContext(item);
    const QUrl source = item->property("source").toUrl();
    const QString file = QQmlFile::urlToLocalFileOrQrc(context ? context->resolvedUrl(source) : source);
    if (!Common::PictureFile::problem(file).isEmpty()) {
        return false;
    }
    const QImageReader reader(file);
    const QImage::Format format = reader.imageFormat();
    return format != QImage::Format_Invalid
           && QImage::toPixelFormat(format).alphaUsage() == QPixelFormat::IgnoresAlpha;
}

QString size(double width, double height)
{
    return u"%1 x %2"_s.arg(QString::number(std::ceil(width)), QString::number(std::ceil(height)));
}

} // namespace

ScreenAudit::ScreenAudit(QQuickItem *screen)
    : m_screen(screen)
{ }

QList<PanelProblem> ScreenAudit::find(QQuickItem *screen)
{
    ScreenAudit audit(screen);
    audit.collect(screen);
    for (const Drawn &drawn : std::as_const(audit.m_drawn)) {
        audit.checkText(drawn);
        audit.checkPlace(drawn);
    }
    audit.checkCovers();
    return audit.m_problems;
}

void ScreenAudit::collect(QQuickItem *item)
{
    if (!item->isVisible() || effectiveOpacity(item, m_screen) <= 0) {
        return;
    }
    if (item != m_screen && isDrawn(item)) {
        m_drawn.append({item, item->mapRectToItem(m_screen, QRectF(QPointF(), item->size()))});
    }
    for (QQuickItem *child : sortedChildren(item)) {
        collect(child);
    }
}

void ScreenAudit::report(const QQuickItem *item, const QString &message)
{
    m_problems.append({Panel::pathOf(item), message});
}

void ScreenAudit::checkText(const Drawn &drawn)
{
    const QVariant width = drawn.item->property("contentWidth");
    if (!width.isValid() || drawn.item->property("text").toString().isEmpty()) {
        return;
    }
    const double neededWidth = width.toDouble();
    const double neededHeight = drawn.item->property("contentHeight").toDouble();
    if (neededWidth > drawn.item->width() + tolerance || neededHeight > drawn.item->height() + tolerance) {
        report(drawn.item,
               u"The text does not fit: it needs %1 pixels but has %2."_s.arg(
                   size(neededWidth, neededHeight), size(drawn.item->width(), drawn.item->height())));
    }
}

void ScreenAudit::checkPlace(const Drawn &drawn)
{
    const QRectF screen(QPointF(), m_screen->size());
    const QRectF within = screen.adjusted(-tolerance, -tolerance, tolerance, tolerance);
    if (drawn.rect.isEmpty() || within.contains(drawn.rect)) {
        return;
    }
    report(drawn.item, screen.intersects(drawn.rect) ? u"Part of the element is outside of the screen."_s
                                                     : u"The element is outside of the screen."_s);
}

QRect ScreenAudit::opaquePart(const Drawn &drawn) const
{
    const QVariant radius = drawn.item->property("radius");
    const bool isFilled = radius.isValid() ? drawn.item->property("color").value<QColor>().alpha() == 255
                                           : isOpaqueImage(drawn.item);
    if (!isFilled || effectiveOpacity(drawn.item, m_screen) < 1 || !isUpright(drawn.item, m_screen)) {
        return {};
    }
    // Exclude the rounded corners and partial pixels.
    const double corner = radius.toDouble() * (1 - M_SQRT1_2);
    const QRectF inside = drawn.rect.adjusted(corner, corner, -corner, -corner);
    return QRect(QPoint(int(std::ceil(inside.left())), int(std::ceil(inside.top()))),
                 QPoint(int(std::floor(inside.right())) - 1, int(std::floor(inside.bottom())) - 1));
}

void ScreenAudit::checkCovers()
{
    const QRect screen(QPoint(), m_screen->size().toSize());
    QRegion covered;
    for (auto drawn = m_drawn.crbegin(); drawn != m_drawn.crend(); ++drawn) {
        const QRect seen = drawn->rect.toAlignedRect() & screen;
        if (!seen.isEmpty() && QRegion(seen).subtracted(covered).isEmpty()) {
            report(drawn->item, u"Other elements completely hide the element."_s);
        }
        covered += opaquePart(*drawn);
    }
}

} // namespace Halvane::Corvex::Preview
