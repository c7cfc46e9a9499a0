#include "tour/TourPlugin.h"

#include "driver/Visit.h"
#include "tour/Tour.h"

namespace kx {

QObject* TourPlugin::create(const QString& /*name*/, const QString& /*specification*/) {
    return beginVisit([](WindowDriver& driver) { Tour(driver).run(); });
}

} // namespace kx
