#include "commands/RowsFile.h"

#include "commands/PlanReport.h"
#include "files/KeptPlan.h"
#include "files/WholeFile.h"
#include "support/LocalizedText.h"
#include "words/DocumentFaultText.h"
#include "words/QuotedText.h"
#include "words/TableComplaintText.h"

#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

constexpr std::size_t mostBytes = std::size_t{256} * 1024 * 1024;

// A cell is a value; everything else is about the file.
ErrorCode codeOf(const TableComplaint& complaint) {
    const bool isOfCell =
        complaint.fault >= TableFault::onlyBlanks && complaint.fault <= TableFault::otherBlank;
    return isOfCell ? ErrorCode::value : ErrorCode::file;
}

Refusal refusalOfTable(CommandRun& run, const std::string& path,
                       const std::vector<TableComplaint>& complaints) {
    if (complaints.empty()) {
        return std::nullopt;
    }
    const std::string first = textOfComplaint(complaints.front());
    const std::string shownPath = safeForSentence(path);
    if (complaints.size() == 1) {
        return failureOf(codeOf(complaints.front()),
                         localizedText("“%@” is refused. %@", {shownPath, first}));
    }
    for (const TableComplaint& complaint : complaints) {
        run.warn(nameOf(codeOf(complaint)), textOfComplaint(complaint));
    }
    return failureOf(codeOf(complaints.front()),
                     localizedText("“%@” is refused. It has %d faults, the first one: %@",
                                   {shownPath, static_cast<long long>(complaints.size()), first}));
}

} // namespace

Refusal readWholeFile(const std::string& path, std::string& contents) {
    auto read = contentsOfFile(path, mostBytes);
    if (const auto* const error = std::get_if<Error>(&read)) {
        return failureOf(ErrorCode::file,
                         localizedText("“%@” cannot be read: %@.",
                                       {safeForSentence(path), error->localizedDescription()}));
    }
    contents = std::get<std::string>(std::move(read));
    return std::nullopt;
}

RowsFile fileOfRows(std::vector<WantedRow> rows) {
    UnitTable table = unitTableOfRows(rows);
    return {.rows = std::move(rows), .table = std::move(table), .isTable = false};
}

Refusal readRowsFile(CommandRun& run, const std::string& path, RowsFile& file) {
    std::string contents;
    if (auto refusal = readWholeFile(path, contents)) {
        return refusal;
    }
    file.source = path;
    if (looksLikeKeptPlan(contents)) {
        auto plan = readKeptPlan(contents);
        if (const auto* const fault = std::get_if<DocumentFault>(&plan)) {
            return failureOf(ErrorCode::file, textOfDocumentFault(*fault, path));
        }
        file.table = std::get<UnitTable>(std::move(plan));
    } else {
        file.table = readUnitTable(contents);
        file.text = std::move(contents);
    }
    file.rows = std::exchange(file.table.rows, {});
    return refusalOfTable(run, path, file.table.complaints);
}

Refusal objectionToRows(const CommandRun& run, std::span<const WantedRow> rows) {
    return failureInTable(planOfRows({rows.begin(), rows.end()}, HeardUnits(),
                                     {.interfaces = run.interfaces(), .asked = run.chosen()}));
}

std::string reportOf(const RowsFile& file, const UnitPlan& plan) {
    std::vector<ReportedRow> rows = reportedRows(plan);
    if (!file.isTable) {
        std::size_t line = 2; // behind the header
        for (ReportedRow& row : rows) {
            row.line = line++;
        }
    }
    return reportOfTable(file.table, rows);
}

} // namespace kx
