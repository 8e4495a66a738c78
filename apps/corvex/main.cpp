// SPDX-License-Identifier: MIT
// The executable prints its version itself and passes everything else to the library of verbs.
#include <QCoreApplication>
#include <QLibrary>
#include <QStringList>

#include <csignal>
#include <cstdio>
#include <cstring>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

constexpr int cannotRead = 3;

bool asksForVersion(int argc, char **argv)
{
    return argc == 2 && (std::strcmp(argv[1], "--version") == 0 || std::strcmp(argv[1], "-v") == 0);
}

int printVersion()
{
    if (std::puts("corvex " CORVEX_VERSION) >= 0 && std::fflush(stdout) == 0) {
        return 0;
    }
    std::perror("corvex: Cannot write the version");
    return cannotRead;
}

#ifdef Q_OS_UNIX
//! A standard stream that the caller has closed would give its number to the next file that is opened, and
//! that file would receive the output. Occupy the number with a file that cannot be written to.
void occupyStandardStreams()
{
    int file = 0;
    do {
        file = open("/dev/null", O_RDONLY);
    } while (file >= 0 && file <= STDERR_FILENO);
    close(file);
}
#endif

//! Ignore Qt's warnings about the system's locale; the program always uses UTF-8.
void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

int main(int argc, char **argv)
{
#ifdef Q_OS_UNIX
    occupyStandardStreams();
    // Turn writes to a closed pipe, or beyond the file size limit, into ordinary errors.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
#endif
    if (asksForVersion(argc, argv)) {
        return printVersion();
    }
    qInstallMessageHandler(ignoreMessage);
    QStringList arguments;
    QLibrary verbs;
    {
        // The verbs create the application object that they need; this one only serves the version.
        const QCoreApplication application(argc, argv);
        arguments = QCoreApplication::arguments();
        verbs.setFileName(QCoreApplication::applicationDirPath() + QStringLiteral("/" CORVEX_VERBS_LIBRARY));
    }
    QCoreApplication::setApplicationName(QStringLiteral("corvex"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVEX_VERSION));
    const auto run = reinterpret_cast<int (*)(const QStringList &)>(verbs.resolve("corvexRun"));
    if (!run) {
        std::fprintf(stderr, "corvex: %s Install the program again, with its libraries.\n",
                     qUtf8Printable(verbs.errorString()));
        return cannotRead;
    }
    return run(arguments);
}
