// SPDX-License-Identifier: MIT
// Replaces libFuzzer in ordinary builds: passes every file of a folder to a target, complete and truncated.
#include <QDirIterator>
#include <QFile>

#include <algorithm>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace {

int runs = 0;

void run(const QByteArray &input)
{
    // A copy of exactly this size, so that AddressSanitizer detects a read beyond its end.
    const std::vector<std::uint8_t> bytes(input.cbegin(), input.cend());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    ++runs;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    constexpr qsizetype cuts = 64;
    QDirIterator files(QString::fromLocal8Bit(argv[1]), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "cannot read %s\n", qPrintable(file.fileName()));
            return 1;
        }
        const QByteArray content = file.readAll();
        run(content);
        for (qsizetype end = 0; end < content.size(); end += std::max(content.size() / cuts, qsizetype(1))) {
            run(content.first(end));
        }
    }
    std::printf("%d inputs\n", runs);
    return runs > 0 ? 0 : 1;
}
