// SPDX-License-Identifier: MIT
// firstScreen FOLDER: opens the window of the preview and ends when the first screen of a build is drawn.
#include "corvex/preview/window/PreviewWindow.h"

#include <QApplication>
#include <QQuickWidget>
#include <QQuickWindow>

#include <cstdlib>

using namespace Halvane::Corvex::Preview;

int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QApplication application(argc, argv);
    PreviewWindow window;
    QString error;
    if (argc != 2 || !window.open(QString::fromLocal8Bit(argv[1]), QString(), &error)) {
        return 1;
    }
    const auto *panel = window.findChild<QQuickWidget *>();
    QObject::connect(panel->quickWindow(), &QQuickWindow::afterRendering, [] { std::_Exit(0); });
    window.show();
    return QApplication::exec();
}
