// compare: what is new, changed and missing since a saved discovery, now or in another one.

#include "commands/CommandRun.h"
#include "commands/Commands.h"
#include "commands/SavedComparison.h"
#include "conversation/Discovery.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

int finishWith(CommandRun& run, SavedComparison& comparison) {
    const Json json = comparison.json();
    for (const auto& [key, value] : json.items()) {
        run.document()[key] = value;
    }
    run.print(comparison.table(run.isBold()));
    auto result = comparison.result();
    if (!result.has_value() && !run.isInterrupted()) {
        run.say(localizedText(
            "Nothing differs from “%@”: %d the same.",
            {safeForSentence(run.line().words.front()), json["same"].get<long long>()}));
    }
    return run.finish(std::move(result));
}

int compareWithAnswers(CommandRun& run, const DiscoveryFile& before) {
    for (const auto& step : std::initializer_list<std::function<Refusal()>>{
             [&] { return run.chooseInterfaces(); }, [&] { return run.openExchange(); }}) {
        if (auto refusal = step()) {
            return run.finish(std::move(refusal));
        }
    }
    Discovery discovery(run.exchange(), {.everybody = run.everybody()});
    run.wait(discovery, [&discovery] { return std::to_string(discovery.units().count()); });
    if (!discovery.hasAsked()) {
        return run.finish(CommandRun::refusalOfSend(discovery.failure()));
    }
    run.warnOfSend(discovery.failure());
    SavedComparison comparison(run, before);
    comparison.compareWithAnswers(discovery.units());
    return finishWith(run, comparison);
}

} // namespace

int runCompare(CommandRun& run) {
    std::vector<DiscoveryFile> files(run.line().words.size());
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (auto refusal = readDiscovery(run.line().words[i], files[i])) {
            return run.finish(std::move(refusal));
        }
    }
    if (files.size() == 1) {
        return compareWithAnswers(run, files.front());
    }
    SavedComparison comparison(run, files.front());
    comparison.compareWithFile(files.back());
    return finishWith(run, comparison);
}

} // namespace kx
