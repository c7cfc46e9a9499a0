// A stand-in for a tool of the host that records its arguments.

#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace kx {

class RecordingTool {
public:
    RecordingTool() = default;
    ~RecordingTool() { std::filesystem::remove_all(_folder); }
    RecordingTool(const RecordingTool&) = delete;
    RecordingTool& operator=(const RecordingTool&) = delete;

    // A program that records its arguments, one on each line, and then runs these commands.
    std::string program(const std::string& commands) const {
        return "#!/bin/sh\nfor word in \"$@\"; do echo \"$word\"; done >>" + _folder + "/words\n" +
               commands + "\n";
    }

    // The arguments that the tool has got so far; empty when it has not run.
    std::string words() const {
        std::ostringstream text;
        const std::ifstream file(_folder + "/words");
        if (file) {
            text << file.rdbuf();
        }
        return text.str();
    }

    // A folder of the test's own.
    const std::string& folder() const { return _folder; }

private:
    std::string _folder = std::string(::mkdtemp(std::string("/tmp/kx-arp-XXXXXX").data()));
};

inline std::string saying(const std::string& sentence) {
    return "echo '" + sentence + "'";
}

} // namespace kx
