// SPDX-License-Identifier: MIT
// What every class of the library and of the standard plug-in says about itself.
#include "corvex/editing/words/ClassHelp.h"
#include "corvex/editing/words/EditScript.h"
#include "corvex/editing/words/ProjectPath.h"
#include "corvex/editing/words/ValueForm.h"
#include "corvex/hardware/HardwareConfigurations.h"
#include "corvex/values/expressions/ExpressionFunction.h"

#include "editing/commands/CommandFixture.h"

namespace Halvane::Corvex::Designer::Test {

using namespace Qt::StringLiterals;

namespace {

//! A whole sentence that says more than the title.
bool isSentence(const QString &text, const QString &title)
{
    return text.size() > 10 && text.endsWith(u'.') && (text.at(0).isUpper() || text.at(0).isDigit())
           && text.chopped(1).compare(title, Qt::CaseInsensitive) != 0;
}

QString anchor(const QString &heading)
{
    return u"#"_s + heading.toLower().replace(u' ', u'-').remove(u':');
}

QString code(const QStringList &lines)
{
    return u"```\n%1\n```\n"_s.arg(lines.join(u'\n'));
}

QString cell(QString text)
{
    return text.replace(u'|', u"\\|"_s).replace(u'<', u"&lt;"_s);
}

QString inCode(const QString &text)
{
    return text.isEmpty() ? QString() : u"`%1`"_s.arg(QString(text).replace(u'|', u"\\|"_s));
}

QString classLink(const QString &className)
{
    return u"[%1](%2)"_s.arg(className, anchor(className));
}

void addTree(const QList<ClassHelp> &classes, const QString &base, int depth, QString &page)
{
    for (const ClassHelp &help : classes) {
        if (help.bases.value(0) == base) {
            page +=
                QString(2 * depth, u' ') + u"- %1: %2\n"_s.arg(classLink(help.className), help.description);
            addTree(classes, help.className, depth + 1, page);
        }
    }
}

QString pageOf(const ClassHelp &help)
{
    QString page = u"\n### %1\n\n%2"_s.arg(help.className, help.description);
    QStringList bases;
    for (const QString &base : help.bases) {
        bases.append(classLink(base));
    }
    page += bases.isEmpty() ? u"\n"_s : u" It also has the properties of %1.\n"_s.arg(bases.join(u" and "_s));
    page += help.line.isEmpty() ? QString() : u'\n' + code({help.line});
    QString rows;
    for (const PropertyHelp &property : help.properties) {
        if (property.definedBy == help.className) {
            rows += u"| `%1` | [%2](%3) | %4 | %5 | %6 |\n"_s.arg(
                property.id, cell(property.takes.contains(u" such as "_s) ? property.kind : property.takes),
                anchor(u"Kind: "_s + property.kind), inCode(property.initialValue),
                cell(property.description), inCode(property.line));
        }
    }
    const QString head = u"\n| Property | Takes | Default | Meaning | Example |\n|---|---|---|---|---|\n"_s;
    page += rows.isEmpty() ? QString() : head + rows;
    QString runtime;
    for (const RuntimeHelp &property : help.runtime) {
        if (property.definedBy == help.className) {
            runtime += u"| `%1` | %2%3 | %4 |\n"_s.arg(property.id, property.type,
                                                       property.isReadOnly ? u", read only"_s : QString(),
                                                       cell(property.description));
        }
    }
    return runtime.isEmpty() ? page
                             : page
                                   + u"\nOn the device, for expressions, rules and assignments:\n\n| Name | "
                                     "Type | Meaning |\n|---|---|---|\n"_s
                                   + runtime;
}

QString referencePage()
{
    QList<ClassHelp> classes;
    for (const QString &name : ClassHelp::names()) {
        classes.append(*ClassHelp::of(name));
    }
    QString page = u"# Reference\n\nAll classes of objects with their properties, all kinds of values, and "
                   u"all functions of "
                   "expressions. `corvex\nclasses` and `corvex functions` print the same.\n\n"
                   "- [Classes](#classes)\n- [How values are written](#how-values-are-written)\n- "
                   "[Functions](#functions)\n\n"
                   "The examples are edits for `corvex edit`. They belong to a project `Plant` with a screen "
                   "`Main` and these "
                   "objects:\n\n"_s
                   + code(ClassHelp::sampleProject())
                   + u"\n## Classes\n\nEach class also has the properties of the classes above it.\n\n"_s;
    addTree(classes, {}, 0, page);
    for (const ClassHelp &help : std::as_const(classes)) {
        page += pageOf(help);
    }
    page += u"\n## How values are written\n\n`corvex edit` reads values in this form, and `corvex tree` and "
            u"`corvex "
            "diff` print them in this form. An empty\nvalue is written as `\"\"`.\n"_s;
    for (const ValueForm &form : ValueForm::all()) {
        if (form.edits().isEmpty()) {
            continue; // the form of kinds that only plug-ins have
        }
        page += u"\n### Kind: %1\n\n%2\n"_s.arg(form.name(), form.explanation());
        page += u'\n' + code(form.edits());
    }
    page +=
        u"\n## Functions\n\n| Function | Result | Usable in | Example | Its value |\n|---|---|---|---|---|\n"_s;
    for (const ExpressionFunction &function : ExpressionFunction::all()) {
        page += u"| `%1` | %2 | %3 | `%4` | %5 |\n"_s.arg(
            function.signature(), function.description(), function.usableIn(),
            QString::fromUtf16(function.example), inCode(QString::fromUtf16(function.value)));
    }
    return page;
}

} // namespace

//! A project with the objects that the examples use.
class ClassHelpTest : public testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY));
        HardwareConfigurations::createInstance(QStringLiteral(CORVEX_DATA));
    }
    static void TearDownTestSuite() { delete HardwareConfigurations::instance(); }
    void SetUp() override
    {
        QDir::setCurrent(folder.path());
        for (const QString &picture : {u"pump.png"_s, u"gauge.png"_s}) {
            QImage image(8, 8, QImage::Format_RGB32);
            image.fill(picture.startsWith(u'p') ? Qt::red : Qt::blue);
            image.save(picture);
        }
        makeProject();
    }
    void TearDown() override { QDir::setCurrent(QDir::tempPath()); }

    void makeProject()
    {
        script.reset();
        project.reset();
        QDir(folder.filePath(u"Plant"_s)).removeRecursively();
        const auto *factory = DesignerFactory::instance();
        project.reset(static_cast<Project *>(factory->createUnowned(u"Project"_s)));
        project->setIdName(ClassHelp::sampleName());
        project->changePropertyObjectValue(project->configuration(),
                                           factory->createUnowned(u"Configuration"_s));
        ASSERT_TRUE(project->createFile(folder.path()));
        script = std::make_unique<EditScript>(*project);
        run(u"model VTR 50-S"_s);
        run(u"add Screen Plant Main"_s);
        for (const QString &line : ClassHelp::sampleProject()) {
            run(line);
        }
    }
    void run(const QString &line)
    {
        EXPECT_EQ(script->run(line), EditScript::Result::Done)
            << qPrintable(line + u": "_s + script->refusal().message);
    }

    QTemporaryDir folder;
    std::unique_ptr<Project> project;
    std::unique_ptr<EditScript> script;
};

