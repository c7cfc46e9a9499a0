#include "words/TableComplaintText.h"

#include "support/LocalizedText.h"
#include "words/EditForecast.h"
#include "words/QuotedText.h"

#include <optional>

namespace kx {

namespace {

// A fault whose sentence names the cell.
std::optional<std::string_view> keyWithCell(TableFault fault) {
    switch (fault) {
    case TableFault::unknownColumn:
        return localizedKey("“%@” is no name of a column.");
    case TableFault::doubledColumn:
        return localizedKey("“%@” means the same as another column.");
    case TableFault::cellWithoutColumn:
        return localizedKey("“%@” stands in a column without a name.");
    case TableFault::textBehindQuote:
        return localizedKey("“%@” has text behind its closing quotation mark.");
    case TableFault::blankAtEnd:
        return localizedKey("“%@” begins or ends with a blank.");
    case TableFault::controlCharacter:
        return localizedKey("“%@” has a character that nobody sees.");
    case TableFault::notASerialNumber:
        return localizedKey("“%@” is no serial number. Write six pairs of digits, such as "
                            "4B 58 00 00 00 01.");
    default:
        return std::nullopt;
    }
}

// A cell that a spreadsheet has changed.
std::optional<std::string_view> keyOfDamage(TableFault fault) {
    switch (fault) {
    case TableFault::scientificNotation:
        return localizedKey("“%@” is a number that a spreadsheet has shortened.");
    case TableFault::lostZeros:
        return localizedKey("“%@” lacks digits: a spreadsheet has taken it for a number.");
    case TableFault::lostDots:
        return localizedKey("“%@” lacks its dots: a spreadsheet has taken it for a number.");
    case TableFault::date:
        return localizedKey("“%@” is a date: a spreadsheet has taken the value for one.");
    case TableFault::groupedDigits:
        return localizedKey("“%@” has separators that a spreadsheet has put between digits.");
    case TableFault::decimalPlaces:
        return localizedKey("“%@” has decimal places that a spreadsheet has added.");
    case TableFault::truthValue:
        return localizedKey("“%@” is a truth value: a spreadsheet has taken the value for one.");
    case TableFault::tooNarrow:
        return localizedKey("“%@” is a value that a spreadsheet had no room to show.");
    case TableFault::spreadsheetError:
        return localizedKey("“%@” is an error of a spreadsheet.");
    case TableFault::leadingApostrophe:
        return localizedKey("“%@” begins with the mark of a text in a spreadsheet.");
    case TableFault::otherBlank:
        return localizedKey("“%@” has a blank of another kind.");
    default:
        return std::nullopt;
    }
}

std::optional<std::string_view> keyOfTwoLines(TableFault fault) {
    switch (fault) {
    case TableFault::serialNumberTwice:
        return localizedKey("Line %d is about the same unit.");
    case TableFault::newSerialNumberTaken:
        return localizedKey("Line %d has the same serial number.");
    case TableFault::addressTwice:
        return localizedKey("Line %d has the same address.");
    case TableFault::hardwareAddressTwice:
        return localizedKey("Line %d has the same hardware address.");
    default:
        return std::nullopt;
    }
}

std::string_view keyOfFileOrLine(TableFault fault) {
    switch (fault) {
    case TableFault::empty:
        return localizedKey("The file is empty.");
    case TableFault::utf16:
        return localizedKey("The file is in UTF-16. Save it as CSV in UTF-8.");
    case TableFault::notUTF8:
        return localizedKey("The cell is not in UTF-8. Save the file as CSV in UTF-8.");
    case TableFault::quoteNotClosed:
        return localizedKey("A quotation mark is not closed.");
    case TableFault::noHeader:
        return localizedKey("The first line must name the columns: serial and parameters.");
    case TableFault::noSerialColumn:
        return localizedKey("The first line names no column “serial”.");
    case TableFault::tooFewCells:
        return localizedKey("The line has fewer cells than the first one.");
    case TableFault::tooManyCells:
        return localizedKey("The line has more cells than the first one.");
    case TableFault::noSerialNumber:
        return localizedKey("The serial number is missing.");
    case TableFault::onlyBlanks:
        return localizedKey("The cell has nothing but blanks.");
    default:
        return localizedKey("The value does not fit into a command.");
    }
}

std::string sentenceOfValue(const TableComplaint& complaint, const std::string& cell) {
    return complaint.edit.has_value()
               ? localizedText("A unit would get another value than “%@”. The window says of it: "
                               "%@",
                               {cell, forecastOfValueAlone(complaint.edit->edit)})
               : localizedText(keyOfFileOrLine(complaint.fault));
}

} // namespace

std::string faultOfTable(const TableComplaint& complaint) {
    const std::string cell = safeForSentence(complaint.cell);
    if (const auto key = keyWithCell(complaint.fault)) {
        return localizedText(*key, {cell});
    }
    if (const auto key = keyOfDamage(complaint.fault)) {
        return localizedText(*key, {cell}) + ' ' +
               localizedText("Type it again in a cell that is formatted as text.");
    }
    if (const auto key = keyOfTwoLines(complaint.fault)) {
        return localizedText(*key, {static_cast<long long>(complaint.otherLine)});
    }
    return complaint.fault == TableFault::changedValue
               ? sentenceOfValue(complaint, cell)
               : localizedText(keyOfFileOrLine(complaint.fault));
}

std::string textOfComplaint(const TableComplaint& complaint) {
    const auto line = static_cast<long long>(complaint.line);
    const std::string fault = faultOfTable(complaint);
    return complaint.column.empty()
               ? localizedText("Line %d: %@", {line, fault})
               : localizedText("Line %d, %@: %@", {line, safeForSentence(complaint.column), fault});
}

} // namespace kx
