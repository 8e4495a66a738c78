// SPDX-License-Identifier: MIT
#include "corvex/widgets/ObjectSelector.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/DesignerObject.h"
#include "corvex/widgets/KdComboBox.h"
#include "corvex/widgets/ObjectListModel.h"
#include "corvex/widgets/SearchLine.h"
#include "corvex/widgets/Theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int popupWidth = 320;
constexpr int mostRows = 8;

//! An icon or a thumbnail, the name, and beneath it type and place.
class ObjectDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const override
    {
        const int text = 2 * option.fontMetrics.height();
        return {0, std::max(text, ObjectListModel::iconEdge) + 2 * Theme::gap};
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &item, const QModelIndex &index) const override
    {
        QStyleOptionViewItem option = item;
        initStyleOption(&option, index);
        const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);

        constexpr int edge = ObjectListModel::iconEdge;
        const QRect row = option.rect.adjusted(Theme::margin, Theme::gap, -Theme::margin, -Theme::gap);
        const QRect icon(row.left(), row.center().y() - edge / 2, edge, edge);
        const bool isSelected = option.state.testFlag(QStyle::State_Selected);
        if (isSelected) { // icons are drawn for the color of the list
            painter->setRenderHint(QPainter::Antialiasing);
            painter->setPen(Qt::NoPen);
            painter->setBrush(option.palette.base());
            painter->drawRoundedRect(icon, Theme::gap, Theme::gap);
        }
        const auto pixmap = index.data(Qt::DecorationRole).value<QPixmap>();
        if (!pixmap.isNull()) {
            QRectF target(QPointF(), pixmap.deviceIndependentSize());
            target.moveCenter(QRectF(icon).center());
            painter->drawPixmap(target.topLeft(), pixmap);
        }

        const QColor text = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
        const int left = icon.right() + 1 + Theme::margin;
        const int height = option.fontMetrics.height();
        QRect line(left, row.center().y() - height, row.right() - left, height);
        const auto draw = [&](const QColor &color, const QString &words) {
            painter->setPen(color);
            painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                              option.fontMetrics.elidedText(words, Qt::ElideMiddle, line.width()));
        };
        draw(text, index.data(Qt::DisplayRole).toString());
        line.translate(0, height);
        const QString type = index.data(ObjectListModel::TypeRole).toString();
        const QString path = index.data(ObjectListModel::PathRole).toString();
        draw(isSelected ? text : Theme::muted(option.palette),
             path.isEmpty() ? type : LocalizationHelper::coreString(u"%1 in %2"_s).arg(type, path));
    }
};

} // namespace

ObjectSelector::ObjectSelector(QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , m_model(new ObjectListModel(this))
    , m_search(new SearchLine(this))
    , m_classes(new KdComboBox(this))
    , m_list(new QListView(this))
    , m_empty(new QLabel(this))
    , m_offers(new QHBoxLayout)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    m_classes->setAccessibleName(LocalizationHelper::coreString(u"Type"_s));
    m_list->setAccessibleName(LocalizationHelper::coreString(u"Objects"_s));
    m_list->setModel(m_model);
    m_list->setItemDelegate(new ObjectDelegate(m_list));
    m_list->setUniformItemSizes(true);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setFrameShape(QFrame::NoFrame);
    m_search->setView(m_list);
    m_empty->setWordWrap(true);
    m_empty->setAlignment(Qt::AlignCenter);
    Theme::setTextColor(m_empty, &Theme::muted);
    setFocusProxy(m_search);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(Theme::margin, Theme::margin, Theme::margin, Theme::margin);
    layout->setSpacing(Theme::margin);
    auto *top = new QHBoxLayout;
    top->setSpacing(Theme::gap);
    top->addWidget(m_search, 1);
    top->addWidget(m_classes);
    layout->addLayout(top);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_empty, 1);
    m_offers->setSpacing(Theme::gap);
    m_offers->addStretch(1);
    layout->addLayout(m_offers);

    connect(m_search, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_model->setSearch(text);
        updateRows();
    });
    connect(m_search, &SearchLine::chosen, this, &ObjectSelector::choose);
    connect(m_list, &QListView::clicked, this, &ObjectSelector::choose);
    connect(m_list, &QListView::activated, this, &ObjectSelector::choose);
    connect(m_classes, &QComboBox::activated, this, [this] {
        m_model->setClass(m_classes->currentData().toString());
        updateRows();
        m_search->setFocus();
    });
    connect(m_model, &ObjectListModel::emptied, this, &QWidget::close);
}

