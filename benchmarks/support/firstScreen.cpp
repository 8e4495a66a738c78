// SPDX-License-Identifier: MIT
// firstScreen FOLDER: the window of the preview, until it has drawn the first screen of a build.
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
