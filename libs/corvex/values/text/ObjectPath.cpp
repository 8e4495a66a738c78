// SPDX-License-Identifier: MIT
#include "corvex/values/text/ObjectPath.h"

namespace Halvane::Corvex::Designer {

namespace {

//! The position of the first sequence of whole segments equal to \a name; -1 if it does not occur.
qsizetype indexOfSegments(QStringView path, QStringView name, qsizetype from = 0)
{
    if (name.isEmpty()) {
        return -1;
    }
    qsizetype place = path.indexOf(name, from);
    while (place >= 0) {
        const qsizetype end = place + name.size();
        if ((place == 0 || path[place - 1] == u'.') && (end == path.size() || path[end] == u'.')) {
            return place;
        }
        place = path.indexOf(name, place + 1);
    }
    return -1;
}

} // namespace

bool ObjectPath::isValid(QStringView path)
{
    bool segmentStart = true;
    bool firstSegment = true;
    for (const QChar c : path) {
        if (c == u'.') {
            if (segmentStart) {
                return false;
            }
            segmentStart = true;
            firstSegment = false;
            continue;
        }
        const bool digit = c.isDigit();
        if (!c.isLetter() && c != u'_' && (!digit || (segmentStart && !firstSegment))) {
            return false;
        }
        segmentStart = false;
    }
    return !segmentStart;
}

QStringView ObjectPath::firstSegment(QStringView path)
{
    const qsizetype dot = path.indexOf(u'.');
    return dot < 0 ? path : path.first(dot);
}

QStringView ObjectPath::lastSegment(QStringView path)
{
    return path.sliced(path.lastIndexOf(u'.') + 1);
}

bool ObjectPath::contains(QStringView path, QStringView name)
{
    return indexOfSegments(path, name) >= 0;
}

bool ObjectPath::replace(QString &path, QStringView oldName, QStringView newName)
{
    qsizetype place = indexOfSegments(path, oldName);
    if (place < 0 || newName.isEmpty()) {
        return false;
    }
    QString result;
    qsizetype copied = 0;
    while (place >= 0) {
        result += QStringView(path).sliced(copied, place - copied);
        result += newName;
        copied = place + oldName.size();
        place = indexOfSegments(path, oldName, copied);
    }
    result += QStringView(path).sliced(copied);
    path = result;
    return true;
}

} // namespace Halvane::Corvex::Designer
