// SPDX-License-Identifier: MIT
#include "corvex/variables/exchange/DbcExport.h"

#include "corvex/core/properties/ExpressionProperties.h"
#include "corvex/variables/CANVariable.h"
#include "corvex/variables/CanParameterMap.h"

#include <QLocale>
#include <QSet>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

//! Keywords of the format, which cannot be names.
const QSet<QString> &keywords()
{
    static const QSet<QString> words{u"VERSION"_s,       u"NS_"_s,
                                     u"NS_DESC_"_s,      u"BS_"_s,
                                     u"BU_"_s,           u"BO_"_s,
                                     u"SG_"_s,           u"EV_"_s,
                                     u"CM_"_s,           u"VAL_"_s,
                                     u"VAL_TABLE_"_s,    u"CAT_"_s,
                                     u"CAT_DEF_"_s,      u"FILTER"_s,
                                     u"BA_"_s,           u"BA_DEF_"_s,
                                     u"BA_DEF_DEF_"_s,   u"BA_REL_"_s,
                                     u"BA_DEF_REL_"_s,   u"BA_DEF_DEF_REL_"_s,
                                     u"BA_SGTYPE_"_s,    u"BA_DEF_SGTYPE_"_s,
                                     u"BO_TX_BU_"_s,     u"BU_SG_REL_"_s,
                                     u"BU_EV_REL_"_s,    u"BU_BO_REL_"_s,
                                     u"EV_DATA_"_s,      u"ENVVAR_DATA_"_s,
                                     u"SGTYPE_"_s,       u"SGTYPE_VAL_"_s,
                                     u"SIG_GROUP_"_s,    u"SIG_VALTYPE_"_s,
                                     u"SIG_TYPE_REF_"_s, u"SIGTYPE_VALTYPE_"_s,
                                     u"SG_MUL_VAL_"_s,   u"INT"_s,
                                     u"HEX"_s,           u"FLOAT"_s,
                                     u"STRING"_s,        u"ENUM"_s,
                                     u"Vector__XXX"_s,   u"VECTOR__INDEPENDENT_SIG_MSG"_s};
    return words;
}

//! Marks identifiers with 29 bits.
constexpr quint32 extendedFrame = 0x80000000U;

