// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/DbcFile.h"

#include "corvex/common/LocalizationHelper.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

constexpr quint32 extendedFrame = 0x80000000U;
//! Of the message that holds signals without a message.
constexpr quint32 signalPool = 0xC0000000U;
constexpr int bitsPerByte = 8;
constexpr int dataBits = 64;
constexpr int largestSpn = 524287;
constexpr int firstFreeSpn = 516096;
constexpr int largestSource = 253;
constexpr auto outside = "Its bits reach beyond the eight bytes of the message.";

QString translated(const char *text)
{
    return LocalizationHelper::coreString(QString::fromLatin1(text));
}

QString decoded(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

//! Reads the statements of a file. A statement is a line, or ends at the line in which its text ends.
class Reader
{
public:
    Reader(QList<DbcMessage> &messages, QList<CsvText::Problem> &problems)
        : m_messages(messages)
        , m_problems(problems)
    { }

    void read(const QString &text)
    {
        QString statement;
        int first = 0;
        int number = 0;
        for (const QStringView line : QStringView(text).split(u'\n')) {
            ++number;
            if (statement.isEmpty()) {
                first = number;
                statement = line.trimmed().toString();
            } else {
                statement += u'\n' + line.trimmed().toString();
            }
            m_quotes += line.count(u'"') - line.count(u"\\\"");
            if (m_quotes % 2 == 0) {
                readStatement(first, std::exchange(statement, {}));
                m_quotes = 0;
            }
        }
        if (!statement.isEmpty()) {
            fail(first, translated("A text has no closing quote, so the rest of the file cannot be read."));
        }
        for (DbcMessage &message : m_messages) {
            complete(message);
        }
    }

private:
    struct Place
    {
        qsizetype message = -1;
        qsizetype row = -1; //!< of the signal
    };

    void fail(int line, const QString &text) { m_problems.append({line, text}); }

    void readStatement(int line, const QString &statement)
    {
        // The names of the statements are also listed, one in each line.
        const auto space = std::ranges::find_if(statement, [](QChar c) { return c.isSpace(); });
        const QStringView word(statement.constData(), space - statement.begin());
        if (word.size() == statement.size()) {
            return;
        }
        if (word == "BO_"_L1) {
            readMessage(line, statement);
        } else if (word == "SG_"_L1) {
            readSignal(line, statement);
        } else if (word == "CM_"_L1) {
            readComment(statement);
        } else if (word == "BA_"_L1) {
            readNumber(line, statement);
        }
    }

    void readMessage(int line, const QString &statement)
    {
        static const QRegularExpression form(uR"(^BO_\s+(\d+)\s+(\w+)\s*:\s*\d+)"_s);
        const QRegularExpressionMatch match = form.match(statement);
        bool isNumber = false;
        const quint32 identifier = match.captured(1).toUInt(&isNumber);
        const QString key = QString::number(identifier);
        m_hasMessage = isNumber && identifier != signalPool && !m_places.contains(key);
        if (!isNumber) {
            fail(line,
                 translated("A message needs an identifier, a name and a length, such as \"BO_ 2364540158 "
                            "EEC1: 8 Engine\"."));
        } else if (m_hasMessage) {
            DbcMessage message;
            message.name = match.captured(2);
            message.identifier = identifier;
            if (!(identifier & extendedFrame)) {
                message.obstacle =
                    translated("The identifier has 11 bits. Parameter groups have identifiers with 29 bits.");
            } else if (m_names.contains(message.name)) {
                fail(line, LocalizationHelper::coreString(u"There are several messages \"%1\"."_s)
                               .arg(message.name));
            }
            m_names.insert(message.name);
            m_places.insert(key, {m_messages.size(), -1});
            m_messages.append(message);
        } else if (identifier != signalPool) {
            fail(line, LocalizationHelper::coreString(
                           u"There is a message with the identifier %1 already. This one is left out."_s)
                           .arg(key));
        }
    }

    void readSignal(int line, const QString &statement)
    {
        static const QRegularExpression form(
            uR"-(^SG_\s+(\w+)\s*(?:(M|m\d+M?)\s*)?:\s*(\d+)\|(\d+)@([01])([+-])\s*)-"
            uR"-(\(([^,]*),([^)]*)\)\s*\[([^|]*)\|([^\]]*)\]\s*"([^"]*)")-"_s);
        if (!m_hasMessage) {
            return; // its message is left out
        }
        const QRegularExpressionMatch match = form.match(statement);
        bool isGood = match.hasMatch();
        const auto number = [&match, &isGood](int place) {
            bool isNumber = false;
            const double value = match.captured(place).trimmed().toDouble(&isNumber);
            isGood = isGood && isNumber && std::isfinite(value);
            return value;
        };
        DbcSignal signal;
        signal.name = match.captured(1);
        const double start = number(3);
        const double length = number(4);
        signal.parameter.scaling = number(7);
        signal.parameter.offset = number(8);
        signal.parameter.minimum = number(9);
        signal.parameter.maximum = number(10);
        signal.parameter.units = match.captured(11);
        signal.parameter.spn = -1;
        if (!isGood) {
            fail(line,
                 translated("A signal needs a name, bits, factor, offset, range and unit, such as \"SG_ "
                            "EngineSpeed : 24|16@1+ (0.125,0) [0|8031.875] \"rpm\" Display\"."));
            return;
        }
        DbcMessage &message = m_messages.last();
        const QString key = QString::number(message.identifier) + u' ' + signal.name;
        if (m_places.contains(key)) {
            fail(line, LocalizationHelper::coreString(
                           u"The message \"%1\" has a signal \"%2\" already. This one is left out."_s)
                           .arg(message.name, signal.name));
            return;
        }
        signal.obstacle = match.captured(2).startsWith(u'm') ? translated("It is not in every message.")
                          : match.captured(6) == u'-'        ? translated("Its raw value has a sign.")
                                                             : QString();
        if (length < 1 || length > dataBits || start >= dataBits) {
            signal.obstacle = translated(outside);
        } else {
            place(signal, int(start), int(length), match.captured(5) == u'1');
        }
        m_places.insert(key, {m_messages.size() - 1, message.content.size()});
        message.content.append(signal);
    }

    //! The lowest bit is known if the lowest byte is sent first, or if there is only one byte.
    static void place(DbcSignal &signal, int start, int length, bool isLowestFirst)
    {
        if (isLowestFirst && start + length > dataBits) {
            signal.obstacle = translated(outside);
            return;
        }
        if (!isLowestFirst && start % bitsPerByte + 1 < length) {
            signal.obstacle = translated("Its highest byte is sent first.");
            return;
        }
        const int lowest = isLowestFirst ? start : start - length + 1;
        signal.parameter.byte = lowest / bitsPerByte + 1;
        signal.parameter.bit = lowest % bitsPerByte + 1;
        signal.parameter.length = length;
    }

    void readComment(const QString &statement)
    {
        static const QRegularExpression form(
            uR"-(^CM_\s+(?:BO_\s+(\d+)|SG_\s+(\d+)\s+(\w+))\s+"(.*)"\s*;)-"_s,
            QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = form.match(statement);
        const QString text = match.captured(4).simplified();
        if (const Place *place = find(match.captured(1), {})) {
            m_messages[place->message].comment = text;
        } else if (const Place *signal = find(match.captured(2), match.captured(3))) {
            m_messages[signal->message].content[signal->row].comment = text;
        }
    }

    void readNumber(int line, const QString &statement)
    {
        static const QRegularExpression form(uR"(^BA_\s+"SPN"\s+SG_\s+(\d+)\s+(\w+)\s+(\d+)\s*;)"_s);
        const QRegularExpressionMatch match = form.match(statement);
        const Place *place = match.hasMatch() ? find(match.captured(1), match.captured(2)) : nullptr;
        if (!place) {
            return;
        }
        bool isNumber = false;
        const int spn = match.captured(3).toInt(&isNumber);
        if (isNumber && spn <= largestSpn) {
            m_messages[place->message].content[place->row].parameter.spn = spn;
        } else {
            fail(line, LocalizationHelper::coreString(u"An SPN is a number from 0 to %1, not %2."_s)
                           .arg(QString::number(largestSpn), match.captured(3)));
        }
    }

    const Place *find(const QString &message, const QString &signal) const
    {
        const auto place = m_places.constFind(signal.isEmpty() ? message : message + u' ' + signal);
        return place == m_places.cend() ? nullptr : &*place;
    }

    static void complete(DbcMessage &message)
    {
        static const QRegularExpression numbered(u"^SPN_?(\\d{1,6})(?!\\d)"_s,
                                                 QRegularExpression::CaseInsensitiveOption);
        QHash<int, QString> owners;
        for (DbcSignal &signal : message.content) {
            const QRegularExpressionMatch match = numbered.match(signal.name);
            int &spn = signal.parameter.spn;
            if (spn <= 0 && match.hasMatch() && match.captured(1).toInt() <= largestSpn) {
                spn = match.captured(1).toInt();
            }
            if (spn > 0 && !owners.contains(spn)) {
                owners.insert(spn, signal.name);
            }
        }
        int next = firstFreeSpn;
        std::array<const DbcSignal *, dataBits> users{};
        for (DbcSignal &signal : message.content) {
            CanParameter &parameter = signal.parameter;
            if (parameter.spn <= 0) {
                while (owners.contains(next)) {
                    ++next;
                }
                parameter.spn = next;
                owners.insert(next, signal.name);
            }
            completeRange(parameter);
            if (!signal.obstacle.isEmpty()) {
                continue;
            }
            const QString &owner = owners.value(parameter.spn);
            const int start = (parameter.byte - 1) * bitsPerByte + parameter.bit - 1;
            const auto bits = std::span(users).subspan(size_t(start), size_t(parameter.length));
            const auto used = std::ranges::find_if(bits, [](const DbcSignal *user) { return user; });
            if (parameter.scaling == 0) {
                signal.obstacle = translated("Its factor is 0.");
            } else if (owner != signal.name) {
                signal.obstacle = LocalizationHelper::coreString(u"\"%1\" has the same SPN."_s).arg(owner);
            } else if (used != bits.end()) {
                signal.obstacle =
                    LocalizationHelper::coreString(u"\"%1\" uses the same bits."_s).arg((*used)->name);
            } else {
                std::ranges::fill(bits, &signal);
            }
        }
    }

    //! "[0|0]" means that the range is not known.
    static void completeRange(CanParameter &parameter)
    {
        if (parameter.minimum >= parameter.maximum) {
            const double highest =
                (std::pow(2.0, parameter.length) - 1) * parameter.scaling + parameter.offset;
            parameter.minimum = std::min(parameter.offset, highest);
            parameter.maximum = std::max(parameter.offset, highest);
        }
    }

    QList<DbcMessage> &m_messages;
    QList<CsvText::Problem> &m_problems;
    QHash<QString, Place> m_places; //!< of messages by identifier, of signals by identifier and name
    QSet<QString> m_names;
    qsizetype m_quotes = 0; //!< in the current statement
    bool m_hasMessage = false;
};

} // namespace

CanParameterMap DbcMessage::toMap(int sourceAddress) const
{
    const int source = int(identifier & 0xFF);
    CanParameterMap map;
    map.setPgn(pgn());
    map.setPriority(int(identifier >> 26 & 7));
    map.setSourceAddress(source > largestSource ? sourceAddress : source);
    for (const DbcSignal &signal : content) {
        if (signal.obstacle.isEmpty()) {
            map.append(signal.parameter);
        }
    }
    return map;
}

DbcFile::DbcFile(const QByteArray &bytes)
{
    Reader(m_messages, m_problems).read(decoded(bytes));
}

} // namespace Halvane::Corvex::Designer
