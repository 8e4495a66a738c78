// SPDX-License-Identifier: MIT
#pragma once

#include "corvex/common/Export.h"

#include <QString>
#include <QStringList>

namespace Halvane::Corvex::Common {

//! Hashes of passwords that a device checks but must not store.
class CORVEX_COMMON_EXPORT PasswordHash
{
public:
    //! "$argon2id$v=19$m=65536,t=2,p=1$SALT$HASH", which crypto_pwhash_str_verify() of libsodium accepts. The
    //! salt is derived from the texts \a salt, so equal arguments give equal hashes. Empty if there is not
    //! enough memory (64 MB).
    static QString of(const QString &password, const QStringList &salt);
};

} // namespace Halvane::Corvex::Common
