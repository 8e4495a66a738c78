// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/preview/state/ProblemLog.h"

#include <QList>
#include <QRect>
#include <QString>

class QQuickItem;

namespace Halvane::Corvex::Preview {

/*! What a person would find wrong when looking at a screen: texts that do not fit, elements that stand
   outside of the screen, and elements that rectangles and pictures without transparent parts cover wholly.
   Elements that are not visible at the moment are left alone. */
class ScreenAudit
{
public:
    //! A screen that has been laid out.
    static QList<PanelProblem> find(QQuickItem *screen);

private:
    //! An element as it is drawn.
    struct Drawn
    {
        QQuickItem *item;
        QRectF rect; //!< on the screen
    };

    explicit ScreenAudit(QQuickItem *screen);

    void collect(QQuickItem *item);
    void report(const QQuickItem *item, const QString &message);
    void checkText(const Drawn &drawn);
    void checkPlace(const Drawn &drawn);
    void checkCovers();
    //! What of the screen an element hides, certainly.
    QRect opaquePart(const Drawn &drawn) const;

    QQuickItem *m_screen;
    QList<Drawn> m_drawn; //!< the topmost last
    QList<PanelProblem> m_problems;
};

} // namespace Halvane::Corvex::Preview
