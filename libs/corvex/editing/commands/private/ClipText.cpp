// SPDX-License-Identifier: MIT
#include "corvex/editing/commands/private/ClipText.h"

#include "corvex/common/LocalizationHelper.h"
#include "corvex/common/files/FileHelper.h"
#include "corvex/core/xml/ObjectXmlReader.h"
#include "corvex/editing/commands/clipboard/ObjectClip.h"
#include "corvex/project/ImageResource.h"
#include "corvex/project/Screen.h"

#include <QBuffer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

namespace {

using Common::LocalizationHelper;

constexpr auto root = "CorvexObjects"_L1;
constexpr auto objectsPart = "Objects"_L1;
constexpr auto variablesPart = "Variables"_L1;
constexpr auto imagesPart = "Images"_L1;
constexpr int deepest = 512;
constexpr qsizetype lineLength = 76; // of images, for mails

//! The form of an object in its file, without the XML declaration.
QString formOf(const DesignerObject *object)
{
    const QString text = DesignerObject::toString(object);
    const qsizetype end = text.startsWith("<?xml"_L1) ? text.indexOf("?>"_L1) + 2 : 0;
    return text.sliced(end).trimmed();
}

void writePart(QString &text, QLatin1StringView part, const QList<DesignerObject *> &objects)
{
    if (!objects.isEmpty()) {
        text += u"<%1>\n"_s.arg(part);
        for (const DesignerObject *object : objects) {
            text += formOf(object) + u'\n';
        }
        text += u"</%1>\n"_s.arg(part);
    }
}

void writeImages(QString &text, const QList<DesignerObject *> &images)
{
    QXmlStreamWriter writer(&text);
    writer.writeStartElement(imagesPart);
    for (const DesignerObject *image : images) {
        QByteArray bytes;
        if (!Common::FileHelper::readFile(static_cast<const ImageResource *>(image)->filePath(), &bytes)) {
            continue; // a missing file is missing in the copy, too
        }
        const QString code = QString::fromLatin1(bytes.toBase64());
        writer.writeCharacters(u"\n"_s);
        writer.writeStartElement("Image"_L1);
        writer.writeAttribute("name"_L1, image->getIdName());
        for (qsizetype place = 0; place < code.size(); place += lineLength) {
            writer.writeCharacters(u'\n' + code.mid(place, lineLength));
        }
        writer.writeEndElement();
    }
    writer.writeEndElement();
    text += u'\n';
}

//! Reads one text.
class Reading
{
public:
    explicit Reading(const QString &text)
        : m_text(text)
        , m_reader(text)
    { }

    ClipText run()
    {
        if (!m_reader.readNextStartElement() || m_reader.name() != root) {
            fail(m_reader.errorString());
            return std::move(m_clip);
        }
        m_clip.screen = m_reader.attributes().value("screen"_L1).toString();
        while (m_clip.error.isEmpty() && m_reader.readNextStartElement()) {
            const QString part = m_reader.name().toString();
            if (part == imagesPart) {
                readImages();
            } else if (part == objectsPart) {
                readObjects(m_clip.objects);
            } else if (part == variablesPart) {
                readObjects(m_clip.variables);
            } else {
                fail(LocalizationHelper::coreString(u"it has an unknown part \"%1\"."_s).arg(part));
            }
        }
        if (m_reader.hasError() && m_clip.error.isEmpty()) {
            fail(m_reader.errorString());
        }
        return std::move(m_clip);
    }

private:
    void fail(const QString &reason)
    {
        m_clip.error = LocalizationHelper::coreString(u"The copied text cannot be read: %1"_s).arg(reason);
    }

    void readImages()
    {
        while (m_reader.readNextStartElement()) {
            const QString name = m_reader.attributes().value("name"_L1).toString();
            const QByteArray code = m_reader.readElementText().simplified().remove(u' ').toLatin1();
            const auto bytes = QByteArray::fromBase64Encoding(code, QByteArray::AbortOnBase64DecodingErrors);
            if (m_reader.hasError() || !bytes || (*bytes).isEmpty()) {
                fail(LocalizationHelper::coreString(u"the image \"%1\" is damaged."_s).arg(name));
                return;
            }
            m_clip.images.append({name, *bytes});
        }
    }

    //! The current element as it is written; empty, with an error, if it has no end.
    QString currentText()
    {
        const qsizetype begin = m_text.lastIndexOf(u'<', qsizetype(m_reader.characterOffset()) - 1);
        for (int depth = 1; depth > 0 && !m_reader.atEnd();) {
            const QXmlStreamReader::TokenType token = m_reader.readNext();
            depth += token == QXmlStreamReader::StartElement ? 1
                     : token == QXmlStreamReader::EndElement ? -1
                                                             : 0;
            if (depth > deepest) {
                fail(LocalizationHelper::coreString(u"its objects are nested too deep."_s));
                return {};
            }
        }
        const qsizetype end = m_text.indexOf(u'>', qsizetype(m_reader.characterOffset()) - 1);
        return m_reader.hasError() || begin < 0 || end < begin ? QString()
                                                               : m_text.sliced(begin, end + 1 - begin);
    }

    void readObjects(ClipText::Objects &objects)
    {
        while (m_reader.readNextStartElement()) {
            QByteArray form = currentText().toUtf8();
            if (form.isEmpty()) {
                return;
            }
            QBuffer buffer(&form);
            buffer.open(QIODevice::ReadOnly);
            ObjectXmlReader reader(&buffer);
            reader.setValidate(false);
            objects.emplace_back(reader.create());
            if (!objects.back()) {
                fail(reader.errorString());
                return;
            }
            objects.back()->setParent(nullptr);
            for (const ReadNote &note : reader.notes()) {
                m_clip.notes.append(note.place + u": "_s + note.message);
            }
        }
    }

    QString m_text;
    QXmlStreamReader m_reader;
    ClipText m_clip;
};

} // namespace

bool ClipText::isClip(const QString &text)
{
    constexpr qsizetype longestStart = 400; // a declaration and blanks before the root
    return QStringView(text).left(longestStart).contains(u"<CorvexObjects");
}

ClipText ClipText::read(const QString &text)
{
    ClipText failed;
    if (text.size() > ObjectClip::largestText) {
        failed.error = LocalizationHelper::coreString(u"The copied text is too large."_s);
        return failed;
    }
    const QString whole = text.trimmed();
    // Only a document type can define entities, and no copied text has one.
    if (whole.contains("<!DOCTYPE"_L1)) {
        failed.error = LocalizationHelper::coreString(u"The copied text has a document type."_s);
        return failed;
    }
    return Reading(whole).run();
}

QString ClipText::write(const QList<DesignerObject *> &objects, const QList<DesignerObject *> &variables,
                        const QList<DesignerObject *> &images)
{
    QString text = u"<%1 version=\"1\""_s.arg(root);
    for (const DesignerObject *object : objects) {
        if (object->screen() && object->screen() != object) {
            text += u" screen=\"%1\""_s.arg(object->screen()->getIdName().toHtmlEscaped());
            break;
        }
    }
    text += u">\n"_s;
    writePart(text, objectsPart, objects);
    writePart(text, variablesPart, variables);
    if (!images.isEmpty()) {
        writeImages(text, images);
    }
    return text + u"</%1>\n"_s.arg(root);
}

} // namespace Halvane::Corvex::Designer
