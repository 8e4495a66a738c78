// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>

#include <array>

namespace Halvane::Corvex::Designer {

//! A part of a file that was not read as it is.
struct CORVEX_EXPORT ReadNote
{
    enum Kind {
        Kept,    //!< written back unchanged when the object is saved
        Dropped, //!< lost when the object is saved
    };
    Kind kind;
    qint64 line;
    qint64 column;
    QString place; //!< the path of the object
    QString message;

    //! "line:column: place: message".
    QString toString() const;
};

//! The notes of one reading, limited to 10,000 of each kind, so that a bad file does not produce gigabytes of
//! notes. One more note gives the place of the next one and the number of the rest.
class CORVEX_EXPORT ReadNoteList
{
public:
    //! Counts a note of that kind. Returns false if it does not need to be added.
    bool count(ReadNote::Kind kind);
    //! Adds a note for which count() returned true.
    void append(const ReadNote &note);
    //! Adds the summary of the notes that were only counted.
    void finish();

    const QList<ReadNote> &list() const { return m_notes; }

private:
    struct Rest
    {
        qsizetype count = 0; //!< of all notes of the kind
        ReadNote first = {}; //!< the first one that was not added
    };
    QList<ReadNote> m_notes;
    std::array<Rest, 2> m_rests;
};

} // namespace Halvane::Corvex::Designer
