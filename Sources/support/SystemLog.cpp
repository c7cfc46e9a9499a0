#include "support/SystemLog.h"

#include <cstdio>
#include <string>
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
    std::string text(line);
    text += '\n';
    std::fwrite(text.data(), 1, text.size(), stderr);
}

} // namespace kx
