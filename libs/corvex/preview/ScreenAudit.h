// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/state/ProblemLog.h"

#include <QList>
#include <QRect>
#include <QString>

class QQuickItem;

namespace Halvane::Corvex::Preview {

//! Finds the visible problems of a screen: texts that do not fit, elements outside of the screen, and
//! elements that are completely covered by rectangles or by images without transparent parts. Ignores
//! invisible elements.
class ScreenAudit
{
public:
    //! The screen must have been laid out.
    static QList<PanelProblem> find(QQuickItem *screen);

private:
    //! An element in drawing order.
    struct Drawn
    {
        QQuickItem *item;
        QRectF rect; //!< in screen coordinates
    };

    explicit ScreenAudit(QQuickItem *screen);

    void collect(QQuickItem *item);
    void report(const QQuickItem *item, const QString &message);
    void checkText(const Drawn &drawn);
    void checkPlace(const Drawn &drawn);
    void checkCovers();
    //! The area that an element covers in any case.
    QRect opaquePart(const Drawn &drawn) const;

    QQuickItem *m_screen;
    QList<Drawn> m_drawn; //!< topmost element last
    QList<PanelProblem> m_problems;
};

} // namespace Halvane::Corvex::Preview
