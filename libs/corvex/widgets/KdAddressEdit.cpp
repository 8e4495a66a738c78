// SPDX-License-Identifier: MIT
#include "corvex/widgets/KdAddressEdit.h"

#include "corvex/common/LocalizationHelper.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

using Common::LocalizationHelper;

namespace {

constexpr int largestOctet = 255;
constexpr int largestStation = 254; //!< 255 means all stations
constexpr int largeStep = 10;

//! How the octets of a kind are written.
struct Form
{
    int count;
    int base;
    int digits; //!< the most of an octet
    QChar separator;
    const char *pattern; //!< of an address in a longer text
};

constexpr Form forms[] = {
    {4, 10, 3, u'.', R"((?<![\d.])\d{1,3}(\.\d{1,3}){3}(?![\d.]))"},
    {6, 16, 2, u':', R"((?<![\dA-Fa-f:-])[\dA-Fa-f]{2}([:-][\dA-Fa-f]{2}){5}(?![\dA-Fa-f:-]))"},
};

QString printed(const Form &form, int octet)
{
    return form.base == 10 ? QString::number(octet)
                           : QString::number(octet, form.base).rightJustified(form.digits, u'0').toUpper();
}

//! The octets of a text with separators, or of hexadecimal digits without any.
QStringList split(const Form &form, const QString &text)
{
    static const QRegularExpression separators(uR"([.,:;\s-]+)"_s);
    QStringList octets = text.split(separators);
    if (form.base == 16 && octets.size() == 1 && text.size() == form.count * form.digits) {
        octets.clear();
        for (int place = 0; place < text.size(); place += form.digits) {
            octets.append(text.sliced(place, form.digits));
        }
    }
    return octets;
}

QString helpFor(KdAddressEdit::Kind kind)
{
    return kind == KdAddressEdit::IPv4
               ? LocalizationHelper::coreString(
                   u"An address has four numbers from 0 to 255, such as 192.168.0.10."_s)
               : LocalizationHelper::coreString(
                   u"An address has six pairs of hexadecimal digits, such as 00:1A:2B:3C:4D:5E, or is the "
                   u"number of a station, 0 to 254."_s);
}

} // namespace

KdAddressEdit::KdAddressEdit(Kind kind, QWidget *parent)
    : KdLineEdit(parent)
    , m_kind(kind)
{
    setPlaceholderText(kind == IPv4 ? u"0.0.0.0"_s : u"00:00:00:00:00:00"_s);
}

KdAddressEdit::Reading KdAddressEdit::read(Kind kind, const QString &text)
{
    const Form &form = forms[kind];
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty()) {
        return {};
    }
    bool isStation = false;
    const int station = trimmed.toInt(&isStation);
    if (kind == Mac && isStation && trimmed.size() <= 3) {
        return station >= 0 && station <= largestStation ? Reading{QString::number(station), {}}
                                                         : Reading{{}, helpFor(kind)};
    }
    QStringList octets = split(form, trimmed);
    for (QString &octet : octets) {
        bool isNumber = false;
        const int value = octet.toInt(&isNumber, form.base);
        if (!isNumber || octet.size() > form.digits || !octet.front().isLetterOrNumber()) {
            return {{}, helpFor(kind)};
        }
        if (value > largestOctet) {
            return {{},
                    LocalizationHelper::coreString(
                        u"\"%1\" is too large: the numbers of an address are 0 to 255."_s)
                        .arg(octet)};
        }
        octet = printed(form, value);
    }
    return octets.size() == form.count ? Reading{octets.join(form.separator), {}}
                                       : Reading{{}, helpFor(kind)};
}

//! Replaces the text by the address that the clipboard contains.
bool KdAddressEdit::pasteAddress()
{
    const QString pasted = QGuiApplication::clipboard()->text();
    const QRegularExpression pattern(QString::fromLatin1(forms[m_kind].pattern));
    const QRegularExpressionMatch match = pattern.match(pasted);
    const Reading reading = read(m_kind, match.hasMatch() ? match.captured() : pasted);
    if (reading.address.isEmpty()) {
        return false;
    }
    enterText(reading.address);
    return true;
}

bool KdAddressEdit::stepOctet(int step)
{
    const Form &form = forms[m_kind];
    const Reading reading = read(m_kind, text());
    if (reading.address.isEmpty() || isReadOnly()) {
        return false;
    }
    QStringList octets = reading.address.split(form.separator);
    const bool isStation = octets.size() == 1;
    const int place = int(QStringView(text()).first(cursorPosition()).count(form.separator));
    QString &octet = octets[std::min<qsizetype>(place, octets.size() - 1)];
    const int value = octet.toInt(nullptr, isStation ? 10 : form.base) + step;
    const int next = std::clamp(value, 0, isStation ? largestStation : largestOctet);
    octet = isStation ? QString::number(next) : printed(form, next);
    enterText(octets.join(form.separator));
    // The cursor stays in its octet.
    setCursorPosition(
        int(octets.first(std::min<qsizetype>(place + 1, octets.size())).join(form.separator).size()));
    emit stepped();
    return true;
}

//! After a complete octet at the end of the text.
void KdAddressEdit::addSeparator()
{
    const Form &form = forms[m_kind];
    const QString written = text();
    const QString last = written.section(form.separator, -1);
    bool isNumber = false;
    const int value = last.toInt(&isNumber, form.base);
    const bool isComplete = last.size() == form.digits;
    // A single number can be a station.
    const bool isUnclear = m_kind == Mac && written.size() == last.size();
    if (isNumber && isComplete && !isUnclear && value <= largestOctet && cursorPosition() == written.size()
        && written.count(form.separator) < form.count - 1) {
        insert(form.separator);
    }
}

void KdAddressEdit::keyPressEvent(QKeyEvent *event)
{
    const Form &form = forms[m_kind];
    const int size = event->modifiers() & Qt::ControlModifier ? largeStep : 1;
    const bool isUp = event->key() == Qt::Key_Up;
    if (isUp || event->key() == Qt::Key_Down) {
        stepOctet(isUp ? size : -size);
        return;
    }
    if (event->matches(QKeySequence::Paste) && !isReadOnly() && pasteAddress()) {
        return;
    }
    // A separator that was added already is not needed again.
    const bool isAtSeparator = cursorPosition() > 0 && text().at(cursorPosition() - 1) == form.separator;
    if (event->text() == form.separator && isAtSeparator && !hasSelectedText()) {
        return;
    }
    KdLineEdit::keyPressEvent(event);
    if (!event->text().isEmpty() && event->text().front().isLetterOrNumber() && hasEntry()) {
        addSeparator();
    }
}

} // namespace Halvane::Corvex::Designer
