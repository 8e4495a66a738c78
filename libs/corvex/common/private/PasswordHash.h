// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Common {

//! Passwords for a device that checks them and must not hold them.
class CORVEX_COMMON_EXPORT PasswordHash
{
public:
    /*! "$argon2id$v=19$m=65536,t=2,p=1$SALT$HASH", which crypto_pwhash_str_verify() of libsodium checks. The
        salt is made from the texts \a salt, so that the same arguments always give the same text. Empty when
        there is not enough memory (64 MB). */
    static QString of(const QString &password, const QStringList &salt);
};

} // namespace Halvane::Corvex::Common
