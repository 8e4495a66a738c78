// SPDX-License-Identifier: MIT
// The expression builder, the list of completions, and the rules of a logic builder.
#include "corvex/editors/changes/RulesDialog.h"
#include "corvex/editors/expressions/ExpressionDialog.h"

#include "Pictures.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QKeyEvent>
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
    const QString condition = u"wellLevel >= startLevel and not pump1Running"_s;
    const QString value = u"concat(\"Well: \", wellLevel, \" cm\")"_s;
    const auto nothing = [](ExpressionBuilder &) {};
    draw("visibleBinding", condition, u"text"_s, [](ExpressionBuilder &builder) {
        auto *edit = builder.findChild<QPlainTextEdit *>();
        QTextCursor cursor = edit->textCursor();
        cursor.setPosition(0);
        cursor.setPosition(23, QTextCursor::KeepAnchor);
        edit->setTextCursor(cursor);
    });
    draw("visibleBinding", condition, u"terms"_s,
         [](ExpressionBuilder &builder) { builder.showAsText(false); });
    draw("visibleBinding", u"wellLevl >= startLevel"_s, u"error"_s, nothing);
    draw("textBinding", value, u"signature"_s, [](ExpressionBuilder &builder) {
        auto *edit = builder.findChild<QPlainTextEdit *>();
        QTextCursor cursor = edit->textCursor();
        cursor.setPosition(20);
        edit->setTextCursor(cursor);
    });

    ExpressionDialog dialog(text->getProperty(u"visibleBinding"_s));
    dialog.show();
    auto *edit = dialog.builder()->findChild<QPlainTextEdit *>();
    for (const QChar c : u"wellLevel > s"_s) {
        QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
        QApplication::sendEvent(edit, &key);
    }
    if (const auto *completer = edit->findChild<QCompleter *>()) {
        save(*completer->popup(), u"popup-completion"_s);
    }
    dialog.discard();

    const SharedProperty rules =
        m_stage.objects().value(u"LogicBuilder"_s)->getProperty(u"logicExpression"_s);
    RulesDialog logic(rules);
    logic.setStored(rules->valueString());
    logic.show();
    save(logic, u"dialog-rules"_s);
}

} // namespace Halvane::Corvex::Gallery
