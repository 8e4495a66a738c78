// SPDX-License-Identifier: MIT
// The output on a terminal while the program works.
#include "corvex/common/files/FolderLock.h"

#include "Sandbox.h"

#include <QProcess>
#include <QThread>

#include <cstdlib>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Test {

namespace {

//! The output on standard error in a terminal, while the folder is locked for some time.
QByteArray seen(const QStringList &arguments, const QString &locked, int milliseconds)
{
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK);
    EXPECT_TRUE(terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0);
    QProcess program;
    program.setStandardErrorFile(QString::fromLatin1(ptsname(terminal)));
    Common::FolderLock lock(locked, Common::FolderLock::Kind::Exclusive);
    program.start(QStringLiteral(CORVEX_PROGRAM), arguments);
    EXPECT_TRUE(program.waitForStarted());
    QThread::msleep(ulong(milliseconds));
    lock.release();
    EXPECT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 0);
    QByteArray bytes(4096, '\0');
    bytes.truncate(std::max<ssize_t>(read(terminal, bytes.data(), size_t(bytes.size())), 0));
    close(terminal);
    return bytes;
}

} // namespace

TEST(ProgressLineTest, LongWorkShowsALineAndClearsIt)
{
    const Sandbox sandbox;
    sandbox.makeProject({});
    const QString file = sandbox.path(u"Pump/Pump.kdproj"_s);
    const QString folder = sandbox.path(u"Pump"_s);
    constexpr int longer = 1500; // longer than work for which nothing is shown
    const QByteArray line = seen({u"tree"_s, file}, folder, longer);
    EXPECT_TRUE(line.contains("Waiting for another program that uses ")) << line.constData();
    EXPECT_TRUE(line.endsWith("\r\033[K")) << line.constData();
    EXPECT_EQ(seen({u"tree"_s, file}, folder, 0), QByteArray());
    EXPECT_EQ(seen({u"tree"_s, file, u"--json"_s}, folder, longer), QByteArray());
}

} // namespace Halvane::Corvex::Test
