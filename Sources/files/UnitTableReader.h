// Tables of units that people keep in a spreadsheet: a row for each unit, a column for each
// parameter, and the values that the units are to have.
//
// A table is CSV (RFC 4180) in UTF-8. The header names the columns, in any order, by the
// identifiers or the names of the parameters (unitParameterForTypedName()), and separates them by
// commas, semicolons or tabs, as every other line does. The column of serial numbers says which
// unit a row is about; the column "new-serial" has the serial number that it is to have. `note`,
// `state`, `reason` and the columns of an export that are no parameters (UnitCSV.h) are ignored.
// An empty cell leaves its parameter alone, and a line without any text says nothing. A byte order
// mark, and lines that end with CRLF, LF or CR, are taken.
//
// A table is refused as a whole: it has complaints, or it can be carried out. Every value must mean
// exactly what it says (ExactEdit.h). Spreadsheets change what looks like a number or a date to
// them; a cell that shows such a change is refused by the name of the change.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "conversation/UnitPlan.h"
#include "files/CSV.h"
#include "files/TableComplaint.h"
#include "units/ExactEdit.h"

#include <cstddef>
#include <string_view>
#include <variant>
#include <vector>

namespace kx {

// The names of the columns that a table has besides those of parameters.
inline constexpr std::string_view newSerialColumn = "new-serial";
inline constexpr std::string_view stateColumn = "state";
inline constexpr std::string_view reasonColumn = "reason";
inline constexpr std::string_view noteColumn = "note";

struct UnitTable {
    // The text as it was read; reports are made of it (UnitTableReport.h). There are no records
    // when it is no CSV in UTF-8.
    CSVDialect dialect = {};
    bool hasByteOrderMark = false;
    std::vector<CSVRecord> records = {};
    std::size_t header = 0; // index of its record; only empty lines stand before it

    // In the order of the file. Only rows without complaints are here.
    // The edits of a row are in the order of the columns.
    std::vector<WantedRow> rows = {};

    std::vector<TableComplaint> complaints = {}; // in the order of lines
};

// Reads any text.
UnitTable readUnitTable(std::string_view text);

// The edit that a cell asks for, which is not empty, or what is wrong with the cell.
std::variant<ExactEdit, TableComplaint> editOfCell(UnitParameter parameter, std::string_view cell);

} // namespace kx
