// SPDX-License-Identifier: MIT
#include <QGuiApplication>

#include <gtest/gtest.h>

//! Runs all tests of a program under one GUI application object on Qt's offscreen platform, so that fonts and
//! images work on a machine without a display.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Tests never read or write the settings and the temporary files of the person who runs them.
    qputenv("LC_ALL", "C.UTF-8");
    testing::InitGoogleTest(&argc, argv);
    QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
