// SPDX-License-Identifier: MIT
#include "Confinement.h"

#include <QtGlobal>

#if defined(Q_OS_LINUX) && __has_include(<linux/landlock.h>) && __has_include(<linux/seccomp.h>)
#define CORVEX_CAN_CONFINE
#endif

#ifdef CORVEX_CAN_CONFINE
#include <QDir>
#include <QFile>

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

namespace Halvane::Corvex::Preview {

#ifdef CORVEX_CAN_CONFINE

namespace {

//! All that changes a file system, as the first version of Landlock knows it.
constexpr quint64 changes = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR
                            | LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR
                            | LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG
                            | LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO
                            | LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

void allow(int rules, const QString &folder, quint64 access)
{
    landlock_path_beneath_attr rule{};
    rule.allowed_access = access;
    rule.parent_fd = open(QFile::encodeName(folder).constData(), O_PATH | O_CLOEXEC);
    if (rule.parent_fd >= 0) {
        syscall(SYS_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
        close(rule.parent_fd);
    }
}

void closeFiles(const QStringList &folders)
{
    landlock_ruleset_attr handled{};
    handled.handled_access_fs = changes;
    const int rules = int(syscall(SYS_landlock_create_ruleset, &handled, sizeof(handled), 0));
    if (rules < 0) {
        return;
    }
    for (const QString &folder : folders) {
        QDir().mkpath(folder);
        allow(rules, folder, changes);
    }
    allow(rules, QStringLiteral("/dev"), LANDLOCK_ACCESS_FS_WRITE_FILE);
    // Temporary folders go when the program ends.
    allow(rules, QDir::tempPath(), LANDLOCK_ACCESS_FS_REMOVE_DIR);
    syscall(SYS_landlock_restrict_self, rules, 0);
    close(rules);
}

//! Sockets within the system remain: the display is behind one.
void closeNetworkAndPrograms()
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
    prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter);
}

} // namespace

void confine(const QStringList &folders)
{
    // Without it neither is given to programs of ordinary users.
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0) {
        closeFiles(folders);
        closeNetworkAndPrograms();
    }
}

#else

void confine(const QStringList &) { }

#endif

} // namespace Halvane::Corvex::Preview
