#include "files/UnitTableReader.h"

#include "files/SpreadsheetText.h"
#include "files/UnitCSV.h"
#include "support/TextEncoding.h"
#include "support/VisibleText.h"
#include "units/UnitName.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <set>
#include <utility>

namespace kx {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// A column by its meaning. No two columns that are not nameless may be equal.
struct Column {
    enum class Kind { nameless, ignored, unit, parameter, unknown };

    Kind kind = Kind::unknown;
    std::string name; // in lower case, without blanks at the ends
    UnitParameter parameter = UnitParameter::end;

    bool meansTheSame(const Column& other) const {
        return kind == other.kind && parameter == other.parameter &&
               (kind != Kind::ignored || name == other.name) && kind != Kind::nameless &&
               kind != Kind::unknown;
    }
};

std::string_view withoutBlanksAtEnds(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const auto last = text.find_last_not_of(' ');
    return text.substr(0, last == std::string_view::npos ? 0 : last + 1);
}

bool isIgnored(std::string_view name) {
    return name == noteColumn || name == stateColumn || name == reasonColumn ||
           std::ranges::find(exportedFacts, name) != exportedFacts.end();
}

Column columnNamed(std::string_view cell) {
    Column column;
    std::ranges::transform(withoutBlanksAtEnds(cell), std::back_inserter(column.name),
                           detail::lowered);
    if (column.name.empty()) {
        column.kind = Column::Kind::nameless;
    } else if (isIgnored(column.name)) {
        column.kind = Column::Kind::ignored;
    } else if (column.name == newSerialColumn) {
        column.kind = Column::Kind::parameter;
        column.parameter = UnitParameter::serialNumber;
    } else if (const auto parameter = unitParameterForTypedName(column.name)) {
        column.parameter = *parameter;
        column.kind =
            parameter == UnitParameter::serialNumber ? Column::Kind::unit : Column::Kind::parameter;
    }
    return column;
}

bool isEmpty(const CSVRecord& record) {
    return std::ranges::all_of(record.fields, &std::string::empty);
}

// The first separator in the header that does not stand within a quotation.
char separatorOf(std::string_view text) {
    bool isQuoted = false;
    bool isBegun = false;
    for (const char character : text) {
        if (character == '"') {
            isQuoted = !isQuoted;
        } else if (isQuoted) {
            continue;
        } else if (character == ',' || character == ';' || character == '\t') {
            return character;
        } else if (isBegun && (character == '\n' || character == '\r')) {
            break;
        }
        isBegun = isBegun || (character != '\n' && character != '\r');
    }
    return ',';
}

std::string_view lineBreakOf(std::string_view text) {
    const auto end = text.find_first_of("\r\n");
    if (end == std::string_view::npos || text.substr(end).starts_with("\r\n")) {
        return "\r\n";
    }
    return text[end] == '\n' ? "\n" : "\r";
}

// UTF-16 has a zero byte in each letter of ASCII, and begins with one.
bool isUTF16(std::string_view text) {
    return text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF") ||
           text.substr(0, 2).find('\0') != std::string_view::npos;
}

// What is wrong with the text of a cell, whatever its column is.
std::optional<TableFault> faultOfText(std::string_view cell) {
    if (cell.find_first_not_of(" \t") == std::string_view::npos) {
        return TableFault::onlyBlanks;
    }
    if (const auto sight = sightOfSpreadsheet(cell)) {
        return sight;
    }
    if (visibleText(cell) != cell) {
        return TableFault::controlCharacter;
    }
    return cell.starts_with(' ') || cell.ends_with(' ') ? std::optional(TableFault::blankAtEnd)
                                                        : std::nullopt;
}

class Reading {
public:
    explicit Reading(std::string_view text) { read(text); }

    UnitTable take() {
        std::ranges::stable_sort(_table.complaints, {}, &TableComplaint::line);
        std::set<std::size_t> refused;
        for (const TableComplaint& complaint : _table.complaints) {
            refused.insert(complaint.line);
        }
        std::erase_if(_table.rows,
                      [&refused](const WantedRow& row) { return refused.contains(row.line); });
        return std::move(_table);
    }

private:
    void read(std::string_view text) {
        if (isUTF16(text)) {
            complain({.fault = TableFault::utf16});
            return;
        }
        _table.hasByteOrderMark = text.starts_with(byteOrderMark);
        text.remove_prefix(_table.hasByteOrderMark ? byteOrderMark.size() : 0);
        _table.dialect = {.separator = separatorOf(text), .lineBreak = lineBreakOf(text)};
        auto records = csvTable(text, _table.dialect.separator);
        const auto header = std::ranges::find_if_not(records, isEmpty);
        if (header == records.end()) {
            complain({.fault = TableFault::empty});
            return;
        }
        _header = header->fields;
        if (!isValidUTF8(bytesOfText(text))) {
            complainAboutBytes(records);
            return;
        }
        _table.header = static_cast<std::size_t>(header - records.begin());
        _table.records = std::move(records);
        if (readHeader(headerRecord())) {
            readLines();
            compareLines();
        }
    }

