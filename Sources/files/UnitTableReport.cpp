#include "files/UnitTableReport.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>

namespace kx {

namespace {

bool isNamed(std::string_view cell, std::string_view name) {
    const auto first = std::min(cell.find_first_not_of(' '), cell.size());
    const auto last = cell.find_last_not_of(' ') + 1;
    const auto core = cell.substr(first, std::max(last, first) - first);
    return std::ranges::equal(core, name, {}, detail::lowered);
}

// The place of a column of the header; one is added when there is none.
std::size_t placeOfColumn(std::vector<std::string>& header, std::string_view name) {
    const auto found =
        std::ranges::find_if(header, [name](std::string_view cell) { return isNamed(cell, name); });
    const auto place = static_cast<std::size_t>(found - header.begin());
    if (found == header.end()) {
        header.emplace_back(name);
    }
    return place;
}

struct ReportColumns {
    std::size_t before = 0; // the number of columns of the table
    std::size_t count = 0;  // with those that were added behind them
    std::size_t state = 0;
    std::size_t reason = 0;
};

ReportColumns addColumns(std::vector<std::string>& header) {
    ReportColumns columns{.before = header.size()};
    columns.state = placeOfColumn(header, stateColumn);
    columns.reason = placeOfColumn(header, reasonColumn);
    columns.count = header.size();
    return columns;
}

// Cells beyond the header stay, behind those of the added columns.
void fillIn(std::vector<std::string>& fields, const ReportColumns& columns,
            const ReportedRow& row) {
    fields.resize(std::max(fields.size(), columns.before));
    fields.insert(fields.begin() + static_cast<std::ptrdiff_t>(columns.before),
                  columns.count - columns.before, std::string());
    fields[columns.state] = row.state;
    fields[columns.reason] = row.reason;
}

// The text that asks for what the row wants of the parameter; empty without one.
std::string cellOf(const WantedRow& row, UnitParameter parameter) {
    const auto edit = std::ranges::find(row.edits, parameter,
                                        [](const ExactEdit& each) { return each.edit.parameter; });
    if (edit == row.edits.end()) {
        return {};
    }
    const auto read = editOfCell(parameter, edit->edit.typed);
    const auto* const exact = std::get_if<ExactEdit>(&read);
    return exact != nullptr && exact->edit.command == edit->edit.command ? edit->edit.typed
                                                                         : std::string();
}

} // namespace

std::string reportOfTable(const UnitTable& table, std::span<const ReportedRow> rows) {
    std::map<std::size_t, const ReportedRow*> reported;
    for (const ReportedRow& row : rows) {
        reported.emplace(row.line, &row);
    }
    std::string text = table.hasByteOrderMark ? "\xEF\xBB\xBF" : "";
    ReportColumns columns;
    for (std::size_t i = 0; i < table.records.size(); ++i) {
        std::vector<std::string> fields = table.records[i].fields;
        if (fields.size() == 1 && fields.front().empty()) {
            text += table.dialect.lineBreak;
            continue;
        }
        if (i == table.header) {
            columns = addColumns(fields);
        } else {
            const auto row = reported.find(table.records[i].line);
            fillIn(fields, columns, row != reported.end() ? *row->second : ReportedRow());
        }
        text += csvRecord(fields, table.dialect);
    }
    return text;
}

UnitTable unitTableOfRows(std::span<const WantedRow> rows) {
    std::set<UnitParameter> wanted;
    for (const WantedRow& row : rows) {
        for (const ExactEdit& edit : row.edits) {
            wanted.insert(edit.edit.parameter);
        }
    }
    std::vector<std::string> fields{
        std::string(descriptionOf(UnitParameter::serialNumber).identifier)};
    for (const UnitParameter parameter : wanted) {
        fields.emplace_back(parameter == UnitParameter::serialNumber
                                ? newSerialColumn
                                : descriptionOf(parameter).identifier);
    }
    std::string text = csvRecord(fields);
    for (const WantedRow& row : rows) {
        fields.assign(1, row.serialNumber);
        for (const UnitParameter parameter : wanted) {
            fields.push_back(cellOf(row, parameter));
        }
        text += csvRecord(fields);
    }
    return readUnitTable(text);
}

} // namespace kx
