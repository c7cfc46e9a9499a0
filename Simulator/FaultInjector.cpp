#include "Simulator/FaultInjector.h"

#include <algorithm>

namespace kx::simulator {

namespace {

constexpr std::size_t longestNoise = 200;

} // namespace

FaultInjector::FaultInjector(const FaultPlan& plan)
    : _plan(plan)
    , _random(plan.seed) {}

std::vector<Delivery> FaultInjector::deliveriesOf(Bytes reply) {
    if (strikes(_plan.losePercent)) {
        return {};
    }
    if (strikes(_plan.malformPercent)) {
        damage(reply);
    }
    if (_plan.truncatedLength && reply.size() > *_plan.truncatedLength) {
        reply.resize(*_plan.truncatedLength);
    }

    std::vector<Delivery> deliveries(strikes(_plan.duplicatePercent) ? 2 : 1);
    for (Delivery& delivery : deliveries) {
        delivery.delay = _plan.late;
        if (strikes(_plan.reorderPercent)) {
            delivery.delay += overtakingTime;
        }
        delivery.payload = reply;
    }
    return deliveries;
}

// The standard distributions may differ between libraries. The remainder does not, and its tiny
// unevenness does no harm here.
std::size_t FaultInjector::below(std::size_t bound) {
    return static_cast<std::size_t>(_random() % bound);
}

bool FaultInjector::strikes(unsigned percent) {
    return percent != 0 && below(100) < percent;
}

// Damages a reply in one of the ways that happen in practice: one wrong byte, a missing end, extra
// bytes behind it, or only noise.
void FaultInjector::damage(Bytes& reply) {
    const auto noise = [this] { return static_cast<std::uint8_t>(_random()); };
    switch (reply.empty() ? 3 : below(4)) {
    case 0: {
        std::uint8_t& byte = reply[below(reply.size())];
        byte = static_cast<std::uint8_t>(byte + 1 + below(255));
        break;
    }
    case 1:
        reply.resize(below(reply.size()));
        break;
    case 2:
        std::generate_n(std::back_inserter(reply), 1 + below(longestNoise), noise);
        break;
    default:
        reply.resize(below(longestNoise + 1));
        std::ranges::generate(reply, noise);
        break;
    }
}

} // namespace kx::simulator
