#include "files/TableFile.h"

#include "files/KeptPlan.h"
#include "files/WholeFile.h"

#include <utility>

namespace kx {

std::variant<TableFile, TableFileFault> readTableFile(const std::string& path) {
    auto read = contentsOfFile(path, mostBytesOfFile);
    if (const auto* const error = std::get_if<Error>(&read)) {
        return TableFileFault(*error);
    }
    auto& contents = std::get<std::string>(read);
    TableFile file{.path = path};
    if (looksLikeKeptPlan(contents)) {
        auto plan = readKeptPlan(contents);
        if (const auto* const fault = std::get_if<DocumentFault>(&plan)) {
            return TableFileFault(*fault);
        }
        file.table = std::get<UnitTable>(std::move(plan));
    } else {
        file.table = readUnitTable(contents);
        file.text = std::move(contents);
    }
    file.rows = std::exchange(file.table.rows, {});
    return file;
}

TableFile tableFileOfRows(std::vector<WantedRow> rows, std::string path) {
    UnitTable table = unitTableOfRows(rows);
    return {.path = std::move(path),
            .rows = std::move(rows),
            .table = std::move(table),
            .isTable = false};
}

std::string reportOfFile(const TableFile& file, std::vector<ReportedRow> rows) {
    if (!file.isTable) {
        std::size_t line = 2; // behind the header
        for (ReportedRow& row : rows) {
            row.line = line++;
        }
    }
    return reportOfTable(file.table, rows);
}

} // namespace kx
