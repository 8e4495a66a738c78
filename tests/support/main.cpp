// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifdef __SANITIZE_ADDRESS__
//! Read by LeakSanitizer: when a QML engine is deleted, Qt leaks data of its loader thread.
extern "C" Q_DECL_EXPORT const char *__lsan_default_suppressions()
{
    return "leak:libQt6Qml.so\n";
}
extern "C" Q_DECL_EXPORT const char *__lsan_default_options()
{
    return "print_suppressions=0";
}
#endif

//! Runs all tests of a program with one application object on Qt's offscreen platform, so that fonts and
//! images work without a display.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Tests must not read or write the user's settings.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(home.path()));
    qputenv("LC_ALL", "C.UTF-8");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
