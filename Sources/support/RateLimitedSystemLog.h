// A system log that strangers cannot fill: it hands on at most 20 lines in a second.
//
// Damaged datagrams write a line each, as many as a sender likes. A second begins with its first
// line. Lines beyond the twentieth are counted, and at the end of the second one line tells their
// number: "217 more like this". It counts as the first line of the next second. The last line of
// the process is always written, after the number of the lines that were held back.
//
// Threading: as support/SystemLog.h. While the run loop is held no second ends.

#pragma once

#include "support/RunLoop.h"
#include "support/SystemLog.h"

#include <chrono>
#include <cstdint>

namespace kx {

class RateLimitedSystemLog final : public SystemLog {
public:
    static constexpr int mostLines = 20;
    static constexpr std::chrono::milliseconds period{1000};

    // Both must outlive this object.
    RateLimitedSystemLog(SystemLog& log, RunLoop& runLoop);

    // Tells the number of the lines that are held back.
    ~RateLimitedSystemLog() override;
    RateLimitedSystemLog(const RateLimitedSystemLog&) = delete;
    RateLimitedSystemLog& operator=(const RateLimitedSystemLog&) = delete;

    void write(std::string_view line) override;
    void writeLast(std::string_view line) override;

private:
    void endPeriod();
    void tellHeldBack();

    SystemLog& _log;
    RunLoop& _runLoop;
    RunLoop::Handle _periodEnd; // null while no line was written for a second
    int _written = 0;           // in this second
    std::uint64_t _heldBack = 0;
};

} // namespace kx