    const CSVRecord& headerRecord() const { return _table.records[_table.header]; }

    void complain(TableComplaint complaint) { _table.complaints.push_back(std::move(complaint)); }

    void complainAboutBytes(const std::vector<CSVRecord>& records) {
        for (const CSVRecord& record : records) {
            for (std::size_t i = 0; i < record.fields.size(); ++i) {
                if (!isValidUTF8(bytesOfText(record.fields[i]))) {
                    complain({.line = record.line,
                              .column = nameOfColumn(i),
                              .fault = TableFault::notUTF8,
                              .cell = record.fields[i]});
                    return;
                }
            }
        }
        // A quotation mark stands between the bytes of one character.
        for (const CSVRecord& record : records) {
            if (record.fault.has_value()) {
                complainAboutQuotation(record, *record.fault);
            }
        }
    }

    // Empty beyond the header.
    std::string nameOfColumn(std::size_t index) const {
        return index < _header.size() ? _header[index] : std::string();
    }

    bool readHeader(const CSVRecord& header) {
        std::ranges::transform(header.fields, std::back_inserter(_columns), columnNamed);
        const auto isKnown = [](const Column& column) {
            return column.kind != Column::Kind::unknown && column.kind != Column::Kind::nameless;
        };
        if (header.fault.has_value()) {
            complainAboutQuotation(header, *header.fault);
        } else if (std::ranges::none_of(_columns, isKnown)) {
            complain({.line = header.line,
                      .fault = TableFault::noHeader,
                      .cell = header.fields.front()});
        } else {
            checkColumns(header);
        }
        return _table.complaints.empty();
    }

    void checkColumns(const CSVRecord& header) {
        for (std::size_t i = 0; i < _columns.size(); ++i) {
            const auto isSame = [&column = _columns[i]](const Column& other) {
                return column.meansTheSame(other);
            };
            const auto end = _columns.begin() + static_cast<std::ptrdiff_t>(i);
            const bool isUnknown = _columns[i].kind == Column::Kind::unknown;
            if (isUnknown || std::any_of(_columns.begin(), end, isSame)) {
                complain(
                    {.line = header.line,
                     .column = header.fields[i],
                     .fault = isUnknown ? TableFault::unknownColumn : TableFault::doubledColumn,
                     .cell = header.fields[i]});
            }
        }
        if (std::ranges::find(_columns, Column::Kind::unit, &Column::kind) == _columns.end()) {
            complain({.line = header.line, .fault = TableFault::noSerialColumn});
        }
    }

    void readLines() {
        for (std::size_t i = _table.header + 1; i < _table.records.size(); ++i) {
            if (!isEmpty(_table.records[i])) {
                readLine(_table.records[i]);
            }
        }
    }

    void readLine(const CSVRecord& record) {
        if (record.fault.has_value()) {
            complainAboutQuotation(record, *record.fault);
        } else if (record.fields.size() != _columns.size()) {
            complain({.line = record.line,
                      .fault = record.fields.size() < _columns.size() ? TableFault::tooFewCells
                                                                      : TableFault::tooManyCells});
        } else {
            _row = {.line = record.line, .serialNumber = {}, .edits = {}};
            for (std::size_t i = 0; i < _columns.size(); ++i) {
                readCell({.line = record.line, .column = _header[i], .cell = record.fields[i]},
                         _columns[i]);
            }
            _table.rows.push_back(std::move(_row));
        }
    }

    void complainAboutQuotation(const CSVRecord& record, const CSVFault& fault) {
        complain({.line = fault.line,
                  .column = nameOfColumn(fault.field),
                  .fault = fault.isOpen ? TableFault::quoteNotClosed : TableFault::textBehindQuote,
                  .cell = record.fields[fault.field]});
    }

