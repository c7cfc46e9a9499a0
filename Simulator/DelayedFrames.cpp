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

std::optional<Bytes> DelayedFrames::takeDue(TimePoint now) {
    if (_frames.empty() || _frames.begin()->first > now)
        return std::nullopt;
    return std::move(_frames.extract(_frames.begin()).mapped());
}

} // namespace kx::simulator
