// SPDX-License-Identifier: MIT
// What any program that is built on Qt pays for its start.
#include <QCoreApplication>

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    return 0;
}
