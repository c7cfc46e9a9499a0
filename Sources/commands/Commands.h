// The functions that run the commands, one in each file of this folder that ends in "Command.cpp".
//
// Main thread only. Each returns the exit status.

#pragma once

namespace kx {

class CommandRun;

int runInterfaces(CommandRun& run);
int runDiscover(CommandRun& run);
int runShow(CommandRun& run);
int runSet(CommandRun& run);
int runOption(CommandRun& run);
int runRestore(CommandRun& run);
int runWatch(CommandRun& run);
int runCheck(CommandRun& run);
int runDiagnose(CommandRun& run);
int runCompare(CommandRun& run);
int runPlan(CommandRun& run);
int runApply(CommandRun& run);
int runRevert(CommandRun& run);

} // namespace kx
