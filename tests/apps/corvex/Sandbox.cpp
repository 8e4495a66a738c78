// SPDX-License-Identifier: MIT
#include "Sandbox.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Test {

QByteArray Sandbox::read(const QString &name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

void Sandbox::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    QDir().mkpath(QFileInfo(file).path());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s cannot be written", qUtf8Printable(file.fileName()));
    }
}

int Sandbox::lineOf(const QString &name, const QByteArray &text) const
{
    const QByteArray bytes = read(name);
    return int(bytes.first(bytes.indexOf(text)).count('\n')) + 1;
}

QStringList Sandbox::files(const QString &folder) const
{
    QStringList names;
    QDirIterator entries(path(folder), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        names.append(QDir(path(folder)).relativeFilePath(entries.next()));
    }
    names.sort();
    return names;
}

QByteArray Sandbox::value(const QByteArray &property, const QByteArray &text)
{
    const QString escaped = QString::fromUtf8(text).toHtmlEscaped().replace(u'\n', u"&#10;"_s);
    return "<Property name=\"" + property + "\" value=\"" + escaped.toUtf8() + "\"/>\n";
}

QByteArray Sandbox::object(const QByteArray &className, const QByteArray &name, const QByteArray &properties,
                           const QByteArray &scope)
{
    return '<' + className + ">\n<Properties>\n"
           + value("id", "filterType: " + className + "; name: " + name + "; scopeType: " + scope + ';')
           + properties + "</Properties>\n</" + className + ">\n";
}

QByteArray Sandbox::goodElements()
{
    return object("Text", "title", value("text", "Pump %1 \"A\"\n2"))
           + object("GroupElement", "group1",
                    value("indexes", "box1 | box2") + "<Property name=\"elements\">\n<List>\n"
                        + object("Rectangle", "box1", value("position", "x: 10; y: 20.5;"))
                        + object("Rectangle", "box2") + "</List>\n</Property>\n");
}

void Sandbox::makeProject(const QByteArray &elements, const QByteArray &variables,
                          const QByteArray &images) const
{
    const ProgramRun made = run({u"new"_s, u"Pump"_s, u"--model"_s, u"VTR 50-K"_s});
    if (made.code != 0) {
        qFatal("%s", qUtf8Printable(made.error));
    }
    QByteArray text = read(u"Pump/Pump.kdproj"_s);
    const auto list = [](const QByteArray &id, const QByteArray &items) {
        return items.isEmpty()
                   ? QByteArray()
                   : "<Property name=\"" + id + "\">\n<List>\n" + items + "</List>\n</Property>\n";
    };
    text.replace("<Property name=\"screens\">", list("imageResources", images) + list("variables", variables)
                                                    + "<Property name=\"screens\">");
    const QByteArray noElements = "<Property name=\"elements\">\r\n       <List/>\r\n";
    text.replace(noElements, "<Property name=\"elements\">\n<List>\n" + elements + "</List>\n");
    write(u"Pump/Pump.kdproj"_s, text);
}

} // namespace Halvane::Corvex::Test
