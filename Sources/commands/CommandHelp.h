// The help of kxctl, its manual page and the completions of shells, made of the table of commands.
//
// Pure; any thread. Texts are English.

#pragma once

#include "commands/CommandTable.h"

#include <string>
#include <string_view>

namespace kx {

// "kxctl 1.0" and a line break.
std::string versionText();

std::string helpOfProgram();
std::string helpOfCommand(const CommandRow& row);

// The page kxctl(1), for troff. `day` is the day of the release, "2030-01-31".
std::string manualPage(std::string_view day);

std::string bashCompletion();
std::string zshCompletion();
std::string fishCompletion();

} // namespace kx
