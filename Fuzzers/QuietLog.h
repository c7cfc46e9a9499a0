// A system log that drops every line, because a parser's lines about millions of bad inputs help
// nobody.

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
