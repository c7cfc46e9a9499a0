// The lock that keeps two runs over many units apart: what one of them changes, the other would
// take for the state of the units.
//
// Threading: main thread only. Ownership: users do not own the lock, which must outlive what it has
// given them.

#pragma once

#include "support/Error.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <variant>

namespace kx {

// Whoever keeps it has the lock. Destroying it gives the lock back, and so does the end of the
// process, however it ends.
class HeldRunLock {
public:
    virtual ~HeldRunLock() = default;
    HeldRunLock(const HeldRunLock&) = delete;
    HeldRunLock& operator=(const HeldRunLock&) = delete;

protected:
    HeldRunLock() = default;
};

// Why the lock was not given.
struct RunLockRefusal {
    // The number of the process that has the lock, of whichever user it is; 0 when it cannot be
    // told.
    std::int32_t holder = 0;

    // Present when the system could not be asked; nobody is known to have the lock then.
    std::optional<Error> error = {};
};

class RunLock {
public:
    virtual ~RunLock() = default;

    // Takes the lock for everybody who reaches units through the same network as this process.
    // Never waits. The lock is never null.
    virtual std::variant<std::unique_ptr<HeldRunLock>, RunLockRefusal> take() = 0;
};

} // namespace kx
