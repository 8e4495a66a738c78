// SPDX-License-Identifier: MIT
#include "window/DesktopLook.h"

#include "corvex/widgets/Theme.h"

#include "UserSettings.h"

#include <QApplication>

namespace Halvane::Corvex::Nova {

using Designer::Theme;

bool DesktopLook::isDesktopDark()
{
    static const bool isDark = Theme::isDark(QApplication::palette());
    return isDark;
}

void DesktopLook::apply()
{
    const bool isDesktop = isDesktopDark();
    const UserSettings::Look look = UserSettings::look();
    const bool isDark = look == UserSettings::Look::Desktop ? isDesktop : look == UserSettings::Look::Dark;
    Theme::apply(isDark ? Theme::Dark : Theme::Light);
}

} // namespace Halvane::Corvex::Nova
