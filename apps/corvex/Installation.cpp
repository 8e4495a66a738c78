// SPDX-License-Identifier: MIT
#include "Installation.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/editing/words/Suggestion.h"
#include "corvex/hardware/Configuration.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"

#include "terminal/Advice.h"
#include "terminal/Call.h"
#include "terminal/Terminal.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

using namespace Designer;

namespace {

QString besideProgram(const char *relativePath)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + QLatin1StringView(relativePath));
}

//! Collects the library's warnings within a scope. Elsewhere they are dropped, because the verbs report the
//! same problems in their own words.
class WarningCollector
{
public:
    WarningCollector()
    {
        messages().clear();
        m_previous = qInstallMessageHandler(collect);
    }
    ~WarningCollector() { qInstallMessageHandler(m_previous); }
    Q_DISABLE_COPY_MOVE(WarningCollector)

    static QStringList &messages()
    {
        static QStringList collected;
        return collected;
    }

private:
    static void collect(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        if (type != QtDebugMsg && type != QtInfoMsg) {
            messages().append(message);
        }
    }

    QtMessageHandler m_previous;
};

bool isFolder(const Call &call, const QString &option)
{
    const QString path = call.value(option);
    if (!call.isSet(option) || QFileInfo(path).isDir()) {
        return true;
    }
    call.failed(u"The folder \"%1\" of --%2 does not exist."_s.arg(path, option));
    return false;
}

} // namespace

ExitCode Installation::loadFactory(const Call &call)
{
    if (!isFolder(call, u"plugins"_s)) {
        return ExitCode::File;
    }
    const QString own = call.value(u"plugins"_s);
    const QString home = own.isEmpty() ? besideProgram(CORVEX_PROGRAM_TO_LIBRARY) : own;
    const WarningCollector collector;
    if (!DesignerFactory::createInstance(home)) {
        return call.failed(
            u"The folder \"%1\" with the plug-ins does not exist. Install the program again, or "
            "name another folder with --plugins."_s.arg(home));
    }
    if (!own.isEmpty()) {
        DesignerFactory::instance()->loadPlugins(own);
    }
    for (const QString &message : std::as_const(WarningCollector::messages())) {
        call.terminal().complain(message);
    }
    return ExitCode::Done;
}

ConfigurationContainer *Installation::loadModels(const Call &call)
{
    if (!isFolder(call, u"configurations"_s)) {
        return nullptr;
    }
    const QString own = call.value(u"configurations"_s);
    const QString home = own.isEmpty() ? besideProgram(CORVEX_PROGRAM_TO_DATA) : own;
    const WarningCollector collector;
    const bool loaded = HardwareConfigurations::createInstance(home);
    for (const QString &message : std::as_const(WarningCollector::messages())) {
        call.terminal().complain(message);
    }
    if (!loaded || HardwareConfigurations::instance()->installed()->configurations().isEmpty()) {
        call.failed(
            u"\"%1/Configurations\" contains no device models. Install the program again, or name "
            "another folder with --configurations; it has a folder \"Configurations\" with one folder "
            "for each model."_s.arg(home));
        return nullptr;
    }
    return HardwareConfigurations::instance()->installed();
}

QString Installation::unknownModel(const QString &name, const ConfigurationContainer &models)
{
    QStringList names;
    for (const Configuration *model : models.configurations()) {
        names.append(model->getIdName());
    }
    return Advice::complete({Suggestion::unknown(u"device model"_s, name, names, {}), EditRefusal::Models});
}

} // namespace Halvane::Corvex::Tool
