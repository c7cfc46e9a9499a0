// How many requests follow the acknowledgements of units.
//
// A unit that accepts a command is asked for its parameters. Anybody can send an acknowledgement,
// so without a limit a sender of acknowledgements would make this host send as many datagrams, and
// broadcasts, wherever a forged record leads. The first twenty acknowledgements of a second are
// followed by a request each. All that come beyond are followed by one request at its end. A second
// begins with the first acknowledgement after the end of the one before.
//
// Threading: the thread of the run loop, which must outlive this object. Destroying the object, or
// reset(), cancels the request that is owed.

#pragma once

#include "support/RunLoop.h"

#include <functional>

namespace kx {

class RequestPace {
public:
    static constexpr int mostAtOnce = 20; // in a second

    // `requestOwed` sends the one request at the end of a second.
    RequestPace(RunLoop& runLoop, std::function<void()> requestOwed);

    // An acknowledgement came. True when its request may follow now. Otherwise the request is owed.
    bool admits();

    void reset();

private:
    void endSecond();

    RunLoop& _runLoop;
    std::function<void()> _requestOwed;
    int _admitted = 0; // in this second
    bool _owes = false;
    RunLoop::Handle _second; // null between seconds
};

} // namespace kx
