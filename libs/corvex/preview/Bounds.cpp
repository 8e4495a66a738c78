// SPDX-License-Identifier: MIT
#include "corvex/preview/Bounds.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>
#include <exception>
#include <sys/resource.h>
#include <unistd.h>

namespace Halvane::Corvex::Preview {

namespace {

constexpr qsizetype placeSize = 512;
constexpr rlim_t mostOpenFiles = 512;
constexpr rlim_t longestWritten = rlim_t(256) * 1024 * 1024;

//! A mapped file, whose contents remain however the process ends.
uchar *s_place = nullptr;
QString s_current;
bool s_isSet = false;

void limit(decltype(RLIMIT_AS) resource, rlim_t most)
{
    rlimit limits{};
    if (getrlimit(resource, &limits) == 0) {
        limits.rlim_cur = std::min(most, limits.rlim_max);
        setrlimit(resource, &limits);
    }
}

#ifndef __SANITIZE_ADDRESS__
rlim_t addressesInUse()
{
    QFile file(QStringLiteral("/proc/self/statm")); // the first number, in pages
    return file.open(QIODevice::ReadOnly)
               ? file.readLine().split(' ').constFirst().toULongLong() * getpagesize()
               : 0;
}
#endif

void mapPlace(const QString &folder)
{
    static QFile file;
    file.setFileName(folder + QLatin1StringView(Bounds::placeFile));
    if (file.open(QIODevice::ReadWrite | QIODevice::Truncate) && file.resize(placeSize)) {
        s_place = file.map(0, placeSize);
    }
}

} // namespace

void Bounds::set(const QString &folder)
{
    mapPlace(folder);
    s_isSet = true;
#ifndef __SANITIZE_ADDRESS__ // which maps far more than it uses
    limit(RLIMIT_AS, rlim_t(memory) + addressesInUse());
#endif
    limit(RLIMIT_NOFILE, mostOpenFiles);
    limit(RLIMIT_FSIZE, longestWritten);
    limit(RLIMIT_CORE, 0);
    std::signal(SIGXFSZ, SIG_IGN);            // let writes fail instead
    std::set_terminate([] { std::abort(); }); // the parent process reports the error
    renew();
}

void Bounds::renew()
{
    rusage used{};
    if (s_isSet && getrusage(RUSAGE_SELF, &used) == 0) {
        limit(RLIMIT_CPU, rlim_t(used.ru_utime.tv_sec + used.ru_stime.tv_sec + 1 + processorSeconds));
    }
}

QString Bounds::enter(const QString &place)
{
    if (s_place) {
        const QByteArray text = place.toUtf8().left(placeSize - 1);
        std::memcpy(s_place, text.constData(), size_t(text.size()) + 1);
    }
    return std::exchange(s_current, place);
}

} // namespace Halvane::Corvex::Preview
