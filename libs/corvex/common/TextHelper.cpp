// SPDX-License-Identifier: MIT
#include "corvex/common/TextHelper.h"

#include <QSet>
#include <QStringDecoder>

#include <array>
#include <sodium.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

//! The text of UTF-8 bytes, kept to the letter (a leading byte order mark is text here); ok false for other
//! bytes.
QString fromStrictUtf8(const QByteArray &bytes, bool &ok)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder(bytes);
    ok = !decoder.hasError();
    return ok ? text : QString();
}

QByteArray fromStrictBase64(const QString &base64, bool &ok)
{
    const QByteArray latin = base64.toLatin1();
    QByteArray bytes = QByteArray::fromBase64(latin);
    ok = bytes.toBase64() == latin && base64.size() == latin.size();
    return ok ? bytes : QByteArray();
}

} // namespace

QString TextHelper::convertToBase64(const QString &text)
{
    return QString::fromLatin1(text.toUtf8().toBase64());
}

QString TextHelper::convertFromBase64(const QString &base64, bool *ok)
{
    bool good = false;
    const QByteArray bytes = fromStrictBase64(base64, good);
    QString text;
    if (good)
        text = fromStrictUtf8(bytes, good);
    if (ok)
        *ok = good;
    return text;
}

// --- Text in generated code ---

namespace {

//! How a character is written between double quotes; empty when it stands for itself.
QString escaped(QChar c)
{
    switch (c.unicode()) {
    case u'"':
        return u"\\\""_s;
    case u'\\':
        return u"\\\\"_s;
    case u'\n':
        return u"\\n"_s;
    case u'\r':
        return u"\\r"_s;
    case u'\t':
        return u"\\t"_s;
    default:
        return u"\\u%1"_s.arg(uint(c.unicode()), 4, 16, QLatin1Char('0'));
    }
}

bool needsEscape(const QString &text, qsizetype at)
{
    const QChar c = text.at(at);
    if (c < u' ' || c == u'"' || c == u'\\' || (c >= u'\x7f' && c <= u'\x9f'))
        return true;
    if (c.isHighSurrogate())
        return at + 1 == text.size() || !text.at(at + 1).isLowSurrogate();
    if (c.isLowSurrogate())
        return at == 0 || !text.at(at - 1).isHighSurrogate();
    return c == u'\u2028' || c == u'\u2029' || c == QChar::ByteOrderMark;
}

} // namespace

QString TextHelper::toQmlValueString(const QString &text)
{
    QString result;
    qsizetype copied = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!needsEscape(text, i))
            continue;
        result += QStringView(text).sliced(copied, i - copied);
        result += escaped(text.at(i));
        copied = i + 1;
    }
    if (copied == 0)
        return text;
    result += QStringView(text).sliced(copied);
    return result;
}

const QStringList &TextHelper::reservedWords()
{
    static const QStringList words = [] {
        constexpr auto all =
            // Keywords, words kept for the future and words that the third edition of ECMAScript kept.
            "break case catch continue debugger default delete do else finally for function if in instanceof "
            "new "
            "return switch this throw try typeof var void while with "
            "class const enum export extends import super "
            "implements interface let package private protected public static yield "
            "abstract boolean byte char double final float goto int long native short synchronized throws "
            "transient volatile "
            "null true false "
            // Global values, functions and objects.
            "NaN Infinity undefined eval parseInt parseFloat isNaN isFinite decodeURI decodeURIComponent "
            "encodeURI "
            "encodeURIComponent escape unescape "
            "Object Function Array String Boolean Number Date RegExp Error EvalError RangeError "
            "ReferenceError "
            "SyntaxError TypeError URIError Math JSON "
            // What the device adds.
            "Qt console print qmlViewer"_L1;
        QStringList list = QString(all).split(u' ');
        list.sort();
        return list;
    }();
    return words;
}

bool TextHelper::isReservedWord(const QString &name)
{
    static const QSet<QString> words(reservedWords().cbegin(), reservedWords().cend());
    return words.contains(name);
}

// --- Orders ---

namespace {

//! One past the run of digits that begins at i.
qsizetype digitsEnd(QStringView text, qsizetype i)
{
    while (i < text.size() && isAsciiDigit(text[i]))
        ++i;
    return i;
}

int compareNumbers(QStringView left, QStringView right)
{
    const auto significant = [](QStringView digits) {
        qsizetype zeros = 0;
        while (zeros < digits.size() && digits[zeros] == u'0')
            ++zeros;
        return digits.sliced(zeros);
    };
    left = significant(left);
    right = significant(right);
    if (left.size() != right.size())
        return left.size() < right.size() ? -1 : 1;
    return left.compare(right);
}

//! Natural order that does not tell "a" from "A" nor "1" from "01": negative, zero or positive.
int compareNaturally(QStringView left, QStringView right)
{
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < left.size() && j < right.size()) {
        if (isAsciiDigit(left[i]) && isAsciiDigit(right[j])) {
            const qsizetype iEnd = digitsEnd(left, i);
            const qsizetype jEnd = digitsEnd(right, j);
            if (const int order = compareNumbers(left.sliced(i, iEnd - i), right.sliced(j, jEnd - j)))
                return order;
            i = iEnd;
            j = jEnd;
            continue;
        }
        const char16_t a = left[i++].toCaseFolded().unicode();
        const char16_t b = right[j++].toCaseFolded().unicode();
        if (a != b)
            return a < b ? -1 : 1;
    }
    if (i == left.size() && j == right.size())
        return 0;
    return i == left.size() ? -1 : 1;
}

//! What stands before the last full stop; a full stop in front begins no extension.
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
    if (const int order = compareNaturally(leftStem, rightStem))
        return order < 0;
    const int order = compareNaturally(left.sliced(leftStem.size()), right.sliced(rightStem.size()));
    return order != 0 ? order < 0 : left.compare(right) < 0;
}

