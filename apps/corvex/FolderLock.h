// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Tool {

//! Keeps other runs of the program out of a folder. The system lets go of it when the process ends, however
//! that happens.
class FolderLock
{
public:
    enum class Mode {
        Try, //!< isTaken() tells when another process has it
        Wait //!< until no other process has it
    };

    explicit FolderLock(const QString &folder, Mode mode = Mode::Try);
    ~FolderLock();
    Q_DISABLE_COPY_MOVE(FolderLock)

    bool isTaken() const { return m_isTaken; }

private:
    int m_file;
    bool m_isTaken;
};

} // namespace Halvane::Corvex::Tool
