// SPDX-License-Identifier: MIT
#include "corvex/checks/ProblemFix.h"
#include "corvex/checks/ProblemKind.h"

#include <QFile>
#include <QSet>

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;

//! docs/problems.md is generated from the table: with CORVEX_WRITE=1 this test writes it.
TEST(ProblemPage, ListsEveryKindOfProblem)
{
    QString page =
        u"# Problems\n\nWhat `corvex check` can find. An error prevents a build; warnings and hints do not. "
        "`--json` prints\nthe codes, which do not change between versions. Programs that show the problems "
        "offer the fixes as\nedits, which can be undone. Placeholders such as \"%1\" stand for names and "
        "values.\n"_s;
    QSet<QByteArray> words;
    for (const ProblemKind &kind : ProblemKind::all()) {
        EXPECT_FALSE(words.contains(kind.word)) << kind.word;
        words.insert(kind.word);
        page += u"\n## %1\n\n"_s.arg(QString::fromUtf8(kind.word));
        page += kind.message ? u"`%1`\n\n"_s.arg(QString::fromUtf8(kind.message)) : QString();
        page += u"- Severity: %1\n- Cause: %2\n- Cure: %3\n"_s.arg(
            kind.severityWord(), QString::fromUtf8(kind.cause), QString::fromUtf8(kind.cure));
        for (const QString &fix : ProblemFix::texts(kind.code)) {
            page += u"- Fix: %1\n"_s.arg(fix);
        }
    }
    QFile file(QStringLiteral(CORVEX_DOCS "/problems.md"));
    if (qEnvironmentVariableIsSet("CORVEX_WRITE")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(page.toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()), page);
}
