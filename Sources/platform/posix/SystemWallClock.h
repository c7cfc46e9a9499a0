// The host's own clock, and its time zone as it is when asked.

#pragma once

#include "support/WallClock.h"

namespace kx {

class SystemWallClock final : public WallClock {
public:
    std::tm localTime() const override;
};

} // namespace kx
