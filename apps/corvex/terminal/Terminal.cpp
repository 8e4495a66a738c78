// SPDX-License-Identifier: MIT
#include "terminal/Terminal.h"

#include "terminal/JsonWriter.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Tool {

Terminal::Terminal()
    : m_progress(isatty(STDERR_FILENO) == 1 ? std::make_unique<ProgressLine>() : nullptr)
{ }

Terminal::~Terminal() = default;

void Terminal::useJson()
{
    m_json = std::make_unique<JsonWriter>(*this);
    m_progress.reset();
}

void Terminal::print(QStringView line)
{
    if (m_json) {
        m_output.append(line.toString());
    } else {
        write(line.toUtf8().append('\n'));
    }
}

void Terminal::write(const QByteArray &utf8)
{
    endProgress();
    if (m_error == 0
        && std::fwrite(utf8.constData(), 1, size_t(utf8.size()), stdout) != size_t(utf8.size())) {
        m_error = errno;
    }
}

//! Shortens a message; it may quote something as long as a file.
static QString shortened(QStringView message)
{
    constexpr qsizetype most = 2000;
    constexpr qsizetype end = 500;
    return message.size() <= most
               ? message.toString()
               : message.first(most - end).toString() + u" [...] "_s + message.last(end).toString();
}

void Terminal::complain(QStringView text)
{
    const QString message = shortened(text);
    if (m_json) {
        m_errors.append(message);
    }
    writeError(u"corvex: %1"_s.arg(readableLine(message)));
}

void Terminal::printError(QStringView text)
{
    const QString line = shortened(text);
    if (m_json) {
        m_errors.append(line);
    }
    writeError(line);
}

void Terminal::writeError(QStringView line)
{
    endProgress();
    if (std::fflush(stdout) != 0 && m_error == 0) {
        m_error = errno;
    }
    const QByteArray utf8 = line.toUtf8().append('\n');
    std::fwrite(utf8.constData(), 1, size_t(utf8.size()), stderr);
}

Common::Progress *Terminal::showProgress(const QString &activity)
{
    return m_progress ? &m_progress->begin(activity) : nullptr;
}

void Terminal::endProgress()
{
    if (m_progress) {
        m_progress->end();
    }
}

void Terminal::finishJson()
{
    m_json->beginObject();
    if (!m_output.isEmpty()) {
        m_json->member("output"_L1, m_output);
    }
    if (!m_errors.isEmpty()) {
        m_json->member("errors"_L1, m_errors);
    }
    m_json->finish();
}

bool Terminal::finish()
{
    endProgress();
    if (m_json) {
        finishJson();
    }
    if (std::fflush(stdout) != 0 && m_error == 0) {
        m_error = errno;
    }
    if (m_error == 0 || m_error == EPIPE) {
        return true;
    }
    complain(u"The result cannot be written: %1."_s.arg(QString::fromLocal8Bit(std::strerror(m_error))));
    return false;
}

//! Characters that change the display order of the text after them.
static bool turnsText(QChar character)
{
    const auto in = [character](char16_t first, char16_t last) {
        return character >= first && character <= last;
    };
    return in(0x202A, 0x202E) || in(0x2066, 0x2069);
}

namespace {

QString escaped(QStringView text, bool escapesBackslash)
{
    static constexpr struct
    {
        char16_t character;
        char letter;
    } escapes[] = {{u'\n', 'n'}, {u'\r', 'r'}, {u'\t', 't'}, {u'\\', '\\'}};

    QString line;
    line.reserve(text.size());
    for (const QChar character : text) {
        const auto *escape = std::ranges::find(escapes, character.unicode(),
                                               [](const auto &entry) { return entry.character; });
        if (escape != std::end(escapes) && (escapesBackslash || character != u'\\')) {
            line += u'\\';
            line += QLatin1Char(escape->letter);
        } else if (character.category() == QChar::Other_Control || character == QChar::LineSeparator
                   || character == QChar::ParagraphSeparator || turnsText(character)) {
            line += u"\\u%1"_s.arg(character.unicode(), 4, 16, QLatin1Char('0'));
        } else {
            line += character;
        }
    }
    return line;
}

} // namespace

QString Terminal::oneLine(QStringView text)
{
    return escaped(text, true);
}

QString Terminal::readableLine(QStringView text)
{
    return escaped(text, false);
}

} // namespace Halvane::Corvex::Tool
