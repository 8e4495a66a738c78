// SPDX-License-Identifier: MIT
#include <QObject>
#include <QtPlugin>

#include <stdexcept>

namespace Halvane::Corvex::Test {

class ThrowingPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "halvane.corvex.designer.IDesignerFactory/1.0")

public:
    ThrowingPlugin() { throw std::runtime_error("no licence"); }
};

} // namespace Halvane::Corvex::Test

#include "ThrowingPlugin.moc"
