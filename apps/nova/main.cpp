// SPDX-License-Identifier: MIT
#include "Program.h"

#include <QApplication>
#include <QLoggingCategory>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Halvane"));
    QApplication::setApplicationName(QStringLiteral("Corvex Nova"));
    QApplication::setApplicationDisplayName(QStringLiteral("Corvex Nova"));
    QApplication::setApplicationVersion(QStringLiteral(CORVEX_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("corvex-nova"));
    // The library reports details for developers there.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    return Halvane::Corvex::Nova::Program::run();
}
