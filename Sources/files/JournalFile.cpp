#include "files/JournalFile.h"

#include <utility>

namespace kx {

using namespace std::chrono_literals;

JournalFile::JournalFile(RunLoop& runLoop, LineOfEntry lineOfEntry)
    : _runLoop(runLoop)
    , _lineOfEntry(std::move(lineOfEntry)) {}

JournalFile::~JournalFile() {
    _file.append(_lines);
}

std::optional<Error> JournalFile::begin(const std::string& path, std::string_view text) {
    _failure = _file.begin(path, text);
    return _failure;
}

void JournalFile::write(const JournalEntry& entry, Written written) {
    _lines += _lineOfEntry(entry);
    _waiting.push_back(std::move(written));
    if (_waiting.size() == 1) {
        _nextFlush = _runLoop.callOnceAfter(0ms, [this] { flush(); });
    }
}

// An entry that is written inside a call waits for the next turn.
void JournalFile::flush() {
    _failure = _file.append(std::exchange(_lines, {}));
    const bool isOnDisk = !_failure.has_value();
    for (const Written& written : std::exchange(_waiting, {})) {
        written(isOnDisk);
    }
}

void JournalFile::finish(std::string_view text) {
    _nextFlush.reset();
    flush();
    _failure = _file.append(text);
}

} // namespace kx
