// restore: factory settings for one unit, or for everyone who hears the command.

#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "commands/UnitTables.h"
#include "conversation/UnitRestore.h"
#include "support/LocalizedText.h"

#include <algorithm>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

Refusal objectionToRestoredUnits(const CommandLine& line) {
    if (line.has("--everyone") == line.words.empty()) {
        return std::nullopt;
    }
    return failureOf(ErrorCode::usage,
                     line.words.empty()
                         ? localizedText("Name a unit. --everyone restores all that hear the "
                                         "command.")
                         : localizedText("Name a unit, or write --everyone, not both."));
}

// A question that nobody can be asked is known before anything is sent.
Refusal objectionToSilence(const CommandRun& run) {
    if (run.line().has("--yes") || run.canAsk()) {
        return std::nullopt;
    }
    return failureOf(ErrorCode::usage,
                     localizedText("Nobody can be asked here. Write --yes if this is meant."));
}

Refusal declined() {
    return Failure{ErrorCode::unchanged, localizedText("Nothing was restored."), exitNo};
}

Refusal askForUnit(CommandRun& run, const HeardUnit& unit) {
    if (run.line().has("--yes")) {
        return std::nullopt;
    }
    const auto answer = run.ask(localizedText("Restore the factory settings of the unit %@? (y/n)",
                                              {std::string(unit.serialNumber())}));
    return answer == "y" || answer == "yes" ? std::nullopt : declined();
}

Refusal askForEveryone(CommandRun& run, std::size_t count) {
    const auto sentence =
        localizedText("%d units answer. Others that hear the command are restored too.",
                      {static_cast<long long>(count)});
    if (run.line().has("--yes")) {
        run.say(sentence);
        return std::nullopt;
    }
    const auto answer =
        run.ask(sentence + "\n" +
                localizedText("Type the number of units to restore the factory settings of all:"));
    return answer == std::to_string(count) ? std::nullopt : declined();
}

void report(CommandRun& run, const UnitRestore& restore) {
    std::string text;
    for (const RestoredUnit& unit : restore.units()) {
        if (unit.after.has_value()) {
            run.document().appendText("units", textOfUnit(*unit.after, run.interfaces()));
            text += (text.empty() ? "" : "\n") + parametersOfUnit(*unit.after, run.interfaces());
        }
    }
    run.print(text);
}

Refusal failureOfRestore(const UnitRestore& restore) {
    for (const RestoredUnit& unit : restore.units()) {
        const std::string serial(unit.before.serialNumber());
        if (!unit.after.has_value()) {
            return failureOf(
                ErrorCode::silent,
                localizedText("The unit %@ has not answered since the command.", {serial}));
        }
    }
    for (const RestoredUnit& unit : restore.units()) {
        if (!unit.isAccepted && !unit.hasChanged()) {
            return failureOf(ErrorCode::unchanged,
                             localizedText("The unit %@ shows the old values and has not "
                                           "acknowledged the command.",
                                           {std::string(unit.before.serialNumber())}));
        }
    }
    return std::nullopt;
}

int restore(CommandRun& run, const std::vector<HeardUnit>& units,
            const std::vector<UnitTarget>& targets) {
    UnitRestore restore(run.exchange(), units, targets, run.everybody());
    run.wait(restore, [&restore] {
        return std::to_string(std::ranges::count_if(restore.units(), &RestoredUnit::isRestored)) +
               '/' + std::to_string(restore.units().size());
    });
    if (!restore.isSent()) {
        return run.finish(CommandRun::refusalOfSend(restore.failure()));
    }
    run.warnOfSend(restore.failure());
    report(run, restore);
    return run.finish(failureOfRestore(restore));
}

int restoreEveryone(CommandRun& run) {
    std::vector<HeardUnit> found;
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return run.chooseInterfaces(); }, [&] { return run.openExchange(); },
             [&] { return run.findEveryone(found); },
             [&] { return askForEveryone(run, found.size()); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    return run.isInterrupted() ? run.finish() : restore(run, found, run.everybody());
}

} // namespace

int runRestore(CommandRun& run) {
    if (auto refusal = objectionToRestoredUnits(run.line())) {
        return run.finish(std::move(refusal));
    }
    if (auto refusal = objectionToSilence(run)) {
        return run.finish(std::move(refusal));
    }
    if (run.line().has("--everyone")) {
        return restoreEveryone(run);
    }
    HeardUnit unit;
    if (auto refusal = run.reachUnit(run.line().words.front(), unit)) {
        return run.finish(std::move(refusal));
    }
    if (auto refusal = askForUnit(run, unit)) {
        return run.finish(std::move(refusal));
    }
    return run.isInterrupted() ? run.finish() : restore(run, {unit}, {unit.target()});
}

} // namespace kx
