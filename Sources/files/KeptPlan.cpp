#include "files/KeptPlan.h"

#include "files/JSONReading.h"

#include <cstddef>
#include <limits>
#include <map>

namespace kx {

namespace {

constexpr std::string_view planKind = "plan";

using SeenUnits = std::map<std::size_t, SeenUnit>; // by line

SeenUnits seenUnitsOf(const Json& list) {
    if (!list.is_array()) {
        throw JSONDamage();
    }
    SeenUnits units;
    for (const Json& json : list) {
        const ReadRecord read = recordOf(json);
        const auto line = numberOf(valueOf(json, "line"), std::numeric_limits<std::int32_t>::max());
        units[line] = {.record = read.record, .unitIDBytes = read.unitIDBytes};
    }
    return units;
}

UnitTable tableOf(const Json& json) {
    UnitTable table = readUnitTable(presentTextOf(json, "table"));
    SeenUnits units = seenUnitsOf(valueOf(json, "seen"));
    for (WantedRow& row : table.rows) {
        if (const auto unit = units.extract(row.line)) {
            row.seen = unit.mapped();
        }
    }
    return table;
}

} // namespace

bool looksLikeKeptPlan(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && text[first] == '{';
}

std::string textOfKeptPlan(std::string_view table, std::span<const WantedRow> rows) {
    Json head;
    head["kind"] = planKind;
    head["schema"] = keptPlanVersion;
    head["table"] = table;
    std::string text = textOfJson(head);
    text.back() = ',';
    text += "\"seen\":[";
    std::string_view separator = "\n";
    for (const WantedRow& row : rows) {
        if (row.seen.has_value()) {
            JSONObjectText object;
            object.add("line", row.line);
            addRecord(object, row.seen->record, row.seen->unitIDBytes);
            text += separator;
            text += object.text();
            separator = ",\n";
        }
    }
    return sealedText(text + "\n]}");
}

std::variant<UnitTable, DocumentFault> readKeptPlan(std::string_view text) {
    const auto read = unsealedDocument(text, planKind, keptPlanVersion);
    if (const auto* const fault = std::get_if<DocumentFault>(&read)) {
        return *fault;
    }
    try {
        return tableOf(std::get<Json>(read));
    } catch (const JSONDamage&) {
        return DocumentFault::damaged;
    }
}

} // namespace kx
