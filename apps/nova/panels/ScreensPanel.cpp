// SPDX-License-Identifier: MIT
#include "panels/ScreensPanel.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"
#include "corvex/values/text/ValueConversion.h"
#include "corvex/widgets/Theme.h"

#include "panels/ScreenPictures.h"
#include "project/Workspace.h"

#include <QPainter>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;

namespace {

constexpr int pictureEdge = 96;

//! A picture of the screen with its name beside it.
class ScreenDelegate : public QStyledItemDelegate
{
public:
    ScreenDelegate(ScreenPictures &pictures, Workspace &workspace, QObject *parent)
        : QStyledItemDelegate(parent)
        , m_pictures(pictures)
        , m_workspace(workspace)
    { }

    QSize sizeHint(const QStyleOptionViewItem & /*option*/, const QModelIndex &index) const override
    {
        const Screen *screen = screenOf(index);
        const QSize size = screen ? ValueConversion::toSize(screen->size()->valueString()).toSize() : QSize();
        return {2 * pictureEdge,
                size.scaled(pictureEdge, pictureEdge, Qt::KeepAspectRatio).height() + 2 * Theme::margin};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        item.text.clear();
        item.icon = {};
        const QStyle *style = item.widget->style();
        style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
        const Screen *screen = screenOf(index);
        const QPixmap picture =
            m_pictures.picture(screen, pictureEdge, painter->device()->devicePixelRatioF());
        const QSizeF size = picture.isNull() ? QSizeF() : picture.deviceIndependentSize();
        const QPointF corner(item.rect.left() + Theme::margin + (pictureEdge - size.width()) / 2,
                             item.rect.center().y() - size.height() / 2);
        painter->drawPixmap(corner, picture);
        painter->setPen(Theme::frame(item.palette));
        painter->setBrush(Qt::NoBrush);
        if (!picture.isNull()) {
            painter->drawRect(QRectF(corner, size).adjusted(-0.5, -0.5, 0.5, 0.5));
        }
        const bool isSelected = item.state.testFlag(QStyle::State_Selected);
        painter->setPen(item.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
        QFont font = item.font;
        font.setBold(screen == m_workspace.screen());
        painter->setFont(font);
        const QRect text = item.rect.adjusted(pictureEdge + 2 * Theme::margin, 0, -Theme::margin, 0);
        painter->drawText(
            text, Qt::AlignVCenter,
            QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, text.width()));
    }

    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override
    {
        QStyledItemDelegate::updateEditorGeometry(editor, option, index);
        const int height = Theme::fieldHeight(editor);
        editor->setGeometry(option.rect.left() + pictureEdge + 2 * Theme::margin,
                            option.rect.center().y() - height / 2,
                            option.rect.width() - pictureEdge - 3 * Theme::margin, height);
    }

private:
    static const Screen *screenOf(const QModelIndex &index)
    {
        return kindCast<Screen>(index.data(ObjectTreeModel::ObjectRole).value<DesignerObject *>());
    }

    ScreenPictures &m_pictures;
    Workspace &m_workspace;
};

} // namespace

ScreensPanel::ScreensPanel(Workspace &workspace, QWidget *parent)
    : QListView(parent)
    , m_workspace(workspace)
{
    setFrameShape(NoFrame);
    setModel(&workspace.tree());
    setEditTriggers(EditKeyPressed | DoubleClicked);
    setDragDropMode(DragDrop);
    setDefaultDropAction(Qt::MoveAction);
    setDropIndicatorShown(true);
    setAccessibleName(Common::LocalizationHelper::coreString(u"Screens"_s));
    auto *pictures = new ScreenPictures(workspace, this);
    setItemDelegate(new ScreenDelegate(*pictures, workspace, this));
    connect(pictures, &ScreenPictures::changed, viewport(), qOverload<>(&QWidget::update));
    connect(&workspace.tree(), &QAbstractItemModel::modelReset, this, &ScreensPanel::reset);
    connect(&workspace, &Workspace::screenChanged, this, &ScreensPanel::showCurrent);
    const auto show = [this](const QModelIndex &index) {
        if (auto *screen = kindCast<Screen>(m_workspace.tree().object(index))) {
            m_workspace.document().select({screen});
            m_workspace.showScreen(screen);
        }
    };
    connect(this, &QListView::clicked, this, show);
    connect(this, &QListView::activated, this, show);
    reset();
}

void ScreensPanel::reset()
{
    setRootIndex(m_workspace.tree().indexOf(m_workspace.project().screens()));
    showCurrent();
}

void ScreensPanel::showCurrent()
{
    setCurrentIndex(m_workspace.tree().indexOf(m_workspace.screen()));
    viewport()->update();
}

} // namespace Halvane::Corvex::Nova
