// SPDX-License-Identifier: MIT
#include "corvex/editing/words/private/SettingText.h"

#include "corvex/values/text/ObjectPath.h"
#include "corvex/values/text/ReadableText.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! The setting at \a place, which is moved behind it. If \a nests, a value can have braces around semicolons.
std::optional<SettingText> takeSetting(QStringView text, qsizetype &place, bool nests)
{
    const qsizetype colon = text.indexOf(u':', place);
    if (colon < 0) {
        return {};
    }
    const QString path = text.sliced(place, colon - place).trimmed().toString();
    SettingText setting;
    setting.property = ObjectPath::lastSegment(path).toString();
    setting.element = path.chopped(std::min(path.size(), setting.property.size() + 1));
    qsizetype end = colon + 1;
    int depth = 0;
    while (end < text.size() && (text[end] != u';' || depth > 0)) {
        depth += !nests ? 0 : text[end] == u'{' ? 1 : text[end] == u'}' ? -1 : 0;
        // A quote directly after a letter or digit (5" pipe), or one that is not closed, is a part of the
        // value.
        qsizetype behind = end;
        const bool isText = text[end] == u'"' && !text[end - 1].isLetterOrNumber()
                            && !ReadableText::takeQuoted(text, behind).isNull();
        end = isText ? behind : end + 1;
    }
    setting.value = text.sliced(colon + 1, end - colon - 1).trimmed().toString();
    place = end;
    return setting;
}

std::optional<QList<SettingText>> readAll(const QString &text, bool haveElements)
{
    const QString trimmed = text.trimmed();
    if (trimmed.size() < 2 || trimmed.front() != u'{' || trimmed.back() != u'}') {
        return {};
    }
    const QString inside = trimmed.sliced(1, trimmed.size() - 2);
    QList<SettingText> settings;
    qsizetype place = 0;
    const auto skipBlanks = [&] {
        while (place < inside.size() && inside.at(place).isSpace()) {
            ++place;
        }
        return place < inside.size();
    };
    while (skipBlanks()) {
        const std::optional<SettingText> setting = takeSetting(inside, place, !haveElements);
        if (!setting || setting->element.isEmpty() == haveElements
            || (skipBlanks() && inside.at(place) != u';')) {
            return {};
        }
        settings.append(*setting);
        ++place;
    }
    return settings;
}

} // namespace

bool SettingText::needsQuotes(const QString &value)
{
    const auto isSpecial = [](QChar c) {
        return c == u';' || c == u'}' || !(c.isPrint() || c.isSurrogate());
    };
    return value.isEmpty() || value.front() == u'"' || value != value.trimmed()
           || std::ranges::any_of(value, isSpecial);
}

QString SettingText::print(const QList<SettingText> &settings)
{
    QStringList parts;
    for (const auto &[element, property, value] : settings) {
        if (!ObjectPath::isValid(element) || !ObjectPath::isSegment(property)) {
            return {};
        }
        parts += u"%1.%2: %3"_s.arg(element, property, value);
    }
    return parts.isEmpty() ? u"{ }"_s : u"{ %1 }"_s.arg(parts.join(u"; "_s));
}

std::optional<QList<SettingText>> SettingText::read(const QString &text)
{
    return readAll(text, true);
}

std::optional<QList<SettingText>> SettingText::readOfOne(const QString &text)
{
    return readAll(text, false);
}

} // namespace Halvane::Corvex::Designer
