// SPDX-License-Identifier: MIT
#include <QApplication>

#include <gtest/gtest.h>

//! In the place of that of all other tests: widgets need an application object of their own kind.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
