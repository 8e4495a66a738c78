// SPDX-License-Identifier: MIT
#pragma once

namespace Halvane::Corvex::Nova {

//! Light or dark colors, as the user has set or as the desktop has them.
class DesktopLook
{
public:
    //! Sets the theme of the application.
    static void apply();
    //! Whether the desktop uses dark colors. Reads the palette that the platform gave the application, so
    //! call it first before a theme is set.
    static bool isDesktopDark();
};

} // namespace Halvane::Corvex::Nova
