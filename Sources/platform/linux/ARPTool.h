// The programs behind the one tool that runs with administrator rights, the ARP tool.
//
// Where rights are given by polkit, the ARP tool itself never gets them: it reads any file of the
// host for whoever chooses its arguments, and asks name servers. kxarp gets them instead, a small
// program of our own that checks its arguments and then becomes the ARP tool
// (PrivilegedTool/ARPRequest.h). An administrator has the rights already, so the ARP tool itself is
// run for them, with texts as they are but none that it would take for an option. In both cases
// kxarp takes entries out again (-d), because only kxarp looks first what the entry says.
//
// Any thread.

#pragma once

#include "addresses/ARPToolPath.h"

#include <optional>
#include <string>
#include <vector>

namespace kx {

// The place where kxarp is installed, which is the only place that the host's policy knows.
inline constexpr auto privilegedToolPath = "/usr/libexec/kxconfig/kxarp";

// kxarp for a process that is the administrator: beside the running program where that is a build
// folder, otherwise the installed one.
std::string privilegedToolOfAdministrator();

// Why kxarp would refuse these arguments, and why an administrator's run would be refused: an
// English sentence that is a key of the catalogues, or nothing.
std::optional<std::string> objectionOfPrivilegedTool(const std::vector<std::string>& arguments);
std::optional<std::string> objectionForAdministrator(const std::vector<std::string>& arguments);

} // namespace kx
