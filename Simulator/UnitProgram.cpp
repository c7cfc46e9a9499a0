#include "Simulator/UnitProgram.h"

#include "Simulator/CommandRecord.h"
#include "Simulator/DelayedFrames.h"
#include "Simulator/EventRate.h"
#include "Simulator/PacketLink.h"
#include "Simulator/UnitNetwork.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <iostream>
#include <system_error>

namespace kx::simulator {

namespace {

using Clock = std::chrono::steady_clock;

// At most about 60 MB of frames wait; 10,000 units can be 20 answers behind.
constexpr std::size_t mostDelayedFrames = 200'000;

// The signals that give the process its orders, as a descriptor to wait for and to read.
class ProcessSignals {
public:
    ProcessSignals() {
        sigset_t signals;
        ::sigemptyset(&signals);
        for (const int signal : {SIGINT, SIGTERM, SIGUSR1, SIGUSR2}) {
            ::sigaddset(&signals, signal);
        }
        ::sigprocmask(SIG_BLOCK, &signals, nullptr);
        _descriptor = ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
        if (_descriptor < 0) {
            throw std::system_error(errno, std::generic_category(), "watch for signals");
        }
    }
    ~ProcessSignals() { ::close(_descriptor); }
    ProcessSignals(const ProcessSignals&) = delete;
    ProcessSignals& operator=(const ProcessSignals&) = delete;

    int descriptor() const { return _descriptor; }

    // The next signal; absent when none waits.
    std::optional<int> take() const {
        signalfd_siginfo information{};
        const bool isThere =
            ::read(_descriptor, &information, sizeof information) == sizeof information;
        return isThere ? std::optional(static_cast<int>(information.ssi_signo)) : std::nullopt;
    }

private:
    int _descriptor = -1;
};

std::vector<SimulatedUnit> unitsOf(const CommandLine& line) {
    std::vector<SimulatedUnit> units;
    units.reserve(line.count);
    for (unsigned number = line.first; number < line.first + line.count; ++number) {
        units.emplace_back(factorySettings(number, line.network));
    }
    return units;
}

class UnitLoop {
public:
    UnitLoop(const CommandLine& line, CommandRecord& record)
        : _record(record)
        , _link(line.link)
        , _network(unitsOf(line), line.faults,
                   [&record](const SimulatedUnit& unit, const Datagram& datagram) {
                       record.addCommand(unit, datagram);
                   })
        , _flood(line.floodPerSecond, Clock::now()) {
        if (line.ignoresOtherSubnets) {
            _network.ignoreOtherSubnets(line.network.prefixLength);
        }
    }

    void run() {
        waitForWork();
        while (followSignals()) {
            // One frame in each turn: its answers leave before the next frame is read. A burst then
            // waits in the socket, which limits it.
            if (const auto frame = _link.receive()) {
                std::vector<OutgoingFrame> answers =
                    _network.receive(frame->bytes, frame->checksum);
                // The record is written before the answers leave, so a receiver of a reply finds
                // its command in the record.
                _record.flush();
                dispatch(std::move(answers));
            }
            dispatch(_network.unsolicitedReplies(_flood.take(Clock::now())));
            for (const Bytes& due : _delayed.takeDue(Clock::now())) {
                _link.send(due);
            }
            waitForWork();
        }
    }

    void recordStates() {
        for (const SimulatedUnit& unit : _network.units()) {
            _record.addState(unit);
        }
        _record.flush();
    }

private:
    // Returns false when the process was asked to end.
    bool followSignals() {
        while (const auto signal = _signals.take()) {
            if (*signal == SIGUSR1) {
                _network.endFaults();
                _flood = EventRate(0, Clock::now());
            } else if (*signal == SIGUSR2) {
                recordStates();
            } else {
                return false;
            }
        }
        return true;
    }

    void waitForWork() {
        pollfd watched[] = {{_signals.descriptor(), POLLIN, 0}, {_link.descriptor(), POLLIN, 0}};
        const std::optional<timespec> longest = timeToNextDue();
        const int ready =
            ::ppoll(watched, std::size(watched), longest ? &*longest : nullptr, nullptr);
        if (ready < 0 && errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "wait for frames");
        }
    }

    std::optional<timespec> timeToNextDue() const {
        std::optional<TimePoint> due = _delayed.nextDue();
        if (const auto flood = _flood.nextDue()) {
            due = due ? std::min(*due, *flood) : *flood;
        }
        if (!due) {
            return std::nullopt;
        }
        using std::chrono::nanoseconds;
        using std::chrono::seconds;
        const nanoseconds left = std::max(nanoseconds::zero(), nanoseconds(*due - Clock::now()));
        const seconds whole = std::chrono::floor<seconds>(left);
        timespec time{};
        time.tv_sec = static_cast<time_t>(whole.count());
        time.tv_nsec = static_cast<long>((left - whole).count());
        return time;
    }

    void dispatch(std::vector<OutgoingFrame> frames) {
        const TimePoint now = Clock::now();
        for (OutgoingFrame& frame : frames) {
            if (frame.delay == frame.delay.zero()) {
                _link.send(frame.bytes);
            } else {
                _delayed.add(now + frame.delay, std::move(frame.bytes));
            }
        }
    }

    CommandRecord& _record;
    ProcessSignals _signals;
    PacketLink _link;
    UnitNetwork _network;
    EventRate _flood;
    DelayedFrames _delayed{mostDelayedFrames};
};

void play(const CommandLine& line, CommandRecord& record) {
    UnitLoop loop(line, record);
    std::cout << "ready: " << line.count << " units on " << line.link << std::endl;
    loop.run();
    loop.recordStates();
}

} // namespace

void playUnits(const CommandLine& line) {
    if (line.recordPath) {
        CommandRecord record(*line.recordPath);
        play(line, record);
    } else {
        CommandRecord record;
        play(line, record);
    }
}

} // namespace kx::simulator
