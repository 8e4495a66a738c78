// SPDX-License-Identifier: MIT
#include "window/WelcomePage.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include "UserSettings.h"
#include "actions/WindowActions.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;
using Common::LocalizationHelper;

namespace {

constexpr int pageWidth = 640;
constexpr QSize pictureSize(96, 60);
constexpr double titleScale = 1.8;

//! The preview picture in the folder of a project, within pictureSize; the icon of projects without one.
QIcon pictureOf(const QString &projectPath)
{
    QImageReader reader(QFileInfo(projectPath).dir().filePath(u"Preview.png"_s));
    const QSize size = reader.size();
    if (size.isValid()) {
        reader.setScaledSize(size.scaled(pictureSize, Qt::KeepAspectRatio));
        if (const QImage image = reader.read(); !image.isNull()) {
            return QPixmap::fromImage(image);
        }
    }
    return IconSet::objectIcon({u"Project"_s});
}

QLabel *heading(const QString &text)
{
    auto *label = new QLabel(text);
    QFont bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    return label;
}

} // namespace

WelcomePage::WelcomePage(const QList<QAction *> &actions, QWidget *parent)
    : QWidget(parent)
    , m_recent(new QListWidget)
{
    auto *title = new QLabel(QApplication::applicationDisplayName());
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * titleScale);
    title->setFont(large);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Theme::margin);
    for (QAction *action : actions) {
        auto *button = new QPushButton(action->icon(), WindowActions::titleOf(action));
        button->setToolTip(WindowActions::tipOf(action));
        connect(button, &QPushButton::clicked, action, &QAction::trigger);
        buttons->addWidget(button);
    }
    buttons->addStretch(1);
    m_recent->setIconSize(pictureSize);
    m_recent->setUniformItemSizes(true);
    m_recent->setAccessibleName(LocalizationHelper::coreString(u"Recent projects"_s));
    connect(m_recent, &QListWidget::itemActivated, this,
            [this](const QListWidgetItem *item) { emit openRequested(item->data(Qt::UserRole).toString()); });

    auto *column = new QWidget;
    column->setMaximumWidth(pageWidth);
    column->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto *texts = new QVBoxLayout(column);
    texts->setSpacing(2 * Theme::margin);
    texts->addWidget(title);
    texts->addLayout(buttons);
    texts->addWidget(heading(m_recent->accessibleName()));
    texts->addWidget(m_recent, 1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(4 * Theme::margin, 4 * Theme::margin, 4 * Theme::margin, 4 * Theme::margin);
    layout->addStretch(1);
    layout->addWidget(column, 8);
    layout->addStretch(1);
    refresh();
}

void WelcomePage::refresh()
{
    m_recent->clear();
    for (const QString &path : UserSettings::recentProjects()) {
        const QFileInfo file(path);
        auto *item = new QListWidgetItem(
            pictureOf(path), u"%1\n%2"_s.arg(file.completeBaseName(), QDir::toNativeSeparators(file.path())));
        item->setData(Qt::UserRole, path);
        if (!file.exists()) {
            item->setFlags(Qt::NoItemFlags);
        }
        m_recent->addItem(item);
    }
    if (m_recent->count() == 0) {
        auto *none = new QListWidgetItem(LocalizationHelper::coreString(u"No projects yet"_s));
        none->setFlags(Qt::NoItemFlags);
        m_recent->addItem(none);
    }
}

} // namespace Halvane::Corvex::Nova
