// SPDX-License-Identifier: MIT
#include "Program.h"

#include "corvex/core/DesignerFactory.h"
#include "corvex/hardware/ConfigurationContainer.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/project/Project.h"

#include "UserSettings.h"
#include "canvas/CanvasView.h"
#include "project/ProjectFiles.h"
#include "project/Workspace.h"
#include "window/DesktopLook.h"
#include "window/MainWindow.h"
#include "window/WindowDialogs.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTextStream>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Nova {

using namespace Designer;

namespace {

enum ExitCode { Done = 0, Usage = 2, File = 3 };

int fail(const QString &message, ExitCode code)
{
    QTextStream(stderr) << "corvex-nova: " << message << '\n';
    return code;
}

QString besideProgram(const char *relativePath)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u'/' + QLatin1StringView(relativePath));
}

//! Loads the plug-ins and the device models. Returns the reason if that is not possible.
QString load()
{
    const QString library = besideProgram(CORVEX_PROGRAM_TO_LIBRARY);
    if (!DesignerFactory::createInstance(library)) {
        return u"The folder \"%1\" with the plug-ins does not exist. Install the program again."_s.arg(
            library);
    }
    const QString data = besideProgram(CORVEX_PROGRAM_TO_DATA);
    if (!HardwareConfigurations::createInstance(data)
        || HardwareConfigurations::instance()->installed()->configurations().isEmpty()) {
        return u"\"%1/Configurations\" contains no device models. Install the program again."_s.arg(data);
    }
    return {};
}

bool showScreen(MainWindow &window, const QString &name)
{
    auto *screen = window.workspace()->project().screens()->getListItem(name);
    if (screen) {
        window.workspace()->reveal(screen);
    }
    return screen;
}

//! Runs when the project is open: shows the screen and, if wanted, saves a picture of the window and quits.
void continueWith(MainWindow &window, const QString &screen, const QString &picture)
{
    if (!screen.isEmpty() && !showScreen(window, screen)) {
        QCoreApplication::exit(fail(u"There is no screen \"%1\" in the project."_s.arg(screen), Usage));
        return;
    }
    if (picture.isEmpty()) {
        return;
    }
    // The pictures of the screens and the problems need a moment.
    QTimer::singleShot(1500, &window, [&window, picture] {
        QCoreApplication::exit(window.grab().save(picture)
                                   ? Done
                                   : fail(u"The picture \"%1\" cannot be written."_s.arg(picture), File));
    });
}

} // namespace

int Program::run()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Designs the screens of operator panels."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(u"FILE"_s, u"The .kdproj file of a project to open."_s, u"[FILE]"_s);
    const QCommandLineOption screen(u"screen"_s, u"Show this screen."_s, u"NAME"_s);
    const QCommandLineOption picture(u"screenshot"_s,
                                     u"Save a picture of the window as this PNG file and quit."_s, u"PNG"_s);
    parser.addOptions({screen, picture});
    parser.process(QCoreApplication::arguments());
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        return fail(u"Only one project can be opened."_s, Usage);
    }
    if (parser.isSet(screen) && files.isEmpty()) {
        return fail(u"--screen needs a project."_s, Usage);
    }
    DesktopLook::apply();
    UserSettings::startAutosaving();
    if (const QString reason = load(); !reason.isEmpty()) {
        return fail(reason, File);
    }
    const WindowDialogs dialogs;
    MainWindow window(*HardwareConfigurations::instance()->installed());
    window.show();
    const QString wanted = parser.value(screen);
    const QString shot = parser.value(picture);
    if (files.isEmpty()) {
        continueWith(window, {}, shot);
    } else {
        QObject::connect(&window.files(), &ProjectFiles::opened, &window, [&](bool isOpen) {
            if (isOpen) {
                continueWith(window, wanted, shot);
            } else if (!shot.isEmpty()) {
                QCoreApplication::exit(File);
            }
        });
        QTimer::singleShot(0, &window, [&] { window.files().open(files.constFirst()); });
    }
    return QCoreApplication::exec();
}

} // namespace Halvane::Corvex::Nova
