// SPDX-License-Identifier: MIT
#pragma once

#include <QPalette>
#include <QSyntaxHighlighter>

namespace Halvane::Corvex::Designer {

//! The colors of functions, constants and words in expressions, from a palette.
class ExpressionHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit ExpressionHighlighter(QTextDocument *document)
        : QSyntaxHighlighter(document)
    { }

    void setPalette(const QPalette &palette);

protected:
    void highlightBlock(const QString &text) override;

private:
    QPalette m_palette;
};

} // namespace Halvane::Corvex::Designer
