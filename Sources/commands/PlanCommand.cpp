// plan: tells what a table of units would change. It sends requests for parameters only.

#include "commands/Commands.h"
#include "commands/PlanReport.h"
#include "commands/RowDiscovery.h"
#include "commands/RowsFile.h"
#include "files/KeptPlan.h"

#include <map>
#include <memory>
#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

struct PlanFiles {
    TableFile rows;
    std::unique_ptr<OutputFile> kept; // null when the plan is not kept
};

Refusal readFiles(CommandRun& run, PlanFiles& files) {
    if (auto refusal = readRowsFile(run, run.line().words.front(), files.rows)) {
        return refusal;
    }
    const auto path = run.line().valueOf("--out");
    if (!path.has_value()) {
        return std::nullopt;
    }
    files.kept = std::make_unique<OutputFile>(*path);
    return CommandRun::refusalOfFile(*files.kept, files.kept->lookForReplacement());
}

Refusal keep(const PlanFiles& files, const UnitPlan& plan) {
    std::vector<WantedRow> rows = files.rows.rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto& unit = plan.rows[i].unit;
        rows[i].seen = unit.has_value() ? std::optional(SeenUnit{unit->record, unit->unitIDBytes})
                                        : std::nullopt;
    }
    const auto error = files.kept->replaceBy(textOfKeptPlan(files.rows.text, rows));
    return error.has_value()
               ? Refusal(Failure{ErrorCode::file, sentenceOfFile(files.kept->path(), *error),
                                 exitCannotAsk})
               : std::nullopt;
}

} // namespace

int runPlan(CommandRun& run) {
    PlanFiles files;
    HeardUnits heard;
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return readFiles(run, files); }, [&] { return run.chooseInterfaces(); },
             [&] { return objectionToRows(run, files.rows.rows); },
             [&] { return run.openExchange(); },
             [&] { return findUnitsOfRows(run, files.rows.rows, heard); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    UnitPlan plan =
        planOfRows(files.rows.rows, heard, {.interfaces = run.interfaces(), .asked = run.chosen()});
    findHolders(run, plan, nullptr);
    if (run.isInterrupted()) {
        return run.finish(); // who has not answered yet is not silent
    }
    run.document()["rows"] = jsonOfRows(plan);
    run.document()["sums"] = jsonOfSums(plan, PlanStage::planned);
    run.print(tableOfRows(plan, run.isBold()) + lineOfSums(plan, PlanStage::planned));
    auto failure = failureOfRows(plan);
    if (files.kept != nullptr) {
        auto refusal = keep(files, plan);
        failure = failure.has_value() ? std::move(failure) : std::move(refusal);
    }
    return run.finish(std::move(failure));
}

} // namespace kx
