// watch: tells which units appear, change, fall silent and come back, a line for each.

#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "conversation/UnitWatch.h"
#include "support/LocalizedText.h"
#include "support/VisibleText.h"

#include <array>
#include <cstdio>
#include <ctime>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

std::string_view nameOf(UnitEvent event) {
    switch (event) {
    case UnitEvent::appeared:
        return "appeared";
    case UnitEvent::changed:
        return "changed";
    case UnitEvent::silent:
        return "silent";
    case UnitEvent::back:
        break;
    }
    return "back";
}

// "2030-01-31T12:00:00.123Z" (RFC 3339).
std::string textOfTime(std::chrono::microseconds sinceEpoch) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(sinceEpoch);
    const auto milliseconds =
        std::chrono::floor<std::chrono::milliseconds>(sinceEpoch - seconds).count();
    const auto time = static_cast<std::time_t>(seconds.count());
    std::tm utc{};
    ::gmtime_r(&time, &utc);
    std::array<char, 40> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%S", &utc);
    std::snprintf(text.data() + length, text.size() - length, ".%03lldZ",
                  static_cast<long long>(milliseconds));
    return text.data();
}

void tell(CommandRun& run, UnitEvent event, const HeardUnit& unit) {
    const std::string time = textOfTime(run.services().utc());
    const std::string name(nameOf(event));
    if (run.wantsDocument()) {
        Json json;
        json["event"] = name;
        json["time"] = time;
        json["unit"] = jsonOfUnit(unit, run.interfaces());
        run.services().console.writeOutput(lineOfJson(json));
    } else {
        const auto text = [](std::optional<std::string_view> value) {
            return visibleText(value.value_or(std::string_view()));
        };
        std::string padded = name;
        padded.resize(9, ' '); // one more than the longest
        run.print(time + "  " + padded + " " + std::string(unit.serialNumber()) + "  " +
                  text(unitIDText(unit.record)) + "  " +
                  text(unit.record.value(UnitParameter::internalIPAddress)) + "\n");
    }
    if (run.services().console.outputError().has_value()) {
        run.endEarly();
    }
}

constexpr std::chrono::milliseconds timeBetweenLooks{200};

// A watch may have no end.
constexpr std::chrono::milliseconds shortestTimeBetweenRounds{100};

// Without an event nothing is written, so that nothing would tell that nobody reads any more.
void awaitEndOfReader(CommandRun& run, RunLoop::Handle& nextLook) {
    nextLook = run.services().session.runLoop.callOnceAfter(timeBetweenLooks, [&run, &nextLook] {
        if (run.services().console.isReaderGone()) {
            run.endEarly();
        } else {
            awaitEndOfReader(run, nextLook);
        }
    });
}

Refusal readOptions(const CommandLine& line, WatchPlan& plan) {
    const TimeOption every = secondsOf(line, "--every");
    const TimeOption duration = secondsOf(line, "--for");
    const NumberOption until = wholeNumberOf(line, "--until");
    for (const auto& failure : {every.failure, duration.failure, until.failure}) {
        if (failure.has_value()) {
            return failure;
        }
    }
    plan.every = every.time.value_or(plan.every);
    if (plan.every < shortestTimeBetweenRounds) {
        return failureOf(ErrorCode::usage,
                         localizedText("--every takes 0.1 seconds or more: every unit answers each "
                                       "time."));
    }
    plan.duration = duration.time;
    if (until.number.has_value()) {
        plan.until = static_cast<std::size_t>(*until.number);
    }
    return std::nullopt;
}

} // namespace

int runWatch(CommandRun& run) {
    WatchPlan plan;
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return readOptions(run.line(), plan); }, [&] { return run.chooseInterfaces(); },
             [&] { return run.openExchange(); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    plan.everybody = run.everybody();
    plan.tell = [&run](UnitEvent event, const HeardUnit& unit) { tell(run, event, unit); };
    const auto until = plan.until;
    UnitWatch watch(run.exchange(), std::move(plan));
    RunLoop::Handle nextLook;
    awaitEndOfReader(run, nextLook);
    run.wait(watch);
    nextLook.reset();
    if (!watch.hasAsked()) {
        return run.finish(CommandRun::refusalOfSend(watch.failure()));
    }
    run.warnOfSend(watch.failure());
    if (run.services().console.outputError().has_value()) {
        return run.finish();
    }
    if (until.has_value() && watch.count() < *until) {
        return run.finish(
            failureOf(ErrorCode::fewer, localizedText("%d of %d units are there.",
                                                      {static_cast<long long>(watch.count()),
                                                       static_cast<long long>(*until)})));
    }
    return run.finish();
}

} // namespace kx
