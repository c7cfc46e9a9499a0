#include "platform/linux/RunningTools.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kx {

namespace {

// The time between two looks at tools that run on.
constexpr std::chrono::milliseconds interval{100};

} // namespace

RunningTools::RunningTools(RunLoop& loop)
    : _loop(loop) {}

void RunningTools::attend(std::unique_ptr<StartedTool> tool, EndAction ended) {
    _tools.push_back({std::move(tool), std::move(ended)});
    lookAfter(std::chrono::milliseconds::zero());
}

void RunningTools::lookAfter(std::chrono::milliseconds delay) {
    _nextLook = _loop.callOnceAfter(delay, [this] { look(); });
}

void RunningTools::look() {
    const auto firstEnded = std::stable_partition(
        _tools.begin(), _tools.end(), [](const auto& entry) { return !entry.tool->hasEnded(); });
    std::vector<Attended> ended(std::make_move_iterator(firstEnded),
                                std::make_move_iterator(_tools.end()));
    _tools.erase(firstEnded, _tools.end());
    if (!_tools.empty()) {
        lookAfter(interval);
    }
    // An action may add further tools, or destroy this object.
    for (const auto& [tool, action] : ended) {
        const ToolEnd end{.status = tool->status(), .sentence = tool->sentence()};
        if (action) {
            action(end);
        }
    }
}

} // namespace kx
