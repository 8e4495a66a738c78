// SPDX-License-Identifier: MIT
#include "corvex/checks/ExpressionSyntax.h"
#include "corvex/checks/private/rules/PlainQml.h"

#include <gtest/gtest.h>

using namespace Halvane::Corvex::Designer;
using namespace Qt::StringLiterals;

namespace {

TEST(DocumentSyntax, ErrorsAreFoundOnTheirLine)
{
    struct
    {
        QString qml;
        int line; //!< of the error; 0 without an error
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

TEST(PlainQml, AcceptsOnlyLiteralsAndIds)
{
    for (const QString &plain :
         {u"-2.5"_s, u"0"_s, u"\"\\n\""_s, u"Item.Left"_s, u"qml_pump1"_s, u"null"_s}) {
        EXPECT_TRUE(isPlainCode(plain)) << qPrintable(plain);
    }
    for (const QString &other : {u"a"_s, u"\"\\\""_s, u"01"_s, u"qml_a.b"_s, u"{"_s, u"1\ny: 0"_s, u""_s}) {
        EXPECT_FALSE(isPlainCode(other)) << qPrintable(other);
    }
}

} // namespace
