// SPDX-License-Identifier: MIT
#include "Output.h"

#include <cstdio>

namespace Halvane::Corvex::Preview {

namespace {

//! Removes control characters: a script may write anything, and a terminal would interpret it.
QByteArray withoutCommands(QString text)
{
    for (QChar &character : text) {
        if (character.category() == QChar::Other_Control && character != u'\n' && character != u'\t') {
            character = QChar::ReplacementCharacter;
        }
    }
    return text.toUtf8();
}

} // namespace

void complain(const QString &message)
{
    std::fprintf(stderr, "corvex: %s\n", withoutCommands(message).constData());
}

void print(const QString &line)
{
    std::printf("%s\n", withoutCommands(line).constData());
}

} // namespace Halvane::Corvex::Preview