QString number(double value)
{
    // Readers of the format do not know exponents.
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

//! The format has no way to write a quote inside quotes.
QString quoted(const QString &text)
{
    QString plain = text.simplified();
    return u"\"%1\""_s.arg(plain.replace(u'"', u'\'').replace(u'\\', u'/'));
}

QString identifier(const QString &name)
{
    QString result;
    for (const QChar character : name) {
        const bool isPlain = character.unicode() < 128 && (character.isLetterOrNumber() || character == u'_');
        result += isPlain ? character : QChar(u'_');
    }
    return result.isEmpty() || result.at(0).isDigit() ? u'_' + result : result;
}

struct Signal
{
    QString name;
    QString variable;
    CanParameter parameter;
};

struct Message
{
    QString id;
    QString name;
    QList<Signal> parameters;
    QSet<QString> signalNames;
};

class Database
{
public:
    void add(const QString &variable, const CanParameterMap &map)
    {
        const quint32 id = map.identifier();
        if (!m_places.contains(id)) {
            m_places.insert(id, m_messages.size());
            m_messages.append({QString::number(id | extendedFrame), uniqueName(variable), {}, {}});
        }
        Message &message = m_messages[m_places.value(id)];
        for (const CanParameter &parameter : map.parameters()) {
            QString name = u"SPN%1"_s.arg(QString::number(parameter.spn));
            if (message.signalNames.contains(name)) {
                name += u'_' + identifier(variable);
            }
            message.signalNames.insert(name);
            message.parameters.append({name, variable, parameter});
        }
    }

    QString toText() const
    {
        QString text = u"VERSION \"\"\n\nNS_ :\n\nBS_:\n\nBU_:\n\n"_s;
        for (const Message &message : m_messages) {
            text += u"BO_ %1 %2: 8 Vector__XXX\n"_s.arg(message.id, message.name);
            for (const Signal &signal : message.parameters) {
                text += signalLine(signal);
            }
            text += u'\n';
        }
        return text + comments() + attributes();
    }

private:
    QString uniqueName(const QString &variable)
    {
        QString name = identifier(variable);
        while (m_names.contains(name) || keywords().contains(name)) {
            name += u'_';
        }
        m_names.insert(name);
        return name;
    }

    static QString signalLine(const Signal &signal)
    {
        const CanParameter &parameter = signal.parameter;
        const int start = (parameter.byte - 1) * 8 + parameter.bit - 1;
        return u" SG_ %1 : %2|%3@1+ (%4,%5) [%6|%7] %8 Vector__XXX\n"_s.arg(
            signal.name, QString::number(start), QString::number(parameter.length), number(parameter.scaling),
            number(parameter.offset), number(parameter.minimum), number(parameter.maximum),
            quoted(parameter.units));
    }

    template<class Line>
    QString forEachSignal(Line line) const
    {
        QString text;
        for (const Message &message : m_messages) {
            for (const Signal &signal : message.parameters) {
                text += line(message, signal);
            }
        }
        return text;
    }

    QString comments() const
    {
        return forEachSignal([](const Message &message, const Signal &signal) {
                   return u"CM_ SG_ %1 %2 %3;\n"_s.arg(message.id, signal.name, quoted(signal.variable));
               })
               + u'\n';
    }

    QString attributes() const
    {
        QString text = u"BA_DEF_ \"ProtocolType\" STRING ;\n"
                       "BA_DEF_ BO_ \"VFrameFormat\" ENUM \"StandardCAN\",\"ExtendedCAN\",\"reserved\","
                       "\"J1939PG\";\n"
                       "BA_DEF_ SG_ \"SPN\" INT 0 524287;\n"
                       "BA_DEF_DEF_ \"ProtocolType\" \"J1939\";\n"
                       "BA_DEF_DEF_ \"VFrameFormat\" \"J1939PG\";\n"
                       "BA_DEF_DEF_ \"SPN\" 0;\n"
                       "BA_ \"ProtocolType\" \"J1939\";\n"_s;
        for (const Message &message : m_messages) {
            text += u"BA_ \"VFrameFormat\" BO_ %1 3;\n"_s.arg(message.id);
        }
        return text + forEachSignal([](const Message &message, const Signal &signal) {
                   return u"BA_ \"SPN\" SG_ %1 %2 %3;\n"_s.arg(message.id, signal.name,
                                                               QString::number(signal.parameter.spn));
               });
    }

    QList<Message> m_messages;
    QHash<quint32, qsizetype> m_places;
    QSet<QString> m_names;
};

//! Readers expect the character set of Western Europe.
void reportLostUnits(const QString &variable, const CanParameterMap &map, QStringList &problems)
{
    for (const CanParameter &parameter : map.parameters()) {
        if (QString::fromLatin1(parameter.units.toLatin1()) != parameter.units) {
            problems.append(
                u"%1: The unit \"%2\" of SPN %3 has characters that the file format does not support."_s.arg(
                    variable, parameter.units, QString::number(parameter.spn)));
        }
    }
}

} // namespace

Exported DbcExport::write(const DesignerObject &project)
{
    Exported exported;
    Database database;
    for (const DesignerObject *object :
         project.getListItemsInListPropertyOfType(u"variables"_s, CANVariable::kindName())) {
        const SharedProperty terms = static_cast<const CANVariable *>(object)->parameterMap();
        CanParameterMap map;
        QString error;
        if (map.read(valueAs<GeneralDataListProperty>(terms), error)) {
            database.add(object->getIdName(), map);
            reportLostUnits(object->getIdName(), map, exported.problems);
        } else {
            exported.problems.append(u"%1.%2: %3"_s.arg(object->getIdName(), terms->id(), error));
        }
    }
    exported.files.append({project.getIdName() + u".dbc"_s, database.toText().toLatin1()});
    return exported;
}

} // namespace Halvane::Corvex::Designer
