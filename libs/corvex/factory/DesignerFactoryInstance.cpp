// SPDX-License-Identifier: MIT
// Creates the process-wide factory, on the only layer that knows all classes of the library.
#include "corvex/core/DesignerFactory.h"
#include "corvex/factory/CoreFactory.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace Halvane::Corvex::Designer {

bool DesignerFactory::createInstance(const QString &path)
{
    if (!QCoreApplication::instance() || !QFileInfo::exists(path)) {
        qWarning("Failed to create the factory: there is no application object, or no \"%s\".",
                 qUtf8Printable(path));
        return false;
    }
    delete instance();
    auto *factory = new DesignerFactory(QCoreApplication::instance());
    auto *core = new CoreFactory(factory);
    if (!factory->registerFactory(core)) {
        qWarning("Failed to load CoreFactory");
        delete factory;
        return false;
    }
    factory->loadPlugins(QDir(path).absoluteFilePath(u"Plugins/DesignerObjects"_s));
    return true;
}

} // namespace Halvane::Corvex::Designer
