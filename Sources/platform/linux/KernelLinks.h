// The links of this process's network namespace, kept fresh.
//
// A socket of this object hears every change to links, addresses and IPv4 routes from the kernel.
// The contents of these messages are ignored. Any message makes the links stale, and the next call
// of links() reads them again (RtnetlinkSnapshot.h). The socket hears changes before the links are
// read, so no change is missed between the two. The socket hears a change before the program that
// made it goes on. So a later call of links() sees the change, even before the run loop has turned.
//
// When the kernel does not tell its links in time, or not all of its routes, it is not asked again
// for a second. Meanwhile links() gives the links that the kernel told last. After the second a
// change is announced, because there may have been one.
//
// Threading: the main thread only. Ownership: the run loop must outlive this object. Changes are
// heard from the network namespace in which the object was made. Links are read from the namespace
// in which links() is called. Both must be the same.

#pragma once

#include "platform/linux/NetworkLink.h"
#include "platform/linux/RtnetlinkSnapshot.h"
#include "support/RunLoop.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace kx {

class KernelLinks final {
public:
    // Reads the links as readNetworkLinks() does, and fails in the same way.
    using Reader = std::function<std::optional<LinkSnapshot>()>;

    explicit KernelLinks(RunLoop& runLoop);
    KernelLinks(RunLoop& runLoop, Reader read);
    ~KernelLinks();
    KernelLinks(const KernelLinks&) = delete;
    KernelLinks& operator=(const KernelLinks&) = delete;

    // The links as they are now, in the order of their indexes. Null, with errno set, when the
    // kernel cannot be asked, or has not told any links in time yet. The pointer is valid until the
    // next call.
    const std::vector<NetworkLink>* links();

    // Grows whenever links() has read the links anew.
    std::uint64_t generation() const { return _generation; }

    // Sets the action that runs when the kernel has told of a change: from the run loop, or from
    // inside links().
    void setChangeAction(std::function<void()> action) { _changeAction = std::move(action); }

private:
    void hearChanges();
    void tellChange();
    void pause();

    RunLoop& _runLoop;
    Reader _read;
    int _descriptor;
    std::vector<NetworkLink> _links;
    std::uint64_t _generation = 0;
    bool _isStale = true;
    std::function<void()> _changeAction;
    RunLoop::Handle _watch;
    RunLoop::Handle _pause; // null when the kernel may be asked
};

} // namespace kx
