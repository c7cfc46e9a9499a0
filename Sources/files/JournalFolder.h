// The journals of runs as they lie in folders. Every run has a journal of its own, whose name tells
// when it began. kxctl and the window name them alike, so that each finds what the other left.
//
// The thread of its user. Reading takes its time. Texts are UTF-8.

#pragma once

#include "files/JournalText.h"
#include "support/Error.h"

#include <chrono>
#include <ctime>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kx {

// A journal that is there.
struct KeptJournal {
    std::string path;
    std::string text;
    Journal journal = {};
};

// Why a file is no journal that can be used.
using JournalFileFault = std::variant<Error, JournalFault>;

std::variant<KeptJournal, JournalFileFault> readKeptJournal(const std::string& path);

// A name for a new journal in the folder that no file there has: "kxctl-journal-TIME.jsonl", and
// "kxctl-journal-TIME-2.jsonl" for the second one of a second. The time is local. The empty folder
// is the current one.
std::string newJournalPath(const std::string& folder, const std::tm& time);

// The time as the first line of a journal has it: UTC, to the second.
std::string timeOfJournal(std::chrono::seconds sinceEpoch);

// The journals of the folder that have such a name, in the order in which their runs began. Files
// that cannot be read as journals are passed over.
std::vector<KeptJournal> journalsIn(const std::string& folder);

// The same of several folders, by the times at which their runs began. A folder that is named twice
// counts once; an empty name is none.
std::vector<KeptJournal> journalsOfFolders(const std::vector<std::string>& folders);

// Puts journals into the order in which their runs began.
void sortByBeginning(std::vector<KeptJournal>& journals);

// The whole lines of a journal's text: without the part of a line that a run has left that was
// killed.
std::string_view wholeLinesOfJournal(std::string_view text);

} // namespace kx
