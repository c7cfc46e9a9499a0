// What there is to see: sentences, lines and the progress.

#include "KXTableRun.h"
#include "support/LocalizedText.h"
#include "words/QuotedText.h"
#include "words/UnitPlanText.h"

#include <algorithm>

namespace kx {

namespace {

std::string shownPath(const std::string& path) {
    return safeForSentence(path, mostCharactersOfSentence);
}

std::string joined(const std::string& first, const std::string& second) {
    return first.empty() || second.empty() ? first + second : first + ' ' + second;
}

bool needsLook(const PlannedRow& row) {
    return row.state == RowState::half || row.reason.objection == RowObjection::fellSilent;
}

bool isObjected(const PlannedRow& row) {
    return row.state == RowState::refused || row.state == RowState::silent;
}

} // namespace

std::string KXTableRun::heading() const {
    return joined(_faultOfReport, joined(_message, sentenceOfStage()));
}

std::string KXTableRun::sentenceOfStage() const {
    switch (_stage) {
    case Stage::empty:
    case Stage::unasked:
        return {};
    case Stage::faulty:
        return _file.table.complaints.size() == 1
                   ? localizedText("The file has a fault. Correct it, and choose the file again.")
                   : localizedText(
                         "The file has %d faults. Correct them, and choose the file again.",
                         {static_cast<long long>(_file.table.complaints.size())});
    case Stage::asking:
        return sentenceOfAsking();
    case Stage::planned:
        return joined(sentenceOfPlan(_plan), objectionToApply());
    case Stage::ended:
        return sentenceOfRun(_plan);
    case Stage::applying:
        break;
    }
    if (_isStopping) {
        return localizedText("Stopping. The units under way are finished and read back.");
    }
    if (_run == nullptr) {
        return localizedText("Asking the units again.");
    }
    return _run->isSearching() ? localizedText("Finding out who holds the new addresses.")
                               : localizedText("Configuring the units.");
}

std::string KXTableRun::sentenceOfAsking() const {
    if (_isStopping) {
        return localizedText("Stopping.");
    }
    const std::size_t answered = _search != nullptr ? _search->heard().count() : 0;
    return _holders != nullptr ? localizedText("Finding out who holds the new addresses.")
                               : localizedText("Asking the units. %d have answered.",
                                               {static_cast<long long>(answered)});
}

// A run that a person has stopped is none, as long as every unit that was begun is done.
bool KXTableRun::meansTrouble() const {
    if (!_message.empty() || !_faultOfReport.empty()) {
        return true;
    }
    switch (_stage) {
    case Stage::faulty:
        return true;
    case Stage::planned:
        return !objectionToApply().empty();
    case Stage::ended:
        return _plan.hasObjections() || needsALook();
    default:
        return false;
    }
}

std::string KXTableRun::journalLine() const {
    if (!_journalPath.empty()) {
        return localizedText("The journal is “%@”.", {shownPath(_journalPath)});
    }
    return _file.path.empty() || _stage == Stage::faulty
               ? std::string()
               : localizedText("Apply keeps a journal in the folder “%@”.",
                               {shownPath(folderOfFile())});
}

std::size_t KXTableRun::lineCount() const {
    return _stage == Stage::faulty ? _file.table.complaints.size() : _lines.size();
}

std::string KXTableRun::cell(std::size_t line, PlanColumn column) const {
    if (_stage == Stage::faulty) {
        return cellOfComplaint(_file.table.complaints[line], column);
    }
    const PlanLine& place = _lines[line];
    const bool isUnderWay = _run != nullptr && _run->isUnderWay(place.row);
    return cellOfPlan(plan(), place, isUnderWay, column);
}

// A table that is wrong in itself is never passed.
std::string KXTableRun::objectionToApply() const {
    const bool isFaulty = std::ranges::any_of(
        _plan.rows, [](const PlannedRow& row) { return isWrongInTable(row.reason.objection); });
    if (isFaulty) {
        return localizedText(
            "Apply sends nothing: lines of the table are wrong, whatever the units "
            "answer.");
    }
    if (_plan.hasObjections() && !_options.keepsGoing && _plan.sum(RowState::planned) > 0) {
        return localizedText("Apply sends nothing while lines are refused or without an answer, "
                             "unless “Keep going” is ticked.");
    }
    return {};
}

bool KXTableRun::needsALook() const {
    return std::ranges::any_of(_plan.rows, needsLook);
}

std::optional<std::size_t> KXTableRun::lineToLookAt() const {
    if (_stage == Stage::faulty) {
        return 0;
    }
    const auto rowOf = [this](const PlanLine& line) -> const PlannedRow& {
        return plan().rows[line.row];
    };
    auto found = std::ranges::find_if(_lines, needsLook, rowOf);
    if (found == _lines.end()) {
        found = std::ranges::find_if(_lines, isObjected, rowOf);
    }
    return found != _lines.end() ? std::optional(static_cast<std::size_t>(found - _lines.begin()))
                                 : std::nullopt;
}

std::vector<std::string> KXTableRun::sentencesAboutUnitsToLookAt() const {
    std::vector<std::string> sentences;
    for (const PlannedRow& row : _plan.rows) {
        if (needsLook(row)) {
            sentences.push_back(
                localizedText("Line %d, %@: %@", {static_cast<long long>(row.line),
                                                  row.serialNumber, noteOfRow(row)}));
        }
    }
    return sentences;
}

KXTableRun::Progress KXTableRun::progress() const {
    if (_run == nullptr) {
        return {};
    }
    Progress progress{.ended = _run->ended(), .total = _run->total()};
    progress.text = localizedText("%d of %d units", {static_cast<long long>(progress.ended),
                                                     static_cast<long long>(progress.total)});
    const std::string left = _isStopping ? std::string()
                                         : textOfTimeLeft(_services.now() - _firstCommand,
                                                          progress.ended, progress.total);
    progress.text += (left.empty() ? "" : ", ") + left;
    return progress;
}

} // namespace kx
