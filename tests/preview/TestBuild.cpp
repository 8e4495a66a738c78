// SPDX-License-Identifier: MIT
#include "TestBuild.h"

#include "corvex/common/TextHelper.h"
#include "corvex/common/files/FileHelper.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

TestBuild::TestBuild()
{
    static const bool isSoftware = [] {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        return true;
    }();
    Q_UNUSED(isSoftware)
}

void TestBuild::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytes);
    }
}

void TestBuild::addScreen(const QByteArray &name, const QByteArray &body) const
{
    write(u"qml_%1.qml"_s.arg(QString::fromLatin1(name)),
          "import QtQuick 1.1\r\nimport RuntimeObjects 2.0\r\nScreen {\r\n\tid: qml_" + name
              + "\r\n\tobjectName: \"" + name
              + "\"\r\n\twidth: 200\r\n\theight: 100\r\n\tbrightness : 100\r\n" + body + "}\r\n");
}

void TestBuild::addVariable(const QString &name, Common::EnumHelper::VariableType type, const QVariant &value,
                            bool isPersistent)
{
    m_variables.insert(
        name, QVariantMap{{u"type"_s, int(type)}, {u"value"_s, value}, {u"persistent"_s, isPersistent}});
}

void TestBuild::writeConfiguration(const QString &defaultScreen, const QString &tag) const
{
    Common::FileHelper::variantToFile(QVariantMap{{u"defaultScreen"_s, defaultScreen},
                                                  {u"version"_s, Common::TextHelper::encryptString(tag)},
                                                  {u"variables"_s, m_variables}},
                                      path(u"config.kdrc"_s), false);
}

TestPanel::TestPanel(const TestBuild &build, const QString &stateFile)
{
    session.panel().watchdog().setLimit(300);
    isOpen =
        (stateFile.isEmpty() || session.keepStateIn(stateFile, &error)) && session.open(build.path(), &error);
    m_window = std::make_unique<PanelWindow>(session);
    session.settle();
}

QStringList TestPanel::run(const char *script)
{
    const auto shoot = [](const QString &) { return true; };
    return PreviewScript(session, *m_window, shoot).run(QString::fromUtf8(script).replace(u"; "_s, u"\n"_s));
}

QStringList TestPanel::problems()
{
    QStringList texts;
    for (const PanelProblem &problem : session.panel().problems().problems()) {
        texts.append(problem.toString());
    }
    return texts;
}

QString TestPanel::evaluate(const QString &code)
{
    return session.panel().engine().evaluate(code).toString();
}

} // namespace Halvane::Corvex::Preview
