// Something that takes its time on the run loop, and tells when it has ended.
//
// Threading: everything on the thread of the run loop; nothing blocks. Ownership: whoever begins an
// operation keeps it until it has ended, or destroys it to give it up without a word. It may be
// destroyed inside its own end.

#pragma once

#include <functional>
#include <utility>

namespace kx {

class Operation {
public:
    virtual ~Operation() = default;
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

    // Begins, once. `ended` is called once when the operation has ended, maybe from inside begin().
    void begin(std::function<void()> ended) {
        _ended = std::move(ended);
        start();
    }

    // Begins nothing new, and ends as soon as the outcome of what is under way is known.
    virtual void interrupt() = 0;

    bool hasEnded() const { return _hasEnded; }

protected:
    Operation() = default;

    virtual void start() = 0;

    // Tells the end. The object may be gone afterwards. Does nothing the second time.
    void end() {
        if (!std::exchange(_hasEnded, true)) {
            const auto ended = std::move(_ended);
            if (ended) {
                ended();
            }
        }
    }

private:
    std::function<void()> _ended;
    bool _hasEnded = false;
};

} // namespace kx
