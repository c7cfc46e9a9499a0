// The spellings of units and of values on the command line, and the table that is written and read
// back.

#include "FuzzInput.h"
#include "files/CSV.h"
#include "units/ExactEdit.h"
#include "units/UnitName.h"

#include <cstdint>
#include <string>
#include <vector>

using namespace kx;

namespace {

void nameUnit(const std::string& typed) {
    const auto name = unitNameForText(typed);
    if (!name.has_value()) {
        return;
    }
    if (const auto* const serial = std::get_if<SerialNumberOfUnit>(&*name)) {
        requireInvariant(unitNameForText(serial->text) == name,
                         "the form in which units show a serial number names the same unit");
    } else {
        requireInvariant(!std::get<UnitIDOfUnit>(*name).text.empty(), "a unit ID has a text");
    }
}

void readValue(UnitParameter parameter, const std::string& typed) {
    const auto edit = exactEdit(parameter, typed);
    const auto* const exact = std::get_if<ExactEdit>(&edit);
    if (exact == nullptr || exact->isChanged) {
        return;
    }
    const std::string shown = exact->edit.expectedText.value_or("");
    if (shown.empty()) {
        return; // a unit ID of zero bytes
    }
    const auto again = exactEdit(parameter, shown);
    const auto* const same = std::get_if<ExactEdit>(&again);
    requireInvariant(same != nullptr && !same->isChanged && same->edit.expectedText == shown &&
                         same->unitIDBytes == exact->unitIDBytes,
                     "a value is taken in the form in which it is shown, and stays the same");
}

// The records and fields of a text, divided by two characters that no shell passes on.
std::vector<std::vector<std::string>> tableOf(const std::string& text) {
    std::vector<std::vector<std::string>> table{{""}};
    for (const char character : text) {
        if (character == '\x01') {
            table.back().emplace_back();
        } else if (character == '\x02') {
            table.push_back({""});
        } else {
            table.back().back() += character;
        }
    }
    return table;
}

void writeTable(const std::string& text) {
    const auto table = tableOf(text);
    std::string written;
    for (const auto& record : table) {
        written += csvRecord(record);
    }
    requireInvariant(csvRecords(written) == table, "a table that is written is read back");
    csvRecords(text); // any text can be read
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(textOfInput(data, size));
    nameUnit(text);
    for (const UnitParameter parameter : allUnitParameters) {
        readValue(parameter, text);
    }
    unitParameterForTypedName(text);
    writeTable(text);
    return 0;
}