TEST_F(ClassHelpTest, EveryClassAndEveryPropertyHasADescription)
{
    for (const QString &name : ClassHelp::names()) {
        const std::optional<ClassHelp> help = ClassHelp::of(name);
        ASSERT_TRUE(help) << qPrintable(name);
        EXPECT_TRUE(isSentence(help->description, help->title))
            << qPrintable(name + u": "_s + help->description);
        for (const PropertyHelp &property : help->properties) {
            EXPECT_TRUE(isSentence(property.description, property.title))
                << qPrintable(name + u'.' + property.id + u": "_s + property.description);
            EXPECT_NE(property.kind, u"stored text"_s) << qPrintable(name + u'.' + property.id);
        }
    }
    EXPECT_FALSE(ClassHelp::of(u"Nothing"_s));
    EXPECT_FALSE(ClassHelp::of({}));
}

TEST_F(ClassHelpTest, EveryExampleIsAcceptedAndEveryRefusalNamesWhatIs)
{
    for (const QString &name : ClassHelp::names()) {
        const ClassHelp help = *ClassHelp::of(name);
        if (!DesignerFactory::instance()->canCreateObject(name)) {
            continue;
        }
        makeProject();
        if (!help.line.isEmpty()) {
            run(help.line);
        }
        const auto isRename = [](const PropertyHelp &property) { return property.id == u"id"; };
        for (const PropertyHelp &property : help.properties) {
            if (isRename(property) || property.line.isEmpty()) {
                continue;
            }
            const QString path = property.line.section(u' ', 1, 1);
            const SharedProperty set = ProjectPath::find(*project, path).property;
            ASSERT_TRUE(set) << qPrintable(property.line);
            run(property.line);
            EXPECT_TRUE(set->isValid()) << qPrintable(property.line + u": "_s + set->errorString());
            for (const QString &wrong : {u"\u00a7 ~"_s, u"{"_s, u"1 1 1"_s}) {
                const QString message = script->plan(u"set %1 = %2"_s.arg(path, wrong)).refusal.message;
                const QString tried = message.isEmpty() ? set->refusalOf(wrong) : message;
                EXPECT_TRUE(tried.isEmpty() || tried.contains(property.takes) || tried.contains(u"form \""_s)
                            || tried.contains(u"At "_s) || tried.contains(u"has no image"_s)
                            || set->canRead(wrong))
                    << qPrintable(path + u" = "_s + wrong + u": "_s + tried);
            }
        }
        for (const PropertyHelp &property : help.properties) {
            if (isRename(property) && !property.line.isEmpty()) {
                run(property.line);
            }
        }
    }
}

