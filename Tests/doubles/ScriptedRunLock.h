// A lock that the test gives or refuses.

#pragma once

#include "conversation/RunLock.h"

namespace kx {

class ScriptedRunLock final : public RunLock {
public:
    std::optional<RunLockRefusal> refusal; // absent while the lock is given
    int held = 0;                          // how many have it now
    int taken = 0;                         // how often it was given

    std::variant<std::unique_ptr<HeldRunLock>, RunLockRefusal> take() override {
        if (refusal.has_value()) {
            return *refusal;
        }
        ++taken;
        return std::unique_ptr<HeldRunLock>(std::make_unique<Held>(held));
    }

private:
    class Held final : public HeldRunLock {
    public:
        explicit Held(int& count)
            : _count(count) {
            ++_count;
        }
        ~Held() override { --_count; }
        Held(const Held&) = delete;
        Held& operator=(const Held&) = delete;

    private:
        int& _count;
    };
};

} // namespace kx
