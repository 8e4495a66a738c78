// SPDX-License-Identifier: MIT
// The expression builder.
#include "corvex/editors/expressions/ExpressionDialog.h"

#include "Pictures.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Gallery {

using namespace Designer;

void Pictures::drawExpressions()
{
    const DesignerObject *text = m_stage.objects().value(u"Text"_s);
    const auto draw = [&](const char *id, const QString &expression, const QString &name, auto prepare) {
        ExpressionDialog dialog(text->getProperty(QString::fromLatin1(id)));
        dialog.builder()->setText(expression);
        prepare(*dialog.builder());
        dialog.show();
        save(dialog, "dialog-expression-"_L1 + name);
        dialog.discard();
    };
    const QString condition = u"wellLevel >= startLevel and not pumpRunning"_s;
    const QString value = u"concat(\"Well: \", wellLevel, \" cm\")"_s;
    const auto nothing = [](ExpressionBuilder &) {};
    draw("visibleBinding", condition, u"text"_s, [](ExpressionBuilder &builder) {
        auto *edit = builder.findChild<QPlainTextEdit *>();
        QTextCursor cursor = edit->textCursor();
        cursor.setPosition(0);
        cursor.setPosition(23, QTextCursor::KeepAnchor);
        edit->setTextCursor(cursor);
    });
    draw("visibleBinding", condition, u"terms"_s, [](ExpressionBuilder &builder) { builder.showAsText(false); });
    draw("visibleBinding", u"wellLevl >= startLevel"_s, u"error"_s, nothing);
    draw("textBinding", value, u"signature"_s, [](ExpressionBuilder &builder) {
        auto *edit = builder.findChild<QPlainTextEdit *>();
        QTextCursor cursor = edit->textCursor();
        cursor.setPosition(20);
        edit->setTextCursor(cursor);
    });
}

} // namespace Halvane::Corvex::Gallery
