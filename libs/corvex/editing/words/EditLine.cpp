// SPDX-License-Identifier: MIT
#include "corvex/editing/words/EditLine.h"

#include "corvex/common/LocalizationHelper.h"

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

bool EditLine::read(const QString &line, QString &error)
{
    QString word;
    bool isInWord = false;
    bool isQuoted = false;
    words.clear();
    rest.clear();
    if (line.contains(QChar::Null)) {
        error = LocalizationHelper::coreString(u"The line contains a NUL character."_s);
        return false;
    }
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (isQuoted && c == u'\\' && i + 1 < line.size()) {
            const QChar next = line.at(++i);
            word += next == u'n' ? QChar(u'\n') : next == u't' ? QChar(u'\t') : next;
        } else if (c == u'"') {
            isQuoted = !isQuoted;
            isInWord = true;
        } else if (!isQuoted && (c == u' ' || c == u'\t')) {
            if (isInWord) {
                words.append(std::exchange(word, {}));
                if (words.size() == 2) {
                    rest = line.sliced(i).trimmed();
                }
            }
            isInWord = false;
        } else {
            word += c;
            isInWord = true;
        }
    }
    if (isQuoted) {
        error = LocalizationHelper::coreString(u"A quote is not closed."_s);
        return false;
    }
    if (isInWord) {
        words.append(word);
    }
    return true;
}

} // namespace Halvane::Corvex::Designer