void TextHelper::sortFileNames(QStringList &names)
{
    std::sort(names.begin(), names.end(), fileNameLess);
}

// --- Lines and numbers ---

QString TextHelper::normalizeLineEnds(const QString &text)
{
    if (!text.contains(u'\r'))
        return text;
    QString result = text;
    result.replace("\r\n"_L1, "\n"_L1);
    result.replace(u'\r', u'\n');
    return result;
}

QString TextHelper::toCrLf(const QString &text)
{
    return normalizeLineEnds(text).replace(u'\n', "\r\n"_L1);
}

qint64 TextHelper::numberFromString(QStringView name, QString *stem)
{
    constexpr qsizetype mostDigits = 18;
    qsizetype begin = name.size();
    while (begin > 0 && name.size() - begin < mostDigits && isAsciiDigit(name[begin - 1]))
        --begin;
    while (begin + 1 < name.size() && name[begin] == u'0')
        ++begin;
    if (stem)
        *stem = name.first(begin).toString();
    return begin == name.size() ? -1 : name.sliced(begin).toLongLong();
}

// --- The cipher of the build tag ---

namespace {

constexpr std::array<unsigned char, crypto_aead_xchacha20poly1305_ietf_KEYBYTES> cipherKey{
    0x5e, 0x27, 0xa1, 0x0c, 0x93, 0x4f, 0xd8, 0x66, 0x1b, 0xe0, 0x7d, 0x32, 0xc9, 0x84, 0x55, 0xfa,
    0x08, 0xb6, 0x6d, 0x11, 0xee, 0x49, 0x70, 0x9b, 0x3c, 0xd5, 0x22, 0x87, 0xaf, 0x5a, 0x13, 0xc4};
constexpr qsizetype nonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr qsizetype tagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;

bool sodiumIsReady()
{
    static const bool ready = sodium_init() >= 0;
    return ready;
}

unsigned char *bytesOf(QByteArray &array)
{
    return reinterpret_cast<unsigned char *>(array.data());
}

const unsigned char *bytesOf(const QByteArray &array)
{
    return reinterpret_cast<const unsigned char *>(array.constData());
}

} // namespace

QString TextHelper::encryptString(const QString &text)
{
    if (!sodiumIsReady())
        return {};
    const QByteArray plain = text.toUtf8();
    QByteArray nonce(nonceSize, Qt::Uninitialized);
    crypto_generichash(bytesOf(nonce), static_cast<size_t>(nonceSize), bytesOf(plain),
                       static_cast<size_t>(plain.size()), cipherKey.data(), cipherKey.size());
    QByteArray cipher(plain.size() + tagSize, Qt::Uninitialized);
    crypto_aead_xchacha20poly1305_ietf_encrypt(bytesOf(cipher), nullptr, bytesOf(plain),
                                               static_cast<size_t>(plain.size()), nullptr, 0, nullptr,
                                               bytesOf(std::as_const(nonce)), cipherKey.data());
    return QString::fromLatin1((nonce + cipher).toBase64());
}

QString TextHelper::decryptString(const QString &cipher, bool *ok)
{
    bool good = false;
    QString text;
    const QByteArray bytes = fromStrictBase64(cipher, good);
    good = good && bytes.size() >= nonceSize + tagSize && sodiumIsReady();
    if (good) {
        QByteArray plain(bytes.size() - nonceSize - tagSize, Qt::Uninitialized);
        good = crypto_aead_xchacha20poly1305_ietf_decrypt(bytesOf(plain), nullptr, nullptr,
                                                          bytesOf(bytes) + nonceSize,
                                                          static_cast<size_t>(bytes.size() - nonceSize),
                                                          nullptr, 0, bytesOf(bytes), cipherKey.data())
               == 0;
        if (good)
            text = fromStrictUtf8(plain, good);
    }
    if (ok)
        *ok = good;
    return text;
}

// --- File names ---

bool TextHelper::isReservedDeviceName(QStringView fileName)
{
    const qsizetype dot = fileName.indexOf(u'.');
    const QString name = (dot < 0 ? fileName : fileName.first(dot)).toString().toUpper();
    if (name.size() == 4 && (name.startsWith("COM"_L1) || name.startsWith("LPT"_L1)))
        return name.at(3) >= u'1' && name.at(3) <= u'9';
    return name == "AUX"_L1 || name == "CON"_L1 || name == "NUL"_L1 || name == "PRN"_L1;
}

QStringList TextHelper::forbiddenFileNameCharacters(QStringView name)
{
    static const QString punctuation = u" ~`!@#$%&'()-_+={}[],."_s;
    QStringList forbidden;
    for (qsizetype i = 0; i < name.size(); ++i) {
        const bool pair = name[i].isHighSurrogate() && i + 1 < name.size() && name[i + 1].isLowSurrogate();
        const char32_t c = pair ? QChar::surrogateToUcs4(name[i], name[i + 1]) : char32_t(name[i].unicode());
        const QString written = name.sliced(i, pair ? 2 : 1).toString();
        i += pair ? 1 : 0;
        const bool allowed = QChar::isLetter(c) || QChar::isMark(c) || QChar::isDigit(c)
                             || (!pair && punctuation.contains(QChar(char16_t(c))));
        if (!allowed && !forbidden.contains(written))
            forbidden.append(written);
    }
    return forbidden;
}

bool TextHelper::isValidFileNameFormat(QStringView name)
{
    return name.size() >= 2 && name.front() != u' ' && name.front() != u'.'
           && forbiddenFileNameCharacters(name).isEmpty();
}

} // namespace Halvane::Corvex::Common
