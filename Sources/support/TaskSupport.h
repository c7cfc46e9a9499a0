// Running another program for its exit status and its output.
//
// Every operation blocks its thread until the tool has exited, and leaves neither a child nor a
// descriptor behind. A tool that never exits blocks for ever, but for the one operation with a
// limit. What a tool has no pipe for, it shares with this process.
//
// `path` is the tool's full path. `input`, when it is given, is all that the tool can read; it
// waits in a pipe when the tool is launched, so it must fit into one: as the system comes, 65,536
// bytes. A tool may leave it unread. Texts are UTF-8.
//
// The result is the tool's exit status, or the number of the signal that ended it.
//
// Failures: PlatformException when the tool cannot be launched (see ChildProcess.h), when the input
// does not fit, and when the system gives no pipe. Nothing has run then.
//
// Threading: any thread; doPipedTaskArgumentsOutput() that of its run loop.

#pragma once

#include "support/RunLoop.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <optional>
#include <string>
#include <vector>

namespace kx {

class TaskSupport {
public:
    // How much of a short output is kept.
    static constexpr std::size_t longestShortOutput = 65536;

    // How long a piped task may take before it is terminated.
    static constexpr std::chrono::seconds longestPipedTask{10};

    TaskSupport() = delete;

    // For tools with little output. `shortOutput`, unless null, receives what the tool has written
    // to its standard output, at most the first longestShortOutput bytes; absent when that is not
    // UTF-8. It is left as it was when the tool has written nothing.
    //
    // Returns when the tool itself has exited: what it leaves running, and what that writes later,
    // is not waited for.
    static std::int32_t doShortTaskArgumentsInputShortOutput(
        const std::string& path, const std::vector<std::string>& arguments,
        const std::optional<std::string>& input, std::optional<std::string>* shortOutput);

    // Runs the loop while the tool runs. `output`, when it is given, is a descriptor that receives
    // the tool's standard output and standard error; it stays the caller's.
    //
    // After longestPipedTask the tool is asked once to terminate. One that refuses is waited for
    // until it exits of its own accord.
    //
    // Never throws a PlatformException, not even one from the run loop's callbacks: it logs
    // "Exception during AppSupport +doTask: %@, reason: %@" with the path and the reason, and
    // returns -1.
    static std::int32_t doPipedTaskArgumentsOutput(const std::string& path,
                                                   const std::vector<std::string>& arguments,
                                                   std::optional<int> output, RunLoop& runLoop);

    // `output`, unless null, receives everything that was written to the tool's standard output, an
    // empty text for nothing. It is decoded in chunks of up to 512 bytes (readFileHandle()); a
    // character that two chunks share is put together, and a chunk that is not UTF-8 adds nothing.
    //
    // `error`, unless null, receives everything that was written to the tool's standard error;
    // absent when that is not UTF-8. It is left as it was when nothing was written.
    //
    // Both are read to their ends, so a program that the tool leaves running and that still holds
    // one of them is waited for too.
    static std::int32_t doTaskArgumentsInputOutputError(const std::string& path,
                                                        const std::vector<std::string>& arguments,
                                                        const std::optional<std::string>& input,
                                                        std::optional<std::string>* output,
                                                        std::optional<std::string>* error);
};

// Bytes that were read. They lie in memory of the default memory resource (std::pmr), which must
// outlive them.
using MutableData = std::pmr::vector<std::uint8_t>;

// Reads what has arrived at a descriptor, at most 512 bytes, and stores it in `data`, which must
// hold nothing yet. Waits for the first byte (unless the descriptor does not block), and after each
// read about 10 microseconds for more. Interruptions by signals do not end it.
//
// Returns the number of bytes, or -1, with `data` as it was: at the end of the file, after an error
// (errno says which), without memory, and when `data` is null or holds something already. An end or
// an error behind the first byte is left to the next call.
std::int32_t readFileHandle(int descriptor, std::optional<MutableData>* data);

} // namespace kx
