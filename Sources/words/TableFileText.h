// Why a file of units, or the journal of a run, cannot be used, in words.
//
// Pure, except that it looks up the sentences (support/LocalizedText.h), so it belongs to the main
// thread. Texts are UTF-8.

#pragma once

#include "files/JournalFolder.h"
#include "files/TableFile.h"

#include <string>

namespace kx {

std::string sentenceOfFileFault(const TableFileFault& fault, const std::string& path);
std::string sentenceOfFileFault(const JournalFileFault& fault, const std::string& path);

} // namespace kx
