#include "support/InstanceNames.h"

#include "support/TextFormat.h"

namespace kx {

std::string instanceName(std::string_view baseName, int number) {
    return number == 0 ? std::string(baseName) : filledText("%@_%d", {baseName, number});
}

} // namespace kx
