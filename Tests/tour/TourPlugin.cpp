#include "TourPlugin.h"

#include "Tour.h"
#include "Visit.h"

namespace kx {

QObject* TourPlugin::create(const QString& /*name*/, const QString& /*specification*/) {
    return beginVisit([](WindowDriver& driver) { Tour(driver).run(); });
}

} // namespace kx
