// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QCommandLineOption>
#include <QLatin1StringView>
#include <QList>
#include <QString>

namespace Halvane::Corvex::Tool {

class Call;

//! A verb of the program. Each verb has a source file of its own; Verbs.cpp lists them.
struct Verb
{
    static constexpr int anyNumber = 1000000;

    const char *name;
    const char *arguments; //!< as in the usage line: "FILE [PATH]"
    const char *summary;   //!< a few words for the list of verbs, in the imperative
    QString (*details)();  //!< the sentences of the help page, in lines of at most 100 characters
    const char *example;   //!< a command that works in the source folder
    int fewestArguments = 1;
    int mostArguments = 1;
    bool opensProjects = false; //!< takes --plugins and --configurations
    bool draws = false;         //!< needs an application object with fonts and images
    //! The verb's own options, besides the common ones; may be null.
    QList<QCommandLineOption> (*options)() = nullptr;
    ExitCode (*run)(const Call &call); //!< onProject<> for a verb whose first argument is a project file
};

extern const Verb approveVerb;
extern const Verb buildVerb;
extern const Verb checkVerb;
extern const Verb classesVerb;
extern const Verb configDumpVerb;
extern const Verb diffVerb;
extern const Verb editVerb;
extern const Verb exportVerb;
extern const Verb exprVerb;
extern const Verb fmtVerb;
extern const Verb functionsVerb;
extern const Verb helpVerb;
extern const Verb importVerb;
extern const Verb infoVerb;
extern const Verb newVerb;
extern const Verb previewVerb;
extern const Verb renameVerb;
extern const Verb renderVerb;
extern const Verb treeVerb;
extern const Verb usesVerb;
extern const Verb valueVerb;

//! --raw, for verbs that print values.
QCommandLineOption rawOption();

//! All verbs, in the order of the help page.
const QList<const Verb *> &allVerbs();
//! Null if there is no such verb.
const Verb *findVerb(const QString &name);

} // namespace Halvane::Corvex::Tool
