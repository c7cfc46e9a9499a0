// A Qt generic plugin that writes the time of the first paint of a window to standard output, as
// nanoseconds of the monotonic clock, and ends the program.

#pragma once

#include <QGenericPlugin>

namespace kx {

class FirstPaintPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FirstPaintPlugin.json")

public:
    QObject* create(const QString& name, const QString& specification) override;
};

} // namespace kx
