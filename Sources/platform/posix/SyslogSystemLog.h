// The host's system log, by the socket on which its daemon takes lines, with a copy on standard
// error for whoever started the program from a terminal.
//
// Not syslog(3), which waits for a daemon that has stopped reading. Here a line for which the log
// has no room is lost. Standard error gets as much of it as the system says that there is room for;
// only a terminal that has stopped reading may say so and then hold a long line up. A log that is
// not there, ends or comes back is tried again with each line.

#pragma once

#include "support/Pipe.h"
#include "support/SystemLog.h"

#include <string>
#include <string_view>

namespace kx {

class SyslogSystemLog final : public SystemLog {
public:
    // `programName` and the process's number head each line: "kxconfig[123]: LINE". `socketPath`
    // names a datagram socket.
    explicit SyslogSystemLog(std::string programName, std::string socketPath = "/dev/log");

    void write(std::string_view line) override;

private:
    void send(std::string_view text);

    std::string _programName;
    std::string _socketPath;
    FileDescriptor _socket; // none when the system gave none
};

} // namespace kx
