// What is wrong with a table of units, as a value: the line, the column, the cell, and the fault.
//
// Plain values; any thread. Texts are UTF-8, but for the cell of a table that is not.

#pragma once

#include "units/ExactEdit.h"

#include <cstddef>
#include <optional>
#include <string>

namespace kx {

// What is wrong with a table.
enum class TableFault {
    // The file.
    empty,          // there is no header
    utf16,          // UTF-16, as spreadsheets save "Unicode text"
    notUTF8,        // bytes that are not UTF-8, first in this cell
    quoteNotClosed, // the quotation mark that begins this cell is closed nowhere
    noHeader,       // the first line names no column; it may be that of a unit

    // The header.
    noSerialColumn,
    unknownColumn, // `column` is no name of a column
    doubledColumn, // another column means the same

    // A line.
    tooFewCells,       // fewer than the header
    tooManyCells,      // more than the header
    cellWithoutColumn, // a text below an empty cell of the header
    noSerialNumber,    // the cell is empty

    // A cell.
    textBehindQuote,  // behind the quotation mark that closes the cell
    onlyBlanks,       // the cell looks empty, and is not
    blankAtEnd,       // a blank before or behind the value
    controlCharacter, // one that nobody sees: a line break, a tab, a mark of direction
    notASerialNumber,
    changedValue, // a unit would get another value; `edit` tells which

    // A cell that a spreadsheet has changed.
    scientificNotation, // "4.7E+11"
    lostZeros,          // a serial number or hardware address of fewer than twelve digits
    lostDots,           // an address that was taken for a number, "192168178100"
    date,               // "11-Jan", "2026-01-11", "11.01.2026"
    groupedDigits,      // "10,000"
    decimalPlaces,      // "3520.00"
    truthValue,         // "TRUE" as a number
    tooNarrow,          // "######", shown by a column that is too narrow
    spreadsheetError,   // "#REF!", "#NAME?", "Err:508"
    leadingApostrophe,  // "'4B5800000001", which marks a text in the spreadsheet
    otherBlank,         // a blank of another kind, such as one that keeps words together

    // Two lines.
    serialNumberTwice,
    newSerialNumberTaken, // another line is about that unit, or takes that serial number
    addressTwice,         // both take this internal IP address
    hardwareAddressTwice, // both take this internal MAC address
};

struct TableComplaint {
    std::size_t line = 1;    // as an editor counts the lines of the file; 1 is the header's
    std::string column = {}; // as the header names it; empty when it is about the whole line
    TableFault fault = TableFault::empty;
    std::string cell = {};              // its text; empty when it is about the whole line
    std::size_t otherLine = 0;          // the other of two lines; 0 for a complaint about one
    std::optional<ExactEdit> edit = {}; // of a changedValue
};

} // namespace kx