TEST_F(ClassHelpTest, TheExamplesOfAllKindsOfValuesWork)
{
    for (const char16_t *line :
         {u"add LogicBuilder Main logic", u"add PropertyTrigger Main trigger",
          u"add NumberSpinner Main spinner", u"add ScreenLoader Main loader", u"add Image Main picture",
          u"add Button Main button", u"add CheckButton Main toggle"}) {
        run(QString::fromUtf16(line));
    }
    for (const ValueForm &form : ValueForm::all()) {
        for (const QString &line : form.edits()) {
            run(line);
        }
    }
    EXPECT_EQ(script->run(u"set history.persistent = true"_s), EditScript::Result::Failed);
    EXPECT_EQ(script->refusal().message,
              u"\"history.persistent\" is always false in objects of the class LogVariable."_s);
    EXPECT_EQ(script->invalidValues(), QStringList());
    run(u"set Main.lamp.opacity = 300"_s);
    run(u"set Settings.orientation = 45"_s);
    EXPECT_EQ(script->invalidValues(),
              (QStringList{u"Main.lamp.opacity: opacity takes numbers from 10 to 100, not 300."_s,
                           u"Settings.orientation: orientation takes 0, 90, 180 or 270, not 45."_s}));
}

//! docs/reference.md is generated from the tables: with CORVEX_WRITE=1 this test writes it.
TEST_F(ClassHelpTest, TheReferencePageIsUpToDate)
{
    QFile file(QStringLiteral(CORVEX_DOCS "/reference.md"));
    if (qEnvironmentVariableIsSet("CORVEX_WRITE")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(referencePage().toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(file.readAll()), referencePage());
}

} // namespace Halvane::Corvex::Designer::Test
