#include "tests/VisitsPlugin.h"

#include "driver/Visit.h"
#include "tests/Siege.h"
#include "tests/Soak.h"
#include "tests/Steps.h"

namespace kx {

namespace {

template<class Kind>
QObject* begin() {
    return beginVisit([](WindowDriver& driver) { Kind(driver).run(); });
}

} // namespace

QObject* VisitsPlugin::create(const QString& name, const QString& /*specification*/) {
    if (name == "kxsteps") {
        return begin<Steps>();
    }
    if (name == "kxsoak") {
        return begin<Soak>();
    }
    return name == "kxsiege" ? begin<Siege>() : nullptr;
}

} // namespace kx
