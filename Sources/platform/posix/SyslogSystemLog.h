// The system log as syslog(3), with a copy on standard error for whoever started the program from a
// terminal.
//
// syslog(3) is one for the process, so there is one object of this class at most.

#pragma once

#include "support/SystemLog.h"

#include <string>
#include <string_view>

namespace kx {

class SyslogSystemLog final : public SystemLog {
public:
    // `programName` and the process's number head each line: "kxconfig[123]: LINE".
    explicit SyslogSystemLog(std::string programName);
    ~SyslogSystemLog() override;
    SyslogSystemLog(const SyslogSystemLog&) = delete;
    SyslogSystemLog& operator=(const SyslogSystemLog&) = delete;

    void write(std::string_view line) override;

private:
    std::string _programName; // syslog(3) keeps a pointer to it
};

} // namespace kx
