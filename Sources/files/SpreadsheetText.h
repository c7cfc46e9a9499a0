// What spreadsheets do to the texts of cells. They take a text that looks like a number, a date or
// a formula for one, and save what they show of it.
//
// Pure; any thread. Texts are UTF-8.

#pragma once

#include "files/TableComplaint.h"
#include "units/UnitParameter.h"

#include <optional>
#include <string_view>

namespace kx {

// What a spreadsheet shows in the place of a value: tooNarrow or spreadsheetError. Absent for any
// other text.
std::optional<TableFault> sightOfSpreadsheet(std::string_view cell);

// The change of a spreadsheet that a cell shows, when the cell is no value of this form. Absent
// when it shows none that is known.
std::optional<TableFault> damageOfSpreadsheet(std::string_view cell, ValueForm form);

// Whether a spreadsheet of any language saves the text as it was: plain numbers, and texts that
// begin with a letter of ASCII and are neither a truth value nor a month's name with a number.
bool isKeptBySpreadsheets(std::string_view text);

} // namespace kx
