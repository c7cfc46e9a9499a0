// The host's system log. Lines go to the socket of its daemon, and a copy goes to standard error
// for a person who started the program from a terminal.
//
// syslog(3) is not used, because it waits for a daemon that has stopped reading. This log loses a
// line for which the daemon has no room. Standard error gets as much of a line as the system has
// room for. Only a terminal that has stopped reading may claim to have room and then hold a long
// line up. The log may be missing, end or come back: each line tries it again.

#pragma once

#include "support/Pipe.h"
#include "support/SystemLog.h"

#include <string>
#include <string_view>

namespace kx {

class SyslogSystemLog final : public SystemLog {
public:
    // The lines that standard error gets too.
    enum class Copies {
        all,
        last, // only the last one, because standard error belongs to what a command has to say
    };

    // Each line begins with `programName` and the number of the process: "kxconfig[123]: LINE".
    // `socketPath` names a datagram socket.
    explicit SyslogSystemLog(std::string programName, std::string socketPath = "/dev/log",
                             Copies copies = Copies::all);

    void write(std::string_view line) override;
    void writeLast(std::string_view line) override;

private:
    std::string textOf(std::string_view line) const;
    void send(std::string_view text);

    std::string _programName;
    std::string _socketPath;
    Copies _copies;
    FileDescriptor _socket; // holds no descriptor when the system gave none
};

} // namespace kx
