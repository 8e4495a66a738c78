// SPDX-License-Identifier: MIT
// measure COMMAND ARGUMENT...: runs a command, discards its output, and prints its exit status, its duration
// and its processor time in seconds, and its peak memory in bytes. A small program of its own, because a
// process inherits the peak memory of its parent.
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

double seconds(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        return 2;
    }
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        const int nothing = open("/dev/null", O_RDWR);
        dup2(nothing, STDIN_FILENO);
        dup2(nothing, STDOUT_FILENO);
        execvp(argv[1], argv + 1);
        _exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || wait4(child, &status, 0, &usage) != child) {
        return 1;
    }
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    std::printf("%d %.9f %.9f %lld\n", WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status),
                taken.count(), seconds(usage.ru_utime) + seconds(usage.ru_stime),
                static_cast<long long>(usage.ru_maxrss) * 1024);
    return 0;
}
