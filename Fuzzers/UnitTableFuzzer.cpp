// Tables of units: any text is read, what is read means exactly what it says, and the report of a
// table asks for the same as the table.

#include "FuzzInput.h"
#include "files/UnitTableReport.h"
#include "units/UnitName.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using namespace kx;

namespace {

bool isEqual(const WantedRow& left, const WantedRow& right) {
    return left.line == right.line && left.serialNumber == right.serialNumber &&
           std::ranges::equal(left.edits, right.edits,
                              [](const ExactEdit& one, const ExactEdit& other) {
                                  return one.edit.command == other.edit.command;
                              });
}

void lookAt(const UnitTable& table, std::size_t lines) {
    requireInvariant(!table.records.empty() || !table.complaints.empty(),
                     "a text that was not read is complained about");
    for (const TableComplaint& complaint : table.complaints) {
        requireInvariant(complaint.line >= 1 && complaint.line <= lines,
                         "a complaint is about a line of the file");
        requireInvariant(complaint.otherLine <= lines, "so is the other line");
    }
    for (const WantedRow& row : table.rows) {
        requireInvariant(textOfSixPairs(digitsOfSixPairs(row.serialNumber).value_or(""), ' ') ==
                             row.serialNumber,
                         "a row has a serial number in the form in which units tell it");
        for (const ExactEdit& edit : row.edits) {
            requireInvariant(!edit.isChanged && !edit.edit.isTooLong() &&
                                 edit.edit.expectedText.has_value(),
                             "a unit can show what a row wants");
        }
    }
}

std::vector<ReportedRow> outcomesOf(const UnitTable& table) {
    std::vector<ReportedRow> outcomes;
    outcomes.reserve(table.rows.size());
    for (const WantedRow& row : table.rows) {
        outcomes.push_back({row.line, "done", row.line % 2 == 0 ? "because, \"so\"" : ""});
    }
    return outcomes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text = textOfInput(data, size);
    const UnitTable table = readUnitTable(text);
    lookAt(table, 1 + static_cast<std::size_t>(std::ranges::count(text, '\n') +
                                               std::ranges::count(text, '\r')));
    const auto outcomes = outcomesOf(table);
    const std::string report = reportOfTable(table, outcomes);
    if (table.complaints.empty()) {
        const UnitTable again = readUnitTable(report);
        requireInvariant(again.complaints.empty(), "a report is a table without complaints");
        requireInvariant(std::ranges::equal(table.rows, again.rows, isEqual),
                         "a report asks for the same as its table");
        requireInvariant(reportOfTable(again, outcomes) == report,
                         "a report of a report is the same");
    }
    return 0;
}
