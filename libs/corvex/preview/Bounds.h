// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Halvane::Corvex::Preview {

/*! What the process of a preview may use. It ends at these bounds, as Qt ends where memory is short, and
   leaves in a file at which place that was, for the program that has started it. Without set() nothing is
   bounded. */
class Bounds
{
public:
    //! Addresses, beside those that the program has before: drivers of displays reserve many.
    static constexpr qint64 memory = qint64(2) * 1024 * 1024 * 1024;
    static constexpr int processorSeconds = 60;                     //!< from one renewal to the next
    static constexpr qint64 longestFile = qint64(32) * 1024 * 1024; //!< of those that a build is made of

    //! In the folder that set() is given: the last place in UTF-8, with a zero behind it.
    static constexpr char placeFile[] = "/place";

    //! Once. The folder is there.
    static void set(const QString &folder);
    //! Gives a new stretch of processor time.
    static void renew();
    //! The element or screen whose turn it is, as a text for the user; the one before comes back.
    static QString enter(const QString &place);
};

} // namespace Halvane::Corvex::Preview
