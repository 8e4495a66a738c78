// SPDX-License-Identifier: MIT
// The program itself: it tells its version, and leaves all else to the library of verbs beside it.
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
    std::perror("corvex: The version cannot be written");
    return cannotRead;
}

#ifdef Q_OS_UNIX
//! A stream that the caller has closed gives its number to the next file that is opened, which would then get
//! what is printed. Here it is one that cannot be written to.
void occupyStandardStreams()
{
    int file = 0;
    do {
        file = open("/dev/null", O_RDONLY);
    } while (file >= 0 && file <= STDERR_FILENO);
    close(file);
}
#endif

//! Qt's remarks on the system's locale mean nothing here: whatever it is, texts are UTF-8.
void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

int main(int argc, char **argv)
{
#ifdef Q_OS_UNIX
    occupyStandardStreams();
    // Writing to a pipe that nobody reads any more, or more than a file may hold, is an error like others,
    // not the end of a build.
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
        // Which kind of application object is needed is for the verbs to say; this one only knows the system.
        const QCoreApplication application(argc, argv);
        arguments = QCoreApplication::arguments();
        verbs.setFileName(QCoreApplication::applicationDirPath() + QStringLiteral("/" CORVEX_VERBS_LIBRARY));
    }
    QCoreApplication::setApplicationName(QStringLiteral("corvex"));
    QCoreApplication::setApplicationVersion(QStringLiteral(CORVEX_VERSION));
    const auto run = reinterpret_cast<int (*)(const QStringList &)>(verbs.resolve("corvexRun"));
    if (!run) {
        std::fprintf(stderr, "corvex: %s Install the program together with its libraries.\n",
                     qUtf8Printable(verbs.errorString()));
        return cannotRead;
    }
    return run(arguments);
}
