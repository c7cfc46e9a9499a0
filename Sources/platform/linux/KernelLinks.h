// The links of this process's network namespace, kept fresh.
//
// It holds a socket on which the kernel tells of every change to links, addresses and IPv4 routes.
// What it tells is not looked at: any word makes the links that were read stale, and whoever wants
// them next has them read anew (RtnetlinkSnapshot.h). The socket hears the changes before the links
// are read, so none is missed between the two. Changes are heard before the program that made them
// goes on; whoever asks later sees them, also before the run loop has turned.
//
// Threading: the main thread only. Ownership: the run loop must outlive this object. The network
// namespace is the one in which the object was made.

#pragma once

#include "platform/linux/NetworkLink.h"
#include "support/RunLoop.h"

#include <cstdint>
#include <functional>
#include <vector>

namespace kx {

class KernelLinks final {
public:
    explicit KernelLinks(RunLoop& runLoop);
    ~KernelLinks();
    KernelLinks(const KernelLinks&) = delete;
    KernelLinks& operator=(const KernelLinks&) = delete;

    // The links as they are now, in the order of their indexes; null, with errno set, when the
    // kernel cannot be asked. They stay until the next call.
    const std::vector<NetworkLink>* links();

    // Grows whenever links() has read the links anew.
    std::uint64_t generation() const { return _generation; }

    // What is called when the kernel has told of a change: from the run loop, or from inside
    // links().
    void setChangeAction(std::function<void()> action) { _changeAction = std::move(action); }

private:
    void hearChanges();

    int _descriptor;
    std::vector<NetworkLink> _links;
    std::uint64_t _generation = 0;
    bool _isStale = true;
    std::function<void()> _changeAction;
    RunLoop::Handle _watch;
};

} // namespace kx
