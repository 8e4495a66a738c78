// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/widgets/IconSet.h"
#include "corvex/widgets/Theme.h"

#include "Pictures.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Gallery {

using namespace Designer;

namespace {

constexpr int columns = 4;

void addIcon(QGridLayout *grid, const QIcon &icon, const QString &name)
{
    auto *picture = new QLabel;
    picture->setPixmap(icon.pixmap(QSize(IconSet::size, IconSet::size), picture->devicePixelRatioF()));
    const int place = grid->count() / 2;
    grid->addWidget(picture, place / columns, place % columns * 2);
    grid->addWidget(new QLabel(name), place / columns, place % columns * 2 + 1);
}

} // namespace

//! All actions and all classes. A class without an icon is an error.
void Pictures::drawIcons()
{
    QWidget page;
    auto *grid = new QGridLayout(&page);
    grid->setHorizontalSpacing(Theme::margin);
    for (int icon = 0; icon < IconSet::IconCount; ++icon) {
        addIcon(grid, IconSet::icon(IconSet::Icon(icon)), QString::number(icon));
    }
    const DesignerFactory *factory = DesignerFactory::instance();
    QStringList names = factory->creatableNames() + factory->objectNames();
    names.removeDuplicates();
    for (const QString &name : std::as_const(names)) {
        const QIcon icon = IconSet::objectIcon({name});
        if (icon.isNull()) {
            m_errors.append(u"%1: The class has no icon."_s.arg(name));
        } else {
            addIcon(grid, icon, name);
        }
    }
    page.show();
    save(page, u"icons"_s);
}

} // namespace Halvane::Corvex::Gallery
