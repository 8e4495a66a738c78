// SPDX-License-Identifier: MIT
// corvex-gallery FOLDER light|dark: draws all editors, panels and dialogs into the folder.
#include "corvex/widgets/Theme.h"

#include "Pictures.h"

#include <QApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;
using namespace Halvane::Corvex;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QTextStream errors(stderr);
    const QStringList words = QApplication::arguments();
    if (words.size() != 3 || (words.at(2) != "light"_L1 && words.at(2) != "dark"_L1)) {
        errors << "usage: corvex-gallery FOLDER light|dark\n";
        return 2;
    }
    Designer::Theme::apply(words.at(2) == "dark"_L1 ? Designer::Theme::Dark : Designer::Theme::Light);
    Gallery::Stage stage;
    QString error;
    if (!stage.open(error)) {
        errors << "corvex-gallery: " << error << '\n';
        return 1;
    }
    const QStringList problems = Gallery::Pictures(stage, words.at(1)).draw();
    for (const QString &problem : problems) {
        errors << "corvex-gallery: " << problem << '\n';
    }
    return problems.isEmpty() ? 0 : 1;
}
