// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/core/ModelObserver.h"

#include <QHash>
#include <QObject>
#include <QPixmap>
#include <QSet>
#include <QTimer>

namespace Halvane::Corvex::Designer {
class Screen;
}

namespace Halvane::Corvex::Nova {

class Workspace;

//! Small pictures of the screens of a project. They are drawn when they are first wanted, and again after a
//! pause in the editing of their screen, one at a time.
class ScreenPictures
    : public QObject
    , private Designer::ModelObserver
{
    Q_OBJECT

public:
    explicit ScreenPictures(Workspace &workspace, QObject *parent = nullptr);
    ~ScreenPictures() override;

    //! Within a square of \a edge device-independent pixels. Null until it is drawn; then changed() follows.
    QPixmap picture(const Designer::Screen *screen, int edge, qreal devicePixelRatio);

signals:
    void changed();

private:
    void valueChanged(const Designer::SharedProperty &property, const QString &previousValue) override;
    void inserted(const Designer::SharedProperty &list, qsizetype index,
                  Designer::DesignerObject *object) override;
    void aboutToRemove(const Designer::SharedProperty &list, qsizetype index,
                       Designer::DesignerObject *object) override;
    void moved(const Designer::SharedProperty &list, qsizetype from, qsizetype to) override;
    void reordered(const Designer::SharedProperty &list) override;
    void projectAboutToLoad() override;
    void projectAboutToBeDestroyed() override;

    void mark(const Designer::DesignerObject *owner);
    void drawNext();

    struct Wish
    {
        int edge = 0;
        qreal devicePixelRatio = 1;
    };
    Workspace &m_workspace;
    QHash<const Designer::DesignerObject *, QPixmap> m_pictures;
    QHash<const Designer::DesignerObject *, Wish> m_wishes;
    QSet<const Designer::DesignerObject *> m_outdated; //!< those that somebody wants to see
    QTimer m_pause;
};

} // namespace Halvane::Corvex::Nova
