// SPDX-License-Identifier: MIT
#include "corvex/common/private/PasswordHash.h"

#include <gtest/gtest.h>
#include <sodium.h>

using namespace Halvane::Corvex::Common;
using namespace Qt::StringLiterals;

namespace {

TEST(PasswordHash, IsAcceptedByTheDevice)
{
    const auto accepts = [](const QString &hash, const QByteArray &password) {
        return crypto_pwhash_str_verify(hash.toLatin1().constData(), password.constData(),
                                        size_t(password.size()))
               == 0;
    };
    const QString password = u"pass w\u00f6rd"_s;
    const QString hash = PasswordHash::of(password, {u"Pump"_s, u"upload"_s});
    EXPECT_TRUE(accepts(hash, password.toUtf8())) << qPrintable(hash);
    EXPECT_FALSE(accepts(hash, "pass word"));
    EXPECT_EQ(PasswordHash::of(password, {u"Pump"_s, u"upload"_s}), hash);
    EXPECT_NE(PasswordHash::of(password, {u"Pumpu"_s, u"pload"_s}), hash);
}

} // namespace
