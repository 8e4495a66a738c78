// SPDX-License-Identifier: MIT
#include "corvex/checks/ExpressionSyntax.h"
#include "corvex/core/DesignerFactory.h"
#include "corvex/core/xml/ObjectXmlReader.h"
#include "corvex/core/xml/ObjectXmlWriter.h"
#include "corvex/project/Project.h"
#include "corvex/project/Screen.h"

#include "FuzzSupport.h"
#include "support/CodeShape.h"

#include <QBuffer>
#include <QGuiApplication>

#include <memory>

using namespace Halvane::Corvex::Designer;

namespace {

//! The factory with the standard elements.
void start()
{
    static int argc = 1;
    static char name[] = "projectXml";
    static char *argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(argc, argv);
    Fuzz::require(DesignerFactory::createInstance(QStringLiteral(CORVEX_LIBRARY_DIR)), "the factory");
    Fuzz::require(DesignerFactory::instance()->canCreateObject(QStringLiteral("Text")), "the elements");
}

std::unique_ptr<DesignerObject> read(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    ObjectXmlReader reader(&buffer);
    std::unique_ptr<DesignerObject> object(reader.create());
    Fuzz::require(object ? reader.errorString().isEmpty() : !reader.errorString().isEmpty(), "error");
    return object;
}

QByteArray write(const DesignerObject *object)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    ObjectXmlWriter writer(&buffer);
    return writer.write(object) ? buffer.data() : QByteArray();
}

void checkQml(const DesignerObject *object)
{
    object->toQml(0);
    const auto *project = kindCast<Project>(object);
    if (!project) {
        return;
    }
    ExpressionSyntax syntax;
    for (const DesignerObject *screen : project->screens()->listItems()) {
        const QString qml = screen->toQml(0);
        Fuzz::require(foreignCall(qml).isEmpty(), "a call of something else", foreignCall(qml));
        Fuzz::require(!project->isValid() || syntax.checkDocument(qml).valid, "QML of a good project", qml);
    }
}

} // namespace

//! Everything that can be read must be written, read again, and then be written as the same bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool started = (start(), true);
    Q_UNUSED(started)
    const std::unique_ptr<DesignerObject> object =
        read(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    if (!object) {
        return 0;
    }
    checkQml(object.get());
    const QByteArray first = write(object.get());
    if (first.isEmpty()) {
        return 0; // a project without a configuration, for example
    }
    const std::unique_ptr<DesignerObject> again = read(first);
    Fuzz::require(again != nullptr, "what was written cannot be read", QString::fromUtf8(first));
    const QByteArray second = write(again.get());
    Fuzz::require(second == first, "written again", QString::fromUtf8(first + "\n----\n" + second));
    Fuzz::require(again->isValid() == object->isValid(), "good as before", QString::fromUtf8(first));
    return 0;
}
