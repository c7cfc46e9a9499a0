// Kept plans and journals: any text is read or refused. The fuzzer cannot find a checksum, so it
// also seals the input, as one document and line by line.

#include "FuzzInput.h"
#include "files/JournalText.h"
#include "files/KeptPlan.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>

using namespace kx;

namespace {

void readAsPlan(std::string_view text) {
    const auto read = readKeptPlan(text);
    if (const auto* const table = std::get_if<UnitTable>(&read)) {
        for (const WantedRow& row : table->rows) {
            requireInvariant(!row.seen.has_value() ||
                                 row.seen->record.value(UnitParameter::serialNumber).has_value(),
                             "a unit that was seen has a serial number");
        }
    }
}

void readAsJournal(std::string_view text) {
    const auto read = readJournal(text);
    if (const auto* const fault = std::get_if<JournalFault>(&read)) {
        requireInvariant(fault->line >= 1 && fault->line <= 1 + static_cast<std::size_t>(
                                                                    std::ranges::count(text, '\n')),
                         "the fault is in a line of the text");
        return;
    }
    const auto& journal = std::get<Journal>(read);
    std::string written = JournalLines::head(journal.head);
    JournalLines lines;
    for (const JournalEntry& entry : journal.entries) {
        written += lines.entry(entry);
    }
    if (journal.hasEnded) {
        written += lines.end();
    }
    const auto again = readJournal(written);
    const auto* const same = std::get_if<Journal>(&again);
    requireInvariant(same != nullptr && same->entries.size() == journal.entries.size() &&
                         same->hasEnded == journal.hasEnded,
                     "a journal that is written again is read again");
}

std::string withSealedLines(std::string_view text) {
    std::string sealed;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const Json json = Json::parse(text.substr(0, end), nullptr, false);
        sealed += json.is_object() && !json.empty() ? sealedText(textOfJson(json))
                                                    : std::string(text.substr(0, end)) + '\n';
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return sealed;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = textOfInput(data, size);
    readAsPlan(text);
    readAsJournal(text);
    readAsJournal(withSealedLines(text));
    const Json json = Json::parse(text, nullptr, false);
    if (json.is_object() && !json.empty()) {
        readAsPlan(sealedText(textOfJson(json)));
    }
    return 0;
}
