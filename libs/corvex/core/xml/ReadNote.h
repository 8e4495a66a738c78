// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QList>
#include <QString>

#include <array>

namespace Halvane::Corvex::Designer {

//! Something in a file that the reader did not take over as it stands.
struct CORVEX_EXPORT ReadNote
{
    enum Kind {
        Kept,    //!< written back as it was when the object is saved
        Dropped, //!< gone once the object is saved
    };
    Kind kind;
    qint64 line;
    qint64 column;
    QString place; //!< the path of the object
    QString message;

    //! "line:column: place: message".
    QString toString() const;
};

/*! The notes of one reading: 10,000 of each kind, so that a file that is nothing but oddities does not become
   gigabytes of notes. One more note tells where the others begin and how many they are. */
class CORVEX_EXPORT ReadNoteList
{
public:
    //! Counts one more of that kind; false when it needs no note of its own.
    bool count(ReadNote::Kind kind);
    //! A note that count() asked for.
    void append(const ReadNote &note);
    //! Adds what there is to say about notes that were only counted.
    void finish();

    const QList<ReadNote> &list() const { return m_notes; }

private:
    struct Rest
    {
        qsizetype count = 0; //!< of all notes of the kind
        ReadNote first = {}; //!< the first that is not in the list
    };
    QList<ReadNote> m_notes;
    std::array<Rest, 2> m_rests;
};

} // namespace Halvane::Corvex::Designer
