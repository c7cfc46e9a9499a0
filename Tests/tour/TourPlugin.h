// How Qt finds the kinds of visit: as the generic plugins "kxtour" (Tour.h), "kxsteps" (Steps.h),
// "kxsoak" (Soak.h) and "kxsiege" (Siege.h). When a visit is over it closes the window, which ends
// the program; after a failure it says on standard error what was missing, and ends the program
// with exit status 1.

#pragma once

#include <QGenericPlugin>

namespace kx {

class TourPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "kxtour.json")

public:
    // Called while the application object is being made. The visit begins in the event loop.
    QObject* create(const QString& name, const QString& specification) override;
};

} // namespace kx
