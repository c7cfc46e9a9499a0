// A system log that drops every line: what a parser says of millions of bad inputs helps nobody.

#pragma once

#include "support/SystemLog.h"

#include <string_view>

namespace kx {

class QuietLog final : public SystemLog {
public:
    void write(std::string_view /*line*/) override {}
};

inline void keepSystemLogQuiet() {
    static QuietLog log;
    installSystemLog(&log);
}

} // namespace kx