void ObjectSelector::setObjects(const QList<DesignerObject *> &objects, const DesignerObject *current)
{
    m_model->setObjects(objects);
    fillClasses();
    updateRows();
    if (const int row = m_model->rowOf(current); row >= 0) {
        m_list->setCurrentIndex(m_model->index(row));
        m_list->scrollTo(m_model->index(row), QAbstractItemView::PositionAtCenter);
    }
}

void ObjectSelector::fillClasses()
{
    const QStringList classes = m_model->classes();
    m_classes->clear();
    m_classes->addItem(LocalizationHelper::coreString(u"All types"_s), QString());
    for (const QString &name : classes) {
        const DesignerFactory *factory = DesignerFactory::instance();
        const QString title = factory ? factory->displayNameForClass(name) : QString();
        m_classes->addItem(title.isEmpty() ? name : title, name);
    }
    m_classes->setVisible(classes.size() > 1);
}

void ObjectSelector::setSearch(const QString &text)
{
    m_search->setText(text);
    m_search->selectAll();
}

void ObjectSelector::updateRows()
{
    const bool isEmpty = m_model->rowCount() == 0;
    m_list->setVisible(!isEmpty);
    m_empty->setVisible(isEmpty);
    m_empty->setText(m_model->objectCount() == 0
                         ? LocalizationHelper::coreString(u"The project has no object that fits here."_s)
                         : LocalizationHelper::coreString(u"No object has \"%1\" in its name or type."_s)
                               .arg(m_search->text()));
    if (!isEmpty && !m_list->currentIndex().isValid()) {
        m_list->setCurrentIndex(m_model->index(0));
    }
}

void ObjectSelector::offerNothing(const QString &text)
{
    auto *button = new QPushButton(text, this);
    button->setAutoDefault(false);
    m_offers->insertWidget(0, button);
    connect(button, &QPushButton::clicked, this, [this] {
        emit nothingChosen();
        close();
    });
}

void ObjectSelector::offerNew(const QString &className)
{
    const DesignerFactory *factory = DesignerFactory::instance();
    const QString title = factory ? factory->displayNameForClass(className) : QString();
    auto *button = new QPushButton(
        LocalizationHelper::coreString(u"New %1…"_s).arg(title.isEmpty() ? className : title), this);
    button->setAutoDefault(false);
    m_offers->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, className] {
        emit newObjectRequested(className);
        close();
    });
}

void ObjectSelector::openAt(const QWidget *widget)
{
    ensurePolished();
    const int rowHeight = m_list->sizeHintForRow(0) > 0 ? m_list->sizeHintForRow(0) : 40;
    const int rows = std::clamp(int(m_model->objectCount()), 2, mostRows);
    m_list->setMinimumHeight(rows * rowHeight);
    resize(std::max(popupWidth, sizeHint().width()), sizeHint().height());
    m_list->setMinimumHeight(0);
    const QRect area = widget->screen()->availableGeometry();
    QPoint corner = widget->mapToGlobal(QPoint(widget->width() - width(), widget->height()));
    if (corner.y() + height() > area.bottom()) {
        corner.setY(widget->mapToGlobal(QPoint()).y() - height());
    }
    move(std::clamp(corner.x(), area.left(), std::max(area.left(), area.right() - width())),
         std::max(area.top(), corner.y()));
    show();
    m_search->setFocus(Qt::PopupFocusReason);
}

void ObjectSelector::choose(const QModelIndex &index)
{
    if (DesignerObject *object = m_model->object(index.row())) {
        emit chosen(object);
        close();
    }
}

void ObjectSelector::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QFrame::keyPressEvent(event);
}

} // namespace Halvane::Corvex::Designer
