// SPDX-License-Identifier: MIT
#include "corvex/common/TextHelper.h"

namespace Halvane::Corvex::Common {

namespace {

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

//! The end of the run of digits that begins at i.
qsizetype digitsEnd(QStringView text, qsizetype i)
{
    while (i < text.size() && isAsciiDigit(text[i])) {
        ++i;
    }
    return i;
}

int compareNumbers(QStringView left, QStringView right)
{
    const auto significant = [](QStringView digits) {
        qsizetype zeros = 0;
        while (zeros < digits.size() && digits[zeros] == u'0') {
            ++zeros;
        }
        return digits.sliced(zeros);
    };
    left = significant(left);
    right = significant(right);
    if (left.size() != right.size()) {
        return left.size() < right.size() ? -1 : 1;
    }
    return left.compare(right);
}

//! Compares in natural order, ignoring case and leading zeros: negative, zero or positive.
int compareNaturally(QStringView left, QStringView right)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < left.size() && j < right.size()) {
        if (isAsciiDigit(left[i]) && isAsciiDigit(right[j])) {
            const qsizetype iEnd = digitsEnd(left, i);
            const qsizetype jEnd = digitsEnd(right, j);
            if (const int order = compareNumbers(left.sliced(i, iEnd - i), right.sliced(j, jEnd - j))) {
                return order;
            }
            i = iEnd;
            j = jEnd;
            continue;
        }
        const char16_t a = left[i++].toCaseFolded().unicode();
        const char16_t b = right[j++].toCaseFolded().unicode();
        if (a != b) {
            return a < b ? -1 : 1;
        }
    }
    if (i == left.size() && j == right.size()) {
        return 0;
    }
    return i == left.size() ? -1 : 1;
}

//! The part before the last full stop; a leading full stop does not begin an extension.
QStringView stemOf(QStringView fileName)
{
    const qsizetype dot = fileName.lastIndexOf(u'.');
    return dot > 0 ? fileName.first(dot) : fileName;
}

} // namespace

bool TextHelper::naturalLess(QStringView left, QStringView right)
{
    const int order = compareNaturally(left, right);
    return order != 0 ? order < 0 : left.compare(right) < 0;
}

void TextHelper::sortStringList(QStringList &list)
{
    std::sort(list.begin(), list.end(), naturalLess);
}

bool TextHelper::fileNameLess(QStringView left, QStringView right)
{
    const QStringView leftStem = stemOf(left);
    const QStringView rightStem = stemOf(right);
    if (const int order = compareNaturally(leftStem, rightStem)) {
        return order < 0;
    }
    const int order = compareNaturally(left.sliced(leftStem.size()), right.sliced(rightStem.size()));
    return order != 0 ? order < 0 : left.compare(right) < 0;
}

void TextHelper::sortFileNames(QStringList &names)
{
    std::sort(names.begin(), names.end(), fileNameLess);
}

} // namespace Halvane::Corvex::Common
