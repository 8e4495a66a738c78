// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <csignal>
#include <sys/resource.h>

//! While it exists, files cannot grow beyond a number of bytes, as if the disk were full.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

private:
    void (*m_handler)(int);
    rlimit m_before{};
};
