#include "platform/posix/SyslogSystemLog.h"

#include "System Configuration/SystemCallWrappers.h"
#include "platform/posix/SystemWallClock.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <ctime>
#include <utility>

namespace kx {

namespace {

FileDescriptor datagramSocket() {
    return FileDescriptor(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
}

// The head that the daemon expects before a line: the priority, and the local time with the month's
// English name.
std::string lineHead() {
    constexpr std::array<const char*, 12> months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const std::tm local = SystemWallClock().localTime();
    std::array<char, 32> time{};
    std::strftime(time.data(), time.size(), "%e %H:%M:%S ", &local);
    std::string head = "<";
    head += std::to_string(LOG_USER | LOG_NOTICE);
    head += '>';
    head += months.at(static_cast<std::size_t>(local.tm_mon));
    head += ' ';
    head += time.data();
    return head;
}

// Writes as much as standard error takes at once. A pipe that can be written to has room for
// PIPE_BUF bytes. A pipe without a reader would end the process.
void copyToStandardError(std::string_view text) {
    pollfd polled{STDERR_FILENO, POLLOUT, 0};
    while (!text.empty() && ::poll(&polled, 1, 0) > 0 && polled.revents == POLLOUT) {
        const ssize_t count =
            Write(STDERR_FILENO, text.data(), std::min<std::size_t>(text.size(), PIPE_BUF));
        if (count <= 0) {
            return;
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
}

} // namespace

SyslogSystemLog::SyslogSystemLog(std::string programName, std::string socketPath, Copies copies)
    : _programName(std::move(programName))
    , _socketPath(std::move(socketPath))
    , _copies(copies)
    , _socket(datagramSocket()) {}

std::string SyslogSystemLog::textOf(std::string_view line) const {
    return _programName + "[" + std::to_string(::getpid()) + "]: " + escapedLine(line);
}

void SyslogSystemLog::write(std::string_view line) {
    const std::string text = textOf(line);
    send(lineHead() + text);
    if (_copies == Copies::all) {
        copyToStandardError(text + "\n");
    }
}

void SyslogSystemLog::writeLast(std::string_view line) {
    const std::string text = textOf(line);
    send(lineHead() + text);
    copyToStandardError(text + "\n");
}

void SyslogSystemLog::send(std::string_view text) {
    if (_socket.number() < 0) {
        _socket = datagramSocket();
    }
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    _socketPath.copy(std::data(address.sun_path), sizeof address.sun_path - 1);
    // The address is given each time, so that a restarted daemon is found.
    ::sendto(_socket.number(), text.data(), text.size(), MSG_DONTWAIT | MSG_NOSIGNAL,
             reinterpret_cast<const sockaddr*>(&address), sizeof address);
}

} // namespace kx
