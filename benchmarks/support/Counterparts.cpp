// SPDX-License-Identifier: MIT
#include "support/Counterparts.h"

#include <QFile>
#include <QTextStream>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Benchmarks {

namespace {

QString inFolder(const char *name)
{
    return QStringLiteral(CORVEX_BENCHMARK_FOLDER "/") + QLatin1StringView(name);
}

void open(QFile &file)
{
    if (!file.open(QIODevice::WriteOnly)) {
        qFatal("%s cannot be written", qUtf8Printable(file.fileName()));
    }
}

//! The properties of a label; %1 is a running number.
constexpr const char *labelProperties[] = {
    R"(<property name="geometry"><rect><x>%1</x><y>20</y><width>120</width><height>24</height></rect></property>)",
    R"(<property name="font"><font><family>DejaVu Sans</family><pointsize>12</pointsize></font></property>)",
    R"(<property name="minimumSize"><size><width>10</width><height>20</height></size></property>)",
    R"(<property name="maximumSize"><size><width>800</width><height>480</height></size></property>)",
    R"(<property name="text"><string notr="true">Level %1 of &quot;tank&quot;</string></property>)",
    R"(<property name="toolTip"><string notr="true">Tool tip %1</string></property>)",
    R"(<property name="statusTip"><string notr="true">Status tip %1</string></property>)",
    R"(<property name="whatsThis"><string notr="true">What is this %1</string></property>)",
    R"(<property name="styleSheet"><string notr="true">color: #10%1;</string></property>)",
    R"(<property name="accessibleName"><string notr="true">label %1</string></property>)",
    R"(<property name="alignment"><set>Qt::AlignRight</set></property>)",
    R"(<property name="textFormat"><enum>Qt::PlainText</enum></property>)",
    R"(<property name="indent"><number>%1</number></property>)",
    R"(<property name="margin"><number>%1</number></property>)",
    R"(<property name="wordWrap"><bool>true</bool></property>)",
    R"(<property name="enabled"><bool>true</bool></property>)",
    R"(<property name="scaledContents"><bool>false</bool></property>)",
    R"(<property name="openExternalLinks"><bool>false</bool></property>)",
    R"(<property name="mouseTracking"><bool>false</bool></property>)",
    R"(<property name="acceptDrops"><bool>false</bool></property>)",
};
static_assert(std::size(labelProperties) == 20);

} // namespace

QString makeMap(const Counts &counts)
{
    QFile file(inFolder("map.tmx"));
    open(file);
    QTextStream map(&file);
    map << R"(<?xml version="1.0" encoding="UTF-8"?>
<map version="1.9" tiledversion="1.9.2" orientation="orthogonal" renderorder="right-down" width="10" height="10")"
        << u" tilewidth=\"32\" tileheight=\"32\" infinite=\"0\" nextlayerid=\"3\" nextobjectid=\"%1\">\n"_s
               .arg(counts.objects + 1)
        << " <objectgroup id=\"2\" name=\"objects\">\n";
    qint64 written = 0;
    for (int i = 1; i <= counts.objects; ++i) {
        map << u"  <object id=\"%1\" name=\"object%1\" x=\"%2\" y=\"%3\" width=\"10\" height=\"10\">\n"_s
                   .arg(i)
                   .arg(i % 100)
                   .arg(i / 100)
            << "   <properties>\n";
        const qint64 due = qint64(counts.properties) * i / counts.objects;
        for (int k = 0; written < due; ++written, ++k) {
            map << "    <property name=\"property" << k << "\" value=\"the value with number " << written
                << "\"/>\n";
        }
        map << "   </properties>\n  </object>\n";
    }
    map << " </objectgroup>\n</map>\n";
    return file.fileName();
}

QString makeForm(int widgets)
{
    QFile file(inFolder("form.ui"));
    open(file);
    QTextStream form(&file);
    form << R"(<?xml version="1.0" encoding="UTF-8"?>
<ui version="4.0">
 <class>Form</class>
 <widget class="QWidget" name="Form">
)";
    for (int i = 0; i < widgets; ++i) {
        form << "  <widget class=\"QLabel\" name=\"label" << i << "\">\n";
        for (const char *property : labelProperties) {
            const QString line = QString::fromLatin1(property);
            form << "   " << (line.contains("%1"_L1) ? line.arg(i) : line) << '\n';
        }
        form << "  </widget>\n";
    }
    form << " </widget>\n</ui>\n";
    return file.fileName();
}

} // namespace Halvane::Corvex::Benchmarks