    // `place` is a complaint about the cell, but for its fault.
    void readCell(TableComplaint place, const Column& column) {
        if (column.kind == Column::Kind::unit) {
            readSerialNumber(std::move(place));
        } else if (column.kind == Column::Kind::ignored || place.cell.empty()) {
            return;
        } else if (column.kind == Column::Kind::nameless) {
            place.fault = TableFault::cellWithoutColumn;
            complain(std::move(place));
        } else {
            readValue(std::move(place), column.parameter);
        }
    }

    void readSerialNumber(TableComplaint place) {
        const auto digits = digitsOfSixPairs(place.cell);
        if (digits.has_value()) {
            _row.serialNumber = textOfSixPairs(*digits, ' ');
            return;
        }
        place.fault = TableFault::noSerialNumber;
        if (!place.cell.empty()) {
            place.fault = faultOfText(place.cell)
                              .value_or(damageOfSpreadsheet(place.cell, ValueForm::serialNumber)
                                            .value_or(TableFault::notASerialNumber));
        }
        complain(std::move(place));
    }

    void readValue(TableComplaint place, UnitParameter parameter) {
        auto edit = editOfCell(parameter, place.cell);
        if (auto* const exact = std::get_if<ExactEdit>(&edit)) {
            _row.edits.push_back(std::move(*exact));
            return;
        }
        const auto& complaint = std::get<TableComplaint>(edit);
        place.fault = complaint.fault;
        place.edit = complaint.edit;
        complain(std::move(place));
    }

    // What two lines must not both have. Each value belongs to the line that has it first.
    void compareLines() {
        std::map<std::string, std::size_t> units;
        for (const WantedRow& row : _table.rows) {
            if (!row.serialNumber.empty()) {
                claim(units, row, row.serialNumber, columnOfUnit(), TableFault::serialNumberTwice);
            }
        }
        std::map<std::string, std::size_t> serialNumbers = units;
        std::map<std::string, std::size_t> addresses;
        std::map<std::string, std::size_t> hardwareAddresses;
        for (const WantedRow& row : _table.rows) {
            for (const ExactEdit& edit : row.edits) {
                const std::string value = edit.edit.expectedText.value_or("");
                switch (edit.edit.parameter) {
                case UnitParameter::serialNumber:
                    claim(serialNumbers, row, value, columnOf(edit),
                          TableFault::newSerialNumberTaken);
                    break;
                case UnitParameter::internalIPAddress:
                    claim(addresses, row, value, columnOf(edit), TableFault::addressTwice);
                    break;
                case UnitParameter::internalMACAddress:
                    claim(hardwareAddresses, row, value, columnOf(edit),
                          TableFault::hardwareAddressTwice);
                    break;
                default:
                    break;
                }
            }
        }
    }

    void claim(std::map<std::string, std::size_t>& owners, const WantedRow& row,
               const std::string& value, const std::string& column, TableFault fault) {
        const auto [owner, isFree] = owners.try_emplace(value, row.line);
        if (!isFree && owner->second != row.line) {
            complain({.line = row.line,
                      .column = column,
                      .fault = fault,
                      .cell = value,
                      .otherLine = owner->second});
        }
    }

    std::string columnOfUnit() const {
        const auto found = std::ranges::find(_columns, Column::Kind::unit, &Column::kind);
        return nameOfColumn(static_cast<std::size_t>(found - _columns.begin()));
    }

    std::string columnOf(const ExactEdit& edit) const {
        const auto found = std::ranges::find_if(_columns, [&edit](const Column& column) {
            return column.kind == Column::Kind::parameter &&
                   column.parameter == edit.edit.parameter;
        });
        return nameOfColumn(static_cast<std::size_t>(found - _columns.begin()));
    }

    UnitTable _table;
    std::vector<std::string> _header; // the names as they stand there
    std::vector<Column> _columns;
    WantedRow _row; // of the line that is being read
};

} // namespace

UnitTable readUnitTable(std::string_view text) {
    return Reading(text).take();
}

std::variant<ExactEdit, TableComplaint> editOfCell(UnitParameter parameter, std::string_view cell) {
    TableComplaint complaint{.cell = std::string(cell)};
    if (const auto fault = faultOfText(cell)) {
        complaint.fault = *fault;
        return complaint;
    }
    auto edit = exactEdit(parameter, cell);
    auto* const exact = std::get_if<ExactEdit>(&edit);
    if (exact != nullptr && !exact->isChanged) {
        return std::move(*exact);
    }
    complaint.fault =
        damageOfSpreadsheet(cell, descriptionOf(parameter).form).value_or(TableFault::changedValue);
    if (exact != nullptr) {
        complaint.edit = std::move(*exact);
    }
    return complaint;
}

} // namespace kx
