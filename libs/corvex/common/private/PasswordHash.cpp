// SPDX-License-Identifier: MIT
#include "corvex/common/private/PasswordHash.h"

#include <QByteArray>

#include <array>
#include <sodium.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

constexpr unsigned long long passes = crypto_pwhash_OPSLIMIT_INTERACTIVE;
constexpr size_t memory = crypto_pwhash_MEMLIMIT_INTERACTIVE;

using Salt = std::array<unsigned char, crypto_pwhash_SALTBYTES>;
using Hash = std::array<unsigned char, 32>;

Salt saltOf(const QStringList &texts)
{
    // Terminate each text, so that two different lists never give the same bytes.
    const QByteArray bytes = (texts.join(QChar::Null) + QChar::Null).toUtf8();
    Salt salt;
    crypto_generichash(salt.data(), salt.size(), reinterpret_cast<const unsigned char *>(bytes.constData()),
                       static_cast<size_t>(bytes.size()), nullptr, 0);
    return salt;
}

template<class Bytes>
QString base64(const Bytes &bytes)
{
    const QByteArray view = QByteArray::fromRawData(reinterpret_cast<const char *>(bytes.data()),
                                                    static_cast<qsizetype>(bytes.size()));
    return QString::fromLatin1(view.toBase64(QByteArray::OmitTrailingEquals));
}

} // namespace

QString PasswordHash::of(const QString &password, const QStringList &salt)
{
    const QByteArray plain = password.toUtf8();
    if (sodium_init() < 0) {
        return {};
    }
    const Salt saltBytes = saltOf(salt);
    Hash hash;
    if (crypto_pwhash(hash.data(), hash.size(), plain.constData(), static_cast<size_t>(plain.size()),
                      saltBytes.data(), passes, memory, crypto_pwhash_ALG_ARGON2ID13)
        != 0) {
        return {};
    }
    return u"$argon2id$v=19$m=%1,t=%2,p=1$%3$%4"_s.arg(
        QString::number(memory / 1024), QString::number(passes), base64(saltBytes), base64(hash));
}

} // namespace Halvane::Corvex::Common
