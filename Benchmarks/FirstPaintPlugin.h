// A Qt generic plugin that waits for the first paint of a window, writes a line to standard output,
// and ends the program. The line has the time of the paint in nanoseconds of the monotonic clock,
// and the most memory that the program has held at one time (VmHWM of proc(5)), in KiB.

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
