#include "commands/RowsFile.h"

#include "commands/PlanReport.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"
#include "words/TableComplaintText.h"
#include "words/TableFileText.h"

#include <utility>

namespace kx {

namespace {

using Refusal = CommandRun::Refusal;

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

Refusal readRowsFile(CommandRun& run, const std::string& path, TableFile& file) {
    auto read = readTableFile(path);
    if (const auto* const fault = std::get_if<TableFileFault>(&read)) {
        return failureOf(ErrorCode::file, sentenceOfFileFault(*fault, path));
    }
    file = std::get<TableFile>(std::move(read));
    return refusalOfTable(run, path, file.table.complaints);
}

Refusal objectionToRows(const CommandRun& run, std::span<const WantedRow> rows) {
    return failureInTable(planOfRows({rows.begin(), rows.end()}, HeardUnits(),
                                     {.interfaces = run.interfaces(), .asked = run.chosen()}));
}

} // namespace kx
