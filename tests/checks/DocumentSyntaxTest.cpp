// SPDX-License-Identifier: MIT
#include "corvex/checks/ExpressionSyntax.h"
#include "corvex/checks/PlainQmlMembers.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;

namespace {

// Lines that look plain are not read: what is wrong with them or around them has to be found all the same.
TEST(DocumentSyntax, WhatIsWrongIsFoundOnItsLine)
{
    struct
    {
        QString qml;
        int line; //!< of the error; 0 when there is none
    } const cases[] = {
        {u"Screen {\n\tid: a\n\tx: 1\n\tText {\n\t\tid: b\n\t\tx: 1\n\t\ttext: \"\\\"%1\"\n\t}\n}\n"_s, 0},
        {u"Screen {\n\tx: 1\n\ty: 1\n\tx: 2\n}\n"_s, 4},
        {u"A {\n\tx: 1\n}\n\nB {\n}\n"_s, 5},
        {u"Screen {\n\tx: 1\n\tText {\n\t\tx: 1\n\t\ty: a\n\t\tx: 2\n\t}\n}\n"_s, 6},
        {u"Screen {\n\tx: 1\n\tText {\n\t\tx: 1\n\t}\n"_s, 6},
        {u"Screen {\n\tdefault: 1\n}\n"_s, 2},
        {u"Screen {\n\ttext: \"a\n\tx: 1\n}\n"_s, 2},
        {u"Screen {\n\ttext: \"a\\\"\n}\n"_s, 2},
        {u"Screen {\n\tx: 1\n\tText {\n\t\tx: a ?\n\t\t\tb\n\t\t\t: 2\n\t\ty: c ? 1 : d ?\n\t\tx : 2\n\t}\n}\n"_s,
         0},
        {u"Screen {\n\tx: 1\n\ty: (\n\tx: 1\n\t)\n}\n"_s, 4},
        {u"Screen {\n\tx: 1\n\ty: ({ a: {\n\t}\n\tx: 1\n\t})\n}\n"_s, 5},
        {u"Screen {\n\tx: 1\n\tfunction f() {\n\t\treturn {\n\t\t\ty: 1,\n\t\t\tx: 2\n\t\t}\n\t}\n\ty: 2\n}\n"_s,
         0},
        {u"Screen {\n\tx: 1\n\ttext: `\n\tx: 1\n\t`\n\ty: 1 /*\n\tx: 2\n\t*/\n}\n"_s, 0},
    };
    ExpressionSyntax syntax;
    for (const auto &each : cases) {
        SCOPED_TRACE(qPrintable(each.qml));
        const ExpressionSyntax::Result result = syntax.checkDocument(each.qml);
        EXPECT_EQ(result.valid, each.line == 0) << qPrintable(result.message);
        EXPECT_EQ(result.line, each.line) << qPrintable(result.message);
    }
}

TEST(DocumentSyntax, PlainMembersNeedNoReading)
{
    const QString first =
        u"Text {\n\tid: a\n\tx: 1\n\ttext: b.c(\"d\")\n\tcolor: \"#FF102030\"\n\tat: Item.Top\n}\n"_s;
    const QString second = u"Text {\n\tid: b\n\tx: -2.5\n\ttext: d\n\tcolor: \"\\n\"\n\tat: Item.Left\n}\n"_s;
    EXPECT_EQ(qmlWithoutPlainMembers(first + second).trimmed(),
              first + u"Text {\n\tid: b\n\n\ttext: d\n\n\n}"_s);
}

} // namespace
