// How Qt finds the tour: as the generic plugin "kxtour".

#include "Tour.h"

#include <QGenericPlugin>
#include <QTimer>

namespace kx {

class TourPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "kxtour.json")

public:
    // Called while the application object is being made, so the tour waits for the event loop.
    QObject* create(const QString& /*name*/, const QString& /*specification*/) override {
        auto* const start = new QTimer;
        QObject::connect(start, &QTimer::timeout, start, [] { Tour().run(); });
        start->setSingleShot(true);
        start->start(0);
        return start;
    }
};

} // namespace kx

#include "TourPlugin.moc"
