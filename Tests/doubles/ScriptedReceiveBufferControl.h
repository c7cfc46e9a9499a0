// Receive buffers of a system that the test plays. They record their requests and drop datagrams
// when the test says so. Every number from 0 on counts as an open descriptor.

#pragma once

#include "ReceiveBufferControl.h"

#include <map>
#include <vector>

namespace kx {

class ScriptedReceiveBufferControl final : public ReceiveBufferControl {
public:
    struct Wish {
        int descriptor;
        int bytes;

        bool operator==(const Wish&) const = default;
    };

    // The system drops this many datagrams for this socket.
    void drop(int descriptor, std::uint32_t datagrams) { _dropped[descriptor] += datagrams; }

    // After this, the system tells no counts.
    void tellNothing() { _tells = false; }

    // Every request, in order.
    const std::vector<Wish>& wishes() const { return _wishes; }

    // The number of times a count was requested.
    int lookCount() const { return _lookCount; }

    void enlarge(int descriptor, int bytes) override { _wishes.push_back({descriptor, bytes}); }

    std::optional<std::uint32_t> droppedDatagrams(int descriptor) override {
        ++_lookCount;
        return _tells && descriptor >= 0 ? std::optional(_dropped[descriptor]) : std::nullopt;
    }

private:
    std::map<int, std::uint32_t> _dropped;
    std::vector<Wish> _wishes;
    int _lookCount = 0;
    bool _tells = true;
};

} // namespace kx
