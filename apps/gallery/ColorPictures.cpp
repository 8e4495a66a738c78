// SPDX-License-Identifier: MIT
#include "corvex/core/DesignerFactory.h"
#include "corvex/widgets/ColorPicker.h"
#include "corvex/widgets/FontPicker.h"

#include "Pictures.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Gallery {

using namespace Designer;

//! The popups of colors and fonts.
void Pictures::drawColorPopups()
{
    QWidget field;
    field.show();
    auto *colors = new ColorPicker(&field);
    colors->setColor(QColor(0x15, 0x65, 0xC0, 200));
    colors->offer(u"In this project"_s,
                  {Qt::white, Qt::black, QColor(0xC6, 0x28, 0x28), QColor(0x15, 0x65, 0xC0),
                   QColor(0x2E, 0x7D, 0x32), QColor(0xFF, 0xC1, 0x07), QColor(0x60, 0x7D, 0x8B), Qt::gray,
                   QColor(0, 0, 0, 60), QColor(0x80, 0, 0x80), Qt::transparent});
    colors->offerPicking();
    colors->open();
    save(*colors, u"popup-color"_s);
    colors->close();

    DesignerFactory *factory = DesignerFactory::instance();
    const QStringList before = factory->fontFamilies();
    factory->setFontFamilies({u"DejaVu Sans"_s, u"DejaVu Serif"_s});
    auto *fonts = new FontPicker(&field);
    QFont font(u"DejaVu Sans"_s);
    font.setPixelSize(24);
    font.setBold(true);
    fonts->setFont(font);
    fonts->open();
    save(*fonts, u"popup-font"_s);
    fonts->close();
    factory->setFontFamilies(before);
}

} // namespace Halvane::Corvex::Gallery
