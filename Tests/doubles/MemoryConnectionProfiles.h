// Connection profiles that the test writes. Changes are reported at once.

#pragma once

#include "platform/linux/ConnectionProfiles.h"

#include <utility>

namespace kx {

class MemoryConnectionProfiles final : public ConnectionProfiles {
public:
    void setProfiles(std::vector<ConnectionProfile> profiles) {
        if (profiles != _profiles) {
            _profiles = std::move(profiles);
            ++_generation;
            if (_changeAction) {
                _changeAction();
            }
        }
    }

    const std::vector<ConnectionProfile>& activeProfiles() override { return _profiles; }
    std::uint64_t generation() const override { return _generation; }
    void setChangeAction(std::function<void()> action) override {
        _changeAction = std::move(action);
    }

private:
    std::vector<ConnectionProfile> _profiles;
    std::uint64_t _generation = 0;
    std::function<void()> _changeAction;
};

} // namespace kx
