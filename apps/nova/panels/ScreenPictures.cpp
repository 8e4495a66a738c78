// SPDX-License-Identifier: MIT
#include "panels/ScreenPictures.h"

#include "corvex/editing/graphics/CanvasScene.h"
#include "corvex/editing/graphics/GraphicsItem.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "project/Workspace.h"

#include <QGraphicsItem>
#include <QPainter>

namespace Halvane::Corvex::Nova {

using namespace Designer;

namespace {

constexpr int pause = 400; // milliseconds after an edit

} // namespace

ScreenPictures::ScreenPictures(Workspace &workspace, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
{
    workspace.project().observers().add(this);
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &ScreenPictures::drawNext);
}

ScreenPictures::~ScreenPictures() = default;

QPixmap ScreenPictures::picture(const Screen *screen, int edge, qreal devicePixelRatio)
{
    Wish &wish = m_wishes[screen];
    if (wish.edge != edge || wish.devicePixelRatio != devicePixelRatio) {
        wish = {edge, devicePixelRatio};
        m_outdated.insert(screen);
        if (!m_pause.isActive()) {
            m_pause.start(0);
        }
    }
    return m_pictures.value(screen);
}

void ScreenPictures::drawNext()
{
    if (m_outdated.isEmpty()) {
        return;
    }
    const DesignerObject *wanted = *m_outdated.constBegin();
    m_outdated.remove(wanted);
    auto *screen = static_cast<Screen *>(const_cast<DesignerObject *>(wanted));
    const Wish wish = m_wishes.value(wanted);
    // The screen of the canvas has a scene already.
    const GraphicsItem *item = GraphicsItem::of(screen);
    QImage image;
    if (auto *scene = item ? qobject_cast<CanvasScene *>(item->graphic()->scene()) : nullptr) {
        image = scene->picture(CanvasScene::Plain);
    } else {
        image = CanvasScene(screen).picture();
    }
    if (!image.isNull()) {
        const int edge = qRound(wish.edge * wish.devicePixelRatio);
        QPixmap picture =
            QPixmap::fromImage(image.scaled(edge, edge, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        picture.setDevicePixelRatio(wish.devicePixelRatio);
        m_pictures.insert(wanted, picture);
        emit changed();
    }
    if (!m_outdated.isEmpty()) {
        m_pause.start(0);
    }
}

void ScreenPictures::mark(const DesignerObject *owner)
{
    const Screen *screen = owner ? owner->screen() : nullptr;
    if (screen && m_wishes.contains(screen)) {
        m_outdated.insert(screen);
        m_pause.start(pause);
    }
}

void ScreenPictures::valueChanged(const SharedProperty &property, const QString & /*previousValue*/)
{
    mark(property->parentObject());
}

void ScreenPictures::inserted(const SharedProperty &list, qsizetype /*index*/, DesignerObject * /*object*/)
{
    mark(list->parentObject());
}

void ScreenPictures::aboutToRemove(const SharedProperty &list, qsizetype /*index*/, DesignerObject *object)
{
    mark(list->parentObject());
    m_wishes.remove(object);
    m_pictures.remove(object);
    m_outdated.remove(object);
}

void ScreenPictures::moved(const SharedProperty &list, qsizetype /*from*/, qsizetype /*to*/)
{
    mark(list->parentObject());
}

void ScreenPictures::reordered(const SharedProperty &list)
{
    mark(list->parentObject());
}

void ScreenPictures::projectAboutToLoad()
{
    m_wishes.clear();
    m_pictures.clear();
    m_outdated.clear();
}

void ScreenPictures::projectAboutToBeDestroyed()
{
    projectAboutToLoad();
    m_pause.stop();
}

} // namespace Halvane::Corvex::Nova
