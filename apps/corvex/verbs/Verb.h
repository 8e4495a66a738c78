// SPDX-License-Identifier: MIT
#pragma once

#include "terminal/ExitCode.h"

#include <QCommandLineOption>
#include <QLatin1StringView>
#include <QList>
#include <QString>

namespace Halvane::Corvex::Tool {

class Call;

//! One thing that the program can do. Each verb has a source file of its own; Verbs.cpp lists them.
struct Verb
{
    static constexpr int anyNumber = 1000000;

    const char *name;
    const char *arguments; //!< as the usage line shows them: "FILE [PATH]"
    const char *summary;   //!< a few words for the list of verbs
    QString (*details)();  //!< sentences for the page of the verb, lines at most 90 characters long
    const char *example;   //!< a command that works in the folder of the sources
    int fewestArguments = 1;
    int mostArguments = 1;
    bool opensProjects = false; //!< takes --plugins and --configurations
    bool draws = false;         //!< needs an application object that knows fonts and pictures
    //! Beside those that all verbs have; may be null.
    QList<QCommandLineOption> (*options)() = nullptr;
    ExitCode (*run)(const Call &call); //!< onProject<> for a verb whose first argument is a project's file
};

extern const Verb approveVerb;
extern const Verb buildVerb;
extern const Verb checkVerb;
extern const Verb configDumpVerb;
extern const Verb diffVerb;
extern const Verb editVerb;
extern const Verb exportVerb;
extern const Verb exprVerb;
extern const Verb fmtVerb;
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

//! In the order in which the list of verbs shows them.
const QList<const Verb *> &allVerbs();
//! Null when there is none of that name.
const Verb *findVerb(const QString &name);

} // namespace Halvane::Corvex::Tool
