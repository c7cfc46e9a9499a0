// A system log that keeps its lines for the test to read.
//
// It is the process's log from its construction to its destruction, and then restores the earlier
// one.

#pragma once

#include "support/SystemLog.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace kx {

class RecordedSystemLog final : public SystemLog {
public:
    RecordedSystemLog()
        : _previous(installSystemLog(this)) {}
    ~RecordedSystemLog() override { installSystemLog(_previous); }
    RecordedSystemLog(const RecordedSystemLog&) = delete;
    RecordedSystemLog& operator=(const RecordedSystemLog&) = delete;

    void write(std::string_view line) override { _lines.push_back(escapedLine(line)); }

    // Everything written so far, oldest first.
    const std::vector<std::string>& lines() const { return _lines; }

    // Whether any line contains `text`.
    bool contains(std::string_view text) const {
        return std::any_of(_lines.begin(), _lines.end(), [text](const std::string& line) {
            return line.find(text) != std::string::npos;
        });
    }

private:
    SystemLog* _previous;
    std::vector<std::string> _lines;
};

} // namespace kx
