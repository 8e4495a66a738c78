// SPDX-License-Identifier: MIT
#include "corvex/core/xml/ReadNote.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

constexpr qsizetype mostNotes = 10'000;

} // namespace

QString ReadNote::toString() const
{
    return u"%1:%2: %3: %4"_s.arg(QString::number(line), QString::number(column), place, message);
}

bool ReadNoteList::count(ReadNote::Kind kind)
{
    return ++m_rests[kind].count <= mostNotes + 1;
}

void ReadNoteList::append(const ReadNote &note)
{
    Rest &rest = m_rests[note.kind];
    if (rest.count > mostNotes) {
        rest.first = note;
    } else {
        m_notes.append(note);
    }
}

void ReadNoteList::finish()
{
    for (const Rest &rest : m_rests) {
        if (rest.count > mostNotes + 1) {
            m_notes.append(rest.first);
            m_notes.last().message += u" There are %1 more problems of this kind."_s.arg(
                QString::number(rest.count - mostNotes - 1));
        } else if (rest.count > mostNotes) {
            m_notes.append(rest.first);
        }
    }
}

} // namespace Halvane::Corvex::Designer
