// SPDX-License-Identifier: MIT
#include "corvex/editing/words/Suggestion.h"

#include "corvex/common/LocalizationHelper.h"

#include <algorithm>
#include <numeric>
#include <vector>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

//! The edit distance: the number of letters to insert, remove or replace. Gives up at \a limit. \a row is
//! working memory.
qsizetype distance(QStringView a, QStringView b, qsizetype limit, std::vector<qsizetype> &row)
{
    row.resize(size_t(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < a.size(); ++i) {
        qsizetype diagonal = std::exchange(row[0], i + 1);
        qsizetype least = row[0];
        for (qsizetype j = 0; j < b.size(); ++j) {
            const auto at = size_t(j) + 1;
            const qsizetype changed = diagonal + (a.at(i) == b.at(j).toLower() ? 0 : 1);
            diagonal = row[at];
            row[at] = std::min({changed, row[at] + 1, row[at - 1] + 1});
            least = std::min(least, row[at]);
        }
        if (least >= limit) {
            return limit;
        }
    }
    return row.back();
}

} // namespace

QString Suggestion::nearest(const QString &text, const QStringList &names)
{
    constexpr qsizetype mostSlips = 4;
    qsizetype least = std::clamp<qsizetype>(text.size() / 2, 1, mostSlips) + 1;
    QString found;
    std::vector<qsizetype> row;
    const QString lower = text.toLower();
    for (const QString &name : names) {
        if (name == text || std::abs(text.size() - name.size()) >= least) {
            continue;
        }
        const qsizetype between = distance(lower, name, least, row);
        if (between < least) {
            least = between;
            found = name;
        }
    }
    return found;
}

QString Suggestion::unknown(const QString &what, const QString &name, const QStringList &names,
                            const QString &advice)
{
    const QString near = nearest(name, names);
    const QString message =
        near.isEmpty() ? LocalizationHelper::coreString(u"There is no %1 \"%2\"."_s).arg(what, name)
                       : LocalizationHelper::coreString(u"There is no %1 \"%2\"; did you mean \"%3\"?"_s)
                             .arg(what, name, near);
    return advice.isEmpty() ? message : u"%1 %2"_s.arg(message, advice);
}

QString Suggestion::unknown(const QString &what, const QString &name, const QStringList &names)
{
    return unknown(what, name, names,
                   LocalizationHelper::coreString(u"Available: %1."_s).arg(names.join(u", "_s)));
}

} // namespace Halvane::Corvex::Designer
