// The links of this process's network namespace, kept fresh.
//
// It holds a socket on which the kernel tells of every change to links, addresses and IPv4 routes.
// What it tells is not looked at: any word makes the links that were read stale, and whoever wants
// them next has them read anew (RtnetlinkSnapshot.h). The socket hears the changes before the links
// are read, so none is missed between the two. Changes are heard before the program that made them
// goes on; whoever asks later sees them, also before the run loop has turned.
//
// A kernel that does not tell its links in time, or not all of its routes, is left alone for a
// second. Meanwhile the links are the ones that it told last, and after that a change is told,
// since there may have been one.
//
// Threading: the main thread only. Ownership: the run loop must outlive this object. Changes are
// heard from the network namespace in which the object was made; links are read from the one in
// which links() is called, which must be the same.

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
    // Reads the links as readNetworkLinks() does, with its failures.
    using Reader = std::function<std::optional<LinkSnapshot>()>;

    explicit KernelLinks(RunLoop& runLoop);
    KernelLinks(RunLoop& runLoop, Reader read);
    ~KernelLinks();
    KernelLinks(const KernelLinks&) = delete;
    KernelLinks& operator=(const KernelLinks&) = delete;

    // The links as they are now, in the order of their indexes; null, with errno set, when the
    // kernel cannot be asked, or has not told any in time yet. They stay until the next call.
    const std::vector<NetworkLink>* links();

    // Grows whenever links() has read the links anew.
    std::uint64_t generation() const { return _generation; }

    // What is called when the kernel has told of a change: from the run loop, or from inside
    // links().
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
