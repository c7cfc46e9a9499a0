#include "TourPlugin.h"

#include "Tour.h"

#include <QTimer>
#include <memory>

namespace kx {

QObject* TourPlugin::create(const QString& /*name*/, const QString& /*specification*/) {
    auto start = std::make_unique<QTimer>();
    connect(start.get(), &QTimer::timeout, start.get(), [] { Tour().run(); });
    start->setSingleShot(true);
    start->start(0);
    return start.release();
}

} // namespace kx
