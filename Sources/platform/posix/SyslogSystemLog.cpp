#include "platform/posix/SyslogSystemLog.h"

#include <syslog.h>

#include <cstdio>
#include <utility>

namespace kx {

SyslogSystemLog::SyslogSystemLog(std::string programName)
    : _programName(std::move(programName)) {
    ::openlog(_programName.c_str(), LOG_PID, LOG_USER);
}

SyslogSystemLog::~SyslogSystemLog() {
    ::closelog();
}

// The line goes in as an argument, never as the format: it can hold bytes of foreign datagrams.
void SyslogSystemLog::write(std::string_view line) {
    const int length = static_cast<int>(line.size());
    ::syslog(LOG_NOTICE, "%.*s", length, line.data());
    std::fprintf(stderr, "%.*s\n", length, line.data());
}

} // namespace kx
