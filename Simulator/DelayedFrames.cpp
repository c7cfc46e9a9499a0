#include "Simulator/DelayedFrames.h"

namespace kx::simulator {

DelayedFrames::DelayedFrames(std::size_t capacity)
    : _capacity(capacity) {}

bool DelayedFrames::add(TimePoint due, Bytes frame) {
    if (_frames.size() >= _capacity)
        return false;
    _frames.emplace(due, std::move(frame));
    return true;
}

std::optional<TimePoint> DelayedFrames::nextDue() const {
    if (_frames.empty())
        return std::nullopt;
    return _frames.begin()->first;
}

std::vector<Bytes> DelayedFrames::takeDue(TimePoint now) {
    const auto end = _frames.upper_bound(now);
    std::vector<Bytes> due;
    for (auto frame = _frames.begin(); frame != end; ++frame)
        due.push_back(std::move(frame->second));
    _frames.erase(_frames.begin(), end);
    return due;
}

} // namespace kx::simulator
