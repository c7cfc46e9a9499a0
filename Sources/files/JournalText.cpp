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

void write(JSONObjectText& object, const JournalledUnit& unit, UnitParameter parameter) {
    object.add("line", unit.line);
    object.add("row_serial", unit.rowSerialNumber);
    object.add("serial", unit.serialNumber);
    object.add("internal_mac", unit.hardwareAddress.empty()
                                   ? std::nullopt
                                   : std::optional<std::string_view>(unit.hardwareAddress));
    object.add("parameter", descriptionOf(parameter).identifier);
}

void write(JSONObjectText& object, const JournalledCommand& command) {
    object.add("event", commandEvent);
    write(object, command.unit, command.parameter);
    object.add("from", command.from);
    object.add("from_bytes", command.fromUnitID.has_value()
                                 ? std::optional(hexStringForData(*command.fromUnitID, ""))
                                 : std::nullopt);
    object.add("to", command.to);
    object.add("command", command.command);
}

void write(JSONObjectText& object, const JournalledOutcome& outcome) {
    object.add("event", outcomeEvent);
    write(object, outcome.unit, outcome.parameter);
    object.add("state", nameOfState(outcome.state));
    object.add("shown", outcome.shown);
}

void write(JSONObjectText& object, const JournalledBinding& binding) {
    object.add("event", bindingEvent);
    object.add("address", binding.address);
    object.add("hardware_address", binding.hardwareAddress);
    object.add("is_made", binding.isMade);
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

} // namespace

std::string JournalLines::head(const JournalHead& head) {
    JSONObjectText object;
    object.add("kind", journalKind);
    object.add("schema", journalVersion);
    object.add("started", head.started);
    object.add("source", head.source);
    return sealedText(object.text());
}

std::string JournalLines::entry(const JournalEntry& entry) {
    JSONObjectText object;
    object.add("entry", ++_count);
    std::visit([&object](const auto& value) { write(object, value); }, entry);
    return sealedText(object.text());
}

std::string JournalLines::end() {
    JSONObjectText object;
    object.add("entry", ++_count);
    object.add("event", endEvent);
    return sealedText(object.text());
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
