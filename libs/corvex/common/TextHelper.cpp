// SPDX-License-Identifier: MIT
#include "corvex/common/TextHelper.h"

#include <QStringDecoder>

#include <array>
#include <sodium.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

//! Decodes UTF-8 without any changes; even a leading byte order mark is kept. ok is false if the bytes are
//! not UTF-8.
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
    if (good) {
        text = fromStrictUtf8(bytes, good);
    }
    if (ok) {
        *ok = good;
    }
    return text;
}

namespace {

//! The escape of a character within double quotes; empty if it needs none.
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
    if (c < u' ' || c == u'"' || c == u'\\' || (c >= u'\x7f' && c <= u'\x9f')) {
        return true;
    }
    if (c.isHighSurrogate()) {
        return at + 1 == text.size() || !text.at(at + 1).isLowSurrogate();
    }
    if (c.isLowSurrogate()) {
        return at == 0 || !text.at(at - 1).isHighSurrogate();
    }
    return c == u'\u2028' || c == u'\u2029' || c == QChar::ByteOrderMark;
}

} // namespace

QString TextHelper::toQmlValueString(const QString &text)
{
    QString result;
    qsizetype copied = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!needsEscape(text, i)) {
            continue;
        }
        result += QStringView(text).sliced(copied, i - copied);
        result += escaped(text.at(i));
        copied = i + 1;
    }
    if (copied == 0) {
        return text;
    }
    result += QStringView(text).sliced(copied);
    return result;
}

QString TextHelper::normalizeLineEnds(const QString &text)
{
    if (!text.contains(u'\r')) {
        return text;
    }
    QString result = text;
    result.replace("\r\n"_L1, "\n"_L1);
    result.replace(u'\r', u'\n');
    return result;
}

QString TextHelper::toCrLf(const QString &text)
{
    return normalizeLineEnds(text).replace(u'\n', "\r\n"_L1);
}

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
    if (!sodiumIsReady()) {
        return {};
    }
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
        if (good) {
            text = fromStrictUtf8(plain, good);
        }
    }
    if (ok) {
        *ok = good;
    }
    return text;
}

} // namespace Halvane::Corvex::Common
