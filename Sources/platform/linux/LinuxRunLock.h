// The lock as a socket address of the kernel: a name in the abstract namespace of unix(7), which
// one socket at a time can have.
//
// Such a name belongs to a network namespace, as the units do that can be reached, and to no user
// and no folder. The kernel takes it back when the last descriptor of the socket is closed, so a
// process that is killed leaves nothing behind.
//
// Threading: the main thread only.

#pragma once

#include "conversation/RunLock.h"

namespace kx {

class LinuxRunLock final : public RunLock {
public:
    std::variant<std::unique_ptr<HeldRunLock>, RunLockRefusal> take() override;
};

} // namespace kx
