// The export of hostile units, and what a table would change of them after a spreadsheet has saved
// it.
//
// usage: kxspreadsheet_probe export COUNT FILE    writes the export of so many units
//        kxspreadsheet_probe plan COUNT FILE      tells what the table would change of them
//
// The last line of a plan is "ROWS rows, NAMES with a unit ID, COMPLAINTS complaints, CHANGES to
// change". Lines before it tell each complaint and each change. Exit status: 2 for a wrong call or
// a file that cannot be read or written, otherwise 0.

#include "core/files/HostileUnits.h"
#include "files/UnitCSV.h"
#include "files/UnitTableReader.h"
#include "files/WholeFile.h"

#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

using namespace kx;

namespace {

constexpr std::size_t mostBytes = 16'777'216;

const char* nameOf(TableFault fault) {
    switch (fault) {
    case TableFault::utf16:
        return "utf16";
    case TableFault::lostZeros:
        return "lostZeros";
    case TableFault::lostDots:
        return "lostDots";
    case TableFault::scientificNotation:
        return "scientificNotation";
    case TableFault::groupedDigits:
        return "groupedDigits";
    case TableFault::date:
        return "date";
    default:
        return "another fault";
    }
}

int writeExport(const std::string& path, const std::vector<HeardUnit>& units) {
    UnitList list;
    for (const HeardUnit& unit : units) {
        list.push_back(&unit);
    }
    return replaceFile(path, csvOfUnits(list, {})).has_value() ? 2 : 0;
}

// The number of values that the unit does not show.
std::size_t tellChanges(const WantedRow& row, const HeardUnit& unit) {
    std::size_t count = 0;
    for (const ExactEdit& edit : row.edits) {
        if (!edit.isShownBy(unit.record, unit.unitIDBytes)) {
            ++count;
            std::printf("line %zu, %s: would become \"%s\"\n", row.line,
                        std::string(descriptionOf(edit.edit.parameter).identifier).c_str(),
                        edit.edit.typed.c_str());
        }
    }
    return count;
}

void tellComplaint(const TableComplaint& complaint) {
    std::printf("line %zu, %s: %s \"%s\"\n", complaint.line, complaint.column.c_str(),
                nameOf(complaint.fault), complaint.cell.c_str());
}

int plan(const std::string& path, const std::vector<HeardUnit>& units) {
    const auto contents = contentsOfFile(path, mostBytes);
    const auto* const text = std::get_if<std::string>(&contents);
    if (text == nullptr) {
        return 2;
    }
    std::map<std::string_view, const HeardUnit*> bySerialNumber;
    for (const HeardUnit& unit : units) {
        bySerialNumber.emplace(unit.serialNumber(), &unit);
    }
    const UnitTable table = readUnitTable(*text);
    for (const TableComplaint& complaint : table.complaints) {
        tellComplaint(complaint);
    }
    std::size_t changes = 0;
    std::size_t names = 0;
    for (const WantedRow& row : table.rows) {
        const auto unit = bySerialNumber.find(row.serialNumber);
        changes += unit == bySerialNumber.end() ? 1 : tellChanges(row, *unit->second);
        for (const ExactEdit& edit : row.edits) {
            names += edit.edit.parameter == UnitParameter::unitID ? 1 : 0;
        }
    }
    std::printf("%zu rows, %zu with a unit ID, %zu complaints, %zu to change\n", table.rows.size(),
                names, table.complaints.size(), changes);
    return 0;
}

} // namespace

int main(int count, char** values) {
    if (count != 4) {
        return 2;
    }
    const std::string_view verb = values[1];
    const auto units = HostileUnits::make(std::strtoul(values[2], nullptr, 10));
    if (verb == "export") {
        return writeExport(values[3], units);
    }
    return verb == "plan" ? plan(values[3], units) : 2;
}
