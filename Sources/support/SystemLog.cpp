#include "support/SystemLog.h"

#include <cstdio>
#include <string>
#include <utility>

namespace kx {

namespace {

SystemLog* installedLog = nullptr;

} // namespace

std::string escapedLine(std::string_view line) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (const char character : line) {
        const auto code = static_cast<unsigned char>(character);
        if ((code < 0x20 && character != '\t') || code == 0x7F) {
            result.append("\\x").append({digits[code >> 4U], digits[code & 0xFU]});
        } else {
            result += character;
        }
    }
    return result;
}

SystemLog* installSystemLog(SystemLog* log) {
    return std::exchange(installedLog, log);
}

void logToSystem(std::string_view line) {
    if (installedLog != nullptr) {
        installedLog->write(line);
        return;
    }
    const std::string text = escapedLine(line) + "\n";
    std::fwrite(text.data(), 1, text.size(), stderr);
}

} // namespace kx
