// SPDX-License-Identifier: MIT
#include "Program.h"

#include <QApplication>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Halvane"));
    QApplication::setApplicationName(QStringLiteral("Corvex Nova"));
    QApplication::setApplicationDisplayName(QStringLiteral("Corvex Nova"));
    QApplication::setApplicationVersion(QStringLiteral(CORVEX_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("corvex-nova"));
    return Halvane::Corvex::Nova::Program::run();
}
