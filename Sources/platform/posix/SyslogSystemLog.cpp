#include "platform/posix/SyslogSystemLog.h"

#include <syslog.h>

#include <utility>

namespace kx {

SyslogSystemLog::SyslogSystemLog(std::string programName)
    : _programName(std::move(programName)) {
    ::openlog(_programName.c_str(), LOG_PID | LOG_PERROR, LOG_USER);
}

SyslogSystemLog::~SyslogSystemLog() {
    ::closelog();
}

// The line goes in as an argument, never as the format: it can hold bytes of foreign datagrams.
void SyslogSystemLog::write(std::string_view line) {
    ::syslog(LOG_NOTICE, "%s", escapedLine(line).c_str());
}

} // namespace kx
