#include "Simulator/CommandRecord.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace kx::simulator {

namespace {

std::string hexOf(ByteView bytes, std::string_view separator = "") {
    constexpr std::string_view digitCharacters = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (!text.empty()) {
            text += separator;
        }
        text += digitCharacters[byte >> 4];
        text += digitCharacters[byte & 0x0F];
    }
    return text;
}

std::string dotted(IPv4 address) {
    std::string text;
    for (unsigned shift = 32; shift != 0; shift -= 8) {
        if (!text.empty()) {
            text += '.';
        }
        text += std::to_string(address >> (shift - 8) & 0xFF);
    }
    return text;
}

} // namespace

CommandRecord::CommandRecord(const std::string& path)
    : _descriptor(::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644)) {
    if (_descriptor < 0) {
        throw std::system_error(errno, std::generic_category(), path);
    }
}

CommandRecord::CommandRecord()
    : _descriptor(STDOUT_FILENO) {}

CommandRecord::~CommandRecord() {
    if (_descriptor != STDOUT_FILENO) {
        ::close(_descriptor);
    }
}

void CommandRecord::addCommand(const SimulatedUnit& unit, const Datagram& datagram) {
    _lines += hexOf(unit.settings().serial) + ' ' + dotted(datagram.destination.address) + ' ' +
              std::to_string(datagram.destination.port) + ' ' + hexOf(datagram.payload) + '\n';
}

void CommandRecord::addState(const SimulatedUnit& unit) {
    const UnitSettings& settings = unit.settings();
    _lines += "state " + hexOf(settings.serial);
    _lines += " hardware=" + hexOf(settings.hardwareAddress, ":");
    _lines += " address=" + dotted(settings.address);
    _lines += " destination=" + dotted(settings.destinationAddress);
    _lines += " destination-port=" + std::to_string(settings.destinationPort);
    _lines += " device-port=" + std::to_string(settings.devicePort);
    _lines += " unit-id=" + hexOf(settings.unitID);
    _lines += " destination-hardware=" + hexOf(settings.destinationHardwareAddress, ":");
    _lines += " clock=" + (unit.clock().empty() ? "-" : unit.clock()) + '\n';
}

void CommandRecord::flush() {
    std::string_view rest = _lines;
    while (!rest.empty()) {
        const ssize_t written = ::write(_descriptor, rest.data(), rest.size());
        if (written >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "write the record");
        }
    }
    _lines.clear();
}

} // namespace kx::simulator
