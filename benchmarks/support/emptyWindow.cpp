// SPDX-License-Identifier: MIT
// The cost of any program with a Qt Quick window until its first frame is drawn.
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdlib>

int main(int argc, char **argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    QQmlApplicationEngine engine;
    engine.loadData("import QtQuick\nWindow { width: 800; height: 480; visible: true }");
    if (engine.rootObjects().isEmpty()) {
        return 1;
    }
    const auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().constFirst());
    QObject::connect(window, &QQuickWindow::afterRendering, [] { std::_Exit(0); });
    return QGuiApplication::exec();
}
