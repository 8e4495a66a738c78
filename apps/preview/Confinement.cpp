// SPDX-License-Identifier: MIT
#include "Confinement.h"

#include <QtGlobal>

#if defined(Q_OS_LINUX) && __has_include(<linux/landlock.h>) && __has_include(<linux/seccomp.h>)
#define CORVEX_CAN_CONFINE
#endif

#ifdef CORVEX_CAN_CONFINE
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QStandardPaths>

#include <array>
#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <linux/filter.h>
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Preview {

#ifdef CORVEX_CAN_CONFINE

namespace {

//! All rights that change a file system, in the first version of Landlock.
constexpr quint64 changes = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR
                            | LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR
                            | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG
                            | LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO
                            | LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

constexpr quint64 reading = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
//! The rights that apply to files.
constexpr quint64 ofFiles = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_READ_FILE;

//! The folders from which Qt loads its parts at run time.
QStringList placesOfTheSystem()
{
    QStringList places{u"/usr/lib"_s,
                       u"/usr/lib64"_s,
                       u"/usr/libexec"_s,
                       u"/usr/share"_s,
                       u"/usr/local/lib"_s,
                       u"/usr/local/share"_s,
                       u"/lib"_s,
                       u"/lib64"_s,
                       u"/etc/fonts"_s,
                       u"/etc/ld.so.cache"_s,
                       u"/etc/localtime"_s,
                       u"/var/cache/fontconfig"_s,
                       u"/proc/self"_s,
                       u"/sys/devices/system/cpu"_s,
                       QCoreApplication::applicationDirPath(),
                       QLibraryInfo::path(QLibraryInfo::LibrariesPath),
                       QLibraryInfo::path(QLibraryInfo::PluginsPath),
                       QLibraryInfo::path(QLibraryInfo::QmlImportsPath)};
    places += QCoreApplication::libraryPaths();
    places += QStandardPaths::standardLocations(QStandardPaths::FontsLocation);
    for (const auto place : {QStandardPaths::GenericConfigLocation, QStandardPaths::GenericCacheLocation}) {
        places.append(QStandardPaths::writableLocation(place) + u"/fontconfig"_s);
    }
    return places;
}

//! Skips places that do not exist.
void allow(int rules, const QStringList &places, quint64 access)
{
    for (const QString &place : places) {
        landlock_path_beneath_attr rule{};
        rule.allowed_access = QFileInfo(place).isDir() ? access : access & ofFiles;
        rule.parent_fd = open(QFile::encodeName(place).constData(), O_PATH | O_CLOEXEC);
        if (rule.parent_fd >= 0) {
            syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
            close(rule.parent_fd);
        }
    }
}

bool closeFiles(const QStringList &readable, const QStringList &writable)
{
    landlock_ruleset_attr handled{};
    handled.handled_access_fs = changes | reading;
    const int rules = int(syscall(SYS_landlock_create_ruleset, &handled, sizeof(handled), 0));
    if (rules < 0) {
        return false;
    }
    allow(rules, placesOfTheSystem() + readable, reading);
    allow(rules, writable, changes | reading);
    allow(rules, {u"/dev/null"_s, u"/dev/zero"_s, u"/dev/random"_s, u"/dev/urandom"_s}, ofFiles);
    // Temporary folders are removed when the program ends.
    allow(rules, {QDir::tempPath()}, LANDLOCK_ACCESS_FS_REMOVE_DIR);
    const bool isClosed = syscall(SYS_landlock_restrict_self, rules, 0) == 0;
    close(rules);
    return isClosed;
}

//! Local sockets remain available, because the display needs one.
bool closeNetworkAndPrograms()
{
    constexpr quint32 lowHalf = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? 0 : 4;
    constexpr quint32 firstArgument = offsetof(seccomp_data, args) + lowHalf;
    auto steps = std::to_array<sock_filter>({
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_execve, 4, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_execveat, 3, 0),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_socket, 0, 3),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, firstArgument),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, AF_UNIX, 1, 0),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | EACCES),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    });
    sock_fprog filter{};
    filter.len = steps.size();
    filter.filter = steps.data();
    return prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace

bool confine(const QStringList &readable, const QStringList &writable)
{
    // Required for ordinary users to use either restriction.
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && closeFiles(readable, writable)
           && closeNetworkAndPrograms();
}

#else

bool confine(const QStringList &, const QStringList &)
{
    return false;
}

#endif

} // namespace Halvane::Corvex::Preview
