// show: asks units and shows every parameter.

#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "commands/UnitTables.h"
#include "support/LocalizedText.h"

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

Refusal objectionToShownUnits(const CommandLine& line) {
    if (line.has("--all") == line.words.empty()) {
        return std::nullopt;
    }
    return failureOf(ErrorCode::usage,
                     line.words.empty() ? localizedText("Name units, or write --all.")
                                        : localizedText("Name units, or write --all, not both."));
}

void printUnits(CommandRun& run, const std::vector<HeardUnit>& found) {
    UnitList units;
    std::string text;
    for (const HeardUnit& unit : found) {
        if (run.wantsDocument()) {
            run.document().appendText("units", textOfUnit(unit, run.interfaces()));
        } else if (run.line().has("--csv")) {
            units.push_back(&unit);
        } else {
            text += (text.empty() ? "" : "\n") + parametersOfUnit(unit, run.interfaces());
        }
    }
    run.print(run.line().has("--csv") ? csvOfUnits(units, run.interfaces()) : text);
}

} // namespace

int runShow(CommandRun& run) {
    std::vector<UnitName> names;
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return objectionToShownUnits(run.line()); },
             [&] { return run.readNames(run.line().words, names); },
             [&] { return run.chooseInterfaces(); }, [&] { return run.openExchange(); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    std::vector<HeardUnit> found;
    auto refusal = names.empty() ? run.findEveryone(found) : run.findUnits(names, found);
    printUnits(run, found);
    return run.finish(std::move(refusal));
}

} // namespace kx
