// The tools that an authority has started. Each stays here until it has ended and its end is told.
//
// Threading: the main thread only. Ownership: the loop must outlive the object. Tools that still
// run when the object is destroyed run on, and their ends are not told.

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

    // Watches the tool until it has ended, and then calls `ended` with its end from the run
    // loop. The tool may have ended already.
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
