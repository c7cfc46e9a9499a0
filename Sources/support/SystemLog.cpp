#include "support/SystemLog.h"

#include <cstdio>
#include <utility>

namespace kx {

namespace {

SystemLog* installedLog = nullptr;

} // namespace

SystemLog* installSystemLog(SystemLog* log) {
    return std::exchange(installedLog, log);
}

void logToSystem(std::string_view line) {
    if (installedLog != nullptr) {
        installedLog->write(line);
        return;
    }
    std::fprintf(stderr, "%.*s\n", static_cast<int>(line.size()), line.data());
}

} // namespace kx
