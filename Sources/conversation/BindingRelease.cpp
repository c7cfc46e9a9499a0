#include "conversation/BindingRelease.h"

#include "addresses/IPv4Address.h"
#include "conversation/ARPEntry.h"

#include <algorithm>
#include <utility>

namespace kx {

BindingRelease::BindingRelease(const Services& services, std::vector<std::uint32_t> links,
                               std::vector<JournalledBinding> left)
    : _services(services)
    , _links(std::move(links))
    , _left(std::move(left)) {}

void BindingRelease::start() {
    beginNext();
}

void BindingRelease::beginNext() {
    while (_next < _left.size() && !_isInterrupted) {
        const JournalledBinding binding = _left[_next++];
        if (isThere(binding)) {
            _services.bindings.release(
                binding.address, binding.hardwareAddress,
                [this, binding, isAlive = std::weak_ptr(_isAlive)](const ARPEntry& entry) {
                    if (!isAlive.expired()) {
                        didRelease(binding, entry);
                    }
                });
            return;
        }
        noteGone(binding);
    }
    end();
}

bool BindingRelease::isThere(const JournalledBinding& binding) const {
    return std::ranges::any_of(_links, [&](std::uint32_t link) {
        return isBoundOnLink(_services.neighbours, ipForString(binding.address), link,
                             binding.hardwareAddress);
    });
}

void BindingRelease::didRelease(const JournalledBinding& binding, const ARPEntry& entry) {
    if (entry.state == ARPEntryState::started) {
        ++_released;
        noteGone(binding);
    } else {
        _failures.push_back({.binding = binding, .entry = entry});
    }
    beginNext();
}

// A journal that fails only makes the next run look for the entry again.
void BindingRelease::noteGone(JournalledBinding binding) {
    if (_services.journal != nullptr) {
        binding.isMade = false;
        _services.journal->write(binding, [](bool) {});
    }
}

} // namespace kx
