// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
//! Read by LeakSanitizer: Qt's QML engine keeps what its loader thread was about when the engine is deleted.
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions()
{
    return "leak:libQt6Qml.so\n";
}
extern "C" Q_DECL_EXPORT const char *__lsan_default_options()
{
    return "print_suppressions=0";
}
#endif

//! Runs all tests of a program under one application object on Qt's offscreen platform, so that fonts and
//! images work on a machine without a display.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Tests never read or write the settings of the person who runs them.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(home.path()));
    qputenv("LC_ALL", "C.UTF-8");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
