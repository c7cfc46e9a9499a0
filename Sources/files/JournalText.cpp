#include "files/JournalText.h"

#include "addresses/IPv4Address.h"
#include "files/JSONReading.h"
#include "files/StateNames.h"
#include "units/ExactEdit.h"
#include "units/IdentityText.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <utility>

namespace kx {

namespace {

constexpr std::string_view journalKind = "journal";

// The kinds of entries, by the key "event".
constexpr std::string_view commandEvent = "command";
constexpr std::string_view outcomeEvent = "outcome";
constexpr std::string_view bindingEvent = "arp-entry";
constexpr std::string_view endEvent = "end";

Json jsonOf(const std::optional<std::string>& text) {
    return text.has_value() ? Json(*text) : Json(nullptr);
}

void write(Json& json, const JournalledUnit& unit, UnitParameter parameter) {
    json["line"] = unit.line;
    json["row_serial"] = unit.rowSerialNumber;
    json["serial"] = unit.serialNumber;
    json["internal_mac"] =
        unit.hardwareAddress.empty() ? Json(nullptr) : Json(unit.hardwareAddress);
    json["parameter"] = descriptionOf(parameter).identifier;
}

void write(Json& json, const JournalledCommand& command) {
    json["event"] = commandEvent;
    write(json, command.unit, command.parameter);
    json["from"] = jsonOf(command.from);
    json["from_bytes"] = command.fromUnitID.has_value()
                             ? Json(hexStringForData(*command.fromUnitID, ""))
                             : Json(nullptr);
    json["to"] = command.to;
    json["command"] = command.command;
}

void write(Json& json, const JournalledOutcome& outcome) {
    json["event"] = outcomeEvent;
    write(json, outcome.unit, outcome.parameter);
    json["state"] = nameOfState(outcome.state);
    json["shown"] = jsonOf(outcome.shown);
}

void write(Json& json, const JournalledBinding& binding) {
    json["event"] = bindingEvent;
    json["address"] = binding.address;
    json["hardware_address"] = binding.hardwareAddress;
    json["is_made"] = binding.isMade;
}

JournalledUnit journalledUnitOf(const Json& json) {
    JournalledUnit unit;
    unit.line = numberOf(valueOf(json, "line"), std::numeric_limits<std::int32_t>::max());
    unit.rowSerialNumber = sixPairsOf(presentTextOf(json, "row_serial"), ' ');
    unit.serialNumber = sixPairsOf(presentTextOf(json, "serial"), ' ');
    if (const auto address = textOf(json, "internal_mac")) {
        unit.hardwareAddress = sixPairsOf(*address, ':');
    }
    return unit;
}

UnitParameter parameterOf(const Json& json) {
    const auto parameter = unitParameterForTypedName(presentTextOf(json, "parameter"));
    if (!parameter.has_value()) {
        throw JSONDamage();
    }
    return *parameter;
}

JournalEntry commandOf(const Json& json) {
    JournalledCommand command;
    command.unit = journalledUnitOf(json);
    command.parameter = parameterOf(json);
    command.from = textOf(json, "from");
    if (const auto bytes = textOf(json, "from_bytes")) {
        command.fromUnitID = unitIDOf(*bytes);
    }
    command.to = presentTextOf(json, "to");
    command.command = presentTextOf(json, "command");
    return command;
}

JournalEntry outcomeOf(const Json& json) {
    const auto state = changeStateNamed(presentTextOf(json, "state"));
    if (!state.has_value()) {
        throw JSONDamage();
    }
    return JournalledOutcome{.unit = journalledUnitOf(json),
                             .parameter = parameterOf(json),
                             .state = *state,
                             .shown = textOf(json, "shown")};
}

JournalEntry bindingOf(const Json& json) {
    return JournalledBinding{.address = stringForIP(addressOf(presentTextOf(json, "address"))),
                             .hardwareAddress =
                                 sixPairsOf(presentTextOf(json, "hardware_address"), ':'),
                             .isMade = truthOf(json, "is_made")};
}

// Adds what a line says.
void take(Journal& journal, const Json& json) {
    const auto number = numberOf(valueOf(json, "entry"), std::numeric_limits<std::int32_t>::max());
    if (journal.hasEnded || number != journal.entries.size() + 1) {
        throw JSONDamage();
    }
    const std::string event = presentTextOf(json, "event");
    if (event == endEvent) {
        journal.hasEnded = true;
    } else if (event == commandEvent) {
        journal.entries.push_back(commandOf(json));
    } else if (event == outcomeEvent) {
        journal.entries.push_back(outcomeOf(json));
    } else if (event == bindingEvent) {
        journal.entries.push_back(bindingOf(json));
    } else {
        throw JSONDamage();
    }
}

// Whether the line was one.
bool takeLine(Journal& journal, std::string_view line) {
    const auto json = unsealedObject(line);
    if (!json.has_value()) {
        return false;
    }
    try {
        take(journal, *json);
        return true;
    } catch (const JSONDamage&) {
        return false;
    }
}

std::optional<DocumentFault> takeHead(JournalHead& head, std::string_view line) {
    const auto read = unsealedDocument(line, journalKind, journalVersion);
    if (const auto* const fault = std::get_if<DocumentFault>(&read)) {
        return *fault;
    }
    try {
        const Json& json = std::get<Json>(read);
        head = {.started = presentTextOf(json, "started"), .source = presentTextOf(json, "source")};
        return std::nullopt;
    } catch (const JSONDamage&) {
        return DocumentFault::damaged;
    }
}

struct Line {
    std::string_view text;
    bool isWhole = false; // its line break is there
};

Line takeLine(std::string_view& text) {
    const auto end = std::min(text.find('\n'), text.size());
    const Line line{.text = text.substr(0, end), .isWhole = end < text.size()};
    text.remove_prefix(line.isWhole ? end + 1 : end);
    return line;
}

std::string sealedEntry(const Json& json) {
    return sealedText(textOfJson(json));
}

} // namespace

std::string JournalLines::head(const JournalHead& head) {
    Json json;
    json["kind"] = journalKind;
    json["schema"] = journalVersion;
    json["started"] = head.started;
    json["source"] = head.source;
    return sealedEntry(json);
}

std::string JournalLines::entry(const JournalEntry& entry) {
    Json json;
    json["entry"] = ++_count;
    std::visit([&json](const auto& value) { write(json, value); }, entry);
    return sealedEntry(json);
}

std::string JournalLines::end() {
    Json json;
    json["entry"] = ++_count;
    json["event"] = endEvent;
    return sealedEntry(json);
}

std::variant<Journal, JournalFault> readJournal(std::string_view text) {
    Journal journal;
    const std::string_view whole = text;
    const Line head = takeLine(text);
    if (const auto fault = takeHead(journal.head, head.text)) {
        // A document of several lines, such as a kept plan, is none that is damaged.
        const auto asWhole = unsealedDocument(whole, journalKind, journalVersion);
        const auto* const faultOfWhole = std::get_if<DocumentFault>(&asWhole);
        const bool isOther = *fault == DocumentFault::damaged && faultOfWhole != nullptr &&
                             *faultOfWhole == DocumentFault::otherKind;
        return JournalFault{.fault = isOther ? DocumentFault::otherKind : *fault, .line = 1};
    }
    if (!head.isWhole) {
        return JournalFault{.fault = DocumentFault::damaged, .line = 1};
    }
    for (std::size_t number = 2; !text.empty(); ++number) {
        const Line line = takeLine(text);
        if (!line.isWhole) {
            journal.isCut = true;
        } else if (!takeLine(journal, line.text)) {
            return JournalFault{.fault = DocumentFault::damaged, .line = number};
        }
    }
    return journal;
}

} // namespace kx
