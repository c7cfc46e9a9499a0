// Waits for something outside of the program, such as the answer of a person or of another program,
// while the application stays alive and the person at it can give up.
//
// The application's events are handled meanwhile: windows are painted, and callbacks of the run loop
// are called unless they are held (support/RunLoop.h). The person's own actions reach nothing but
// the means to give up.
//
// Threading: the main thread only. A wait may begin inside another one. It has to end before the
// outer one can end.

#pragma once

#include <functional>
#include <string_view>

namespace kx {

class Waiting {
public:
    virtual ~Waiting() = default;

    // Returns true once `isDone` returns true. It is asked at first, and then at least every 20
    // milliseconds. Returns false when the person gives up, or when the application is asked to end.
    // After a while the person is told what is waited for, in this sentence, where there is a screen
    // for it.
    virtual bool until(const std::function<bool()>& isDone, std::string_view sentence) = 0;
};

} // namespace kx
