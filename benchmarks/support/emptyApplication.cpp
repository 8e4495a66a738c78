// SPDX-License-Identifier: MIT
// The cost of starting any Qt program.
#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    return 0;
}
