// The tools that an authority has started, until each has ended and its end is told.
//
// Threading: the main thread only. Ownership: the loop must outlive the object. Tools that still
// run when the object is destroyed run on, and the system takes their ends.

#pragma once

#include "platform/linux/StartedTool.h"
#include "support/AuthorizationService.h"
#include "support/RunLoop.h"

#include <memory>
#include <vector>

namespace kx {

class RunningTools {
public:
    using EndAction = AuthorizationReference::ToolEndAction;

    explicit RunningTools(RunLoop& loop);

    // Takes the end of the tool when it comes, or has come, and calls `ended` with it from the run
    // loop.
    void attend(std::unique_ptr<StartedTool> tool, EndAction ended);

private:
    struct Attended {
        std::unique_ptr<StartedTool> tool;
        EndAction ended;
    };

    void lookAfter(std::chrono::milliseconds delay);
    void look();

    RunLoop& _loop;
    RunLoop::Handle _nextLook;
    std::vector<Attended> _tools;
};

} // namespace kx
