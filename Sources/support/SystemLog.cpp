#include "support/SystemLog.h"

#include "support/TextEncoding.h"
#include "support/VisibleText.h"

#include <cstdint>
#include <cstdio>
#include <string>
#include <utility>

namespace kx {

namespace {

SystemLog* installedLog = nullptr;

void writeToStandardError(std::string_view line) {
    const std::string text = escapedLine(line) + "\n";
    std::fwrite(text.data(), 1, text.size(), stderr);
}

} // namespace

std::string escapedLine(std::string_view line) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    while (!line.empty()) {
        const FrontCharacter front = characterAtFrontOf(bytesOfText(line));
        const std::string_view character = line.substr(0, front.length);
        if (character == "\t" || !actsOnTheScreen(front.code)) {
            result += character;
        } else {
            for (const std::uint8_t byte : bytesOfText(character)) {
                result.append("\\x").append({digits[byte >> 4U], digits[byte & 0xFU]});
            }
        }
        line.remove_prefix(front.length);
    }
    return result;
}

SystemLog* installSystemLog(SystemLog* log) {
    return std::exchange(installedLog, log);
}

void logToSystem(std::string_view line) {
    if (installedLog != nullptr) {
        installedLog->write(line);
    } else {
        writeToStandardError(line);
    }
}

void logLastToSystem(std::string_view line) {
    if (installedLog != nullptr) {
        installedLog->writeLast(line);
    } else {
        writeToStandardError(line);
    }
}

} // namespace kx
