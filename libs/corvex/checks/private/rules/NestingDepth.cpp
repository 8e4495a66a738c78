// SPDX-License-Identifier: MIT
#include "corvex/checks/private/rules/NestingDepth.h"

#include <QList>

#include <algorithm>

namespace Halvane::Corvex::Designer {

namespace {

bool isOperatorSign(QChar c)
{
    return QStringView(u"+-*/%&|^~<>=!?").contains(c);
}

//! The position of the quote at the end of the text that begins at \a place.
qsizetype endOfText(QStringView code, qsizetype place)
{
    const QChar quote = code[place];
    for (++place; place < code.size() && code[place] != quote; ++place) {
        place += code[place] == u'\\' ? 1 : 0;
    }
    return place;
}

//! The code between two parentheses, or outside of all.
struct Level
{
    bool isList = false;       //!< Its commas separate independent parts.
    qsizetype operators = 0;   //!< In the present part.
    qsizetype deepest = 0;     //!< The maximum depth of the operands.
    qsizetype deepestPart = 0; //!< Of the previous parts.

    qsizetype depth() const { return std::max(deepestPart, operators + deepest); }
    void beginPart() { *this = {isList, 0, 0, depth()}; }
};

} // namespace

qsizetype findTooDeepNesting(QStringView code)
{
    QList<Level> levels{Level()};
    qsizetype members = 0; // of the path at the current position: a.b.c
    for (qsizetype i = 0; i < code.size(); ++i) {
        const QChar c = code[i];
        Level &level = levels.last();
        members = c == u'.' ? members + 1 : (c.isLetterOrNumber() || c == u'_') ? members : 0;
        if (c == u'"' || c == u'\'') {
            i = endOfText(code, i);
        } else if (c == u'(' || c == u'[' || c == u'{') {
            levels.append(Level{c != u'('});
        } else if ((c == u')' || c == u']' || c == u'}') && levels.size() > 1) {
            const qsizetype inner = levels.takeLast().depth() + 1;
            levels.last().deepest = std::max(levels.last().deepest, inner);
        } else if (c == u';' || (c == u',' && level.isList)) {
            level.beginPart();
        } else if (c == u',' || (isOperatorSign(c) && (i == 0 || !isOperatorSign(code[i - 1])))) {
            ++level.operators;
        }
        if (levels.size() > deepestNesting || members > deepestNesting
            || levels.last().depth() > deepestNesting) {
            return i;
        }
    }
    return -1;
}

} // namespace Halvane::Corvex::Designer
