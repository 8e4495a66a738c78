// SPDX-License-Identifier: MIT
#include "corvex/common/PictureFile.h"

#include "corvex/common/files/RegularFile.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Common {

namespace {

constexpr qint64 mostBytes = qint64(64) * 1024 * 1024;

//! The first bytes of raster images, which cannot refer to other files.
constexpr auto firstBytesOfDots =
    std::to_array<QByteArrayView>({"\x89PNG\r\n\x1a\n", "\xff\xd8\xff", "BM", "GIF87a", "GIF89a"});
constexpr QByteArrayView firstBytesOfGzip = "\x1f\x8b";

bool isOfDots(const QByteArray &bytes)
{
    return std::ranges::any_of(firstBytesOfDots,
                               [&bytes](QByteArrayView first) { return bytes.startsWith(first); });
}

//! Whether a reference points into the drawing itself. An embedded image may be a drawing again.
bool staysWithin(QStringView reference)
{
    const QStringView target = reference.trimmed();
    const auto marker = "base64,"_L1;
    const qsizetype data = target.lastIndexOf(marker);
    return target.isEmpty() || target.startsWith(u'#')
           || (target.startsWith("data:"_L1) && data > 0
               && isOfDots(QByteArray::fromBase64(target.sliced(data + marker.size()).toLatin1())));
}

//! The first reference of a drawing to something outside of it; empty without such a reference. The bytes may
//! be anything.
QString linkOf(const QByteArray &drawing)
{
    QXmlStreamReader reader(drawing);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isProcessingInstruction() && reader.processingInstructionTarget() == "xml-stylesheet"_L1) {
            return reader.processingInstructionData().toString();
        }
        const QXmlStreamAttributes attributes = reader.attributes();
        for (const QXmlStreamAttribute &attribute : attributes) {
            if (attribute.name() == "href"_L1 && !staysWithin(attribute.value())) {
                return attribute.value().toString();
            }
        }
    }
    return {};
}

} // namespace

QString PictureFile::problem(const QString &path)
{
    constexpr qsizetype longest = 100;
    QByteArray bytes;
    QString error;
    if (!RegularFile::read(path, mostBytes, &bytes, &error) || isOfDots(bytes)) {
        return error;
    }
    if (bytes.startsWith(firstBytesOfGzip)) {
        return u"\"%1\" is not drawn: it is a compressed drawing. Save it as plain SVG."_s.arg(path);
    }
    const QString link = linkOf(bytes);
    return link.isEmpty()
               ? QString()
               : u"\"%1\" is not drawn: it links to \"%2\". Embed the linked contents in the drawing."_s.arg(
                   path, link.left(longest));
}

} // namespace Halvane::Corvex::Common
