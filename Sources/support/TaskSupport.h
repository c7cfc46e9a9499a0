// Runs another program for its exit status and its output.
//
// Every operation blocks its thread until the tool has exited, and leaves neither a child nor a
// descriptor behind. A tool that never exits blocks for ever, except where there is a limit. A
// stream for which the tool has no pipe is shared with this process.
//
// `path` is the tool's full path. `input`, when it is given, is all that the tool can read. It
// waits in a pipe when the tool is launched, so it must fit into the pipe: 65,536 bytes, unless the
// system was set up otherwise. A tool may leave it unread. Texts are UTF-8.
//
// The result is the tool's exit status, or the number of the signal that ended it.
//
// Failures: PlatformException when the tool cannot be launched (see ChildProcess.h), when the input
// does not fit, and when the system gives no pipe. No tool has run then.
//
// Threading: any thread. doPipedTaskArgumentsOutput() belongs to the thread of its run loop.

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
    // The number of bytes of a short output that are kept.
    static constexpr std::size_t longestShortOutput = 65536;

    // How long a piped task may take before it is terminated.
    static constexpr std::chrono::seconds longestPipedTask{10};

    TaskSupport() = delete;

    // For tools with little output. `shortOutput`, unless null, receives the tool's standard
    // output, at most the first longestShortOutput bytes; absent when they are not UTF-8. It does
    // not change when the tool has written nothing.
    //
    // Returns when the tool itself has exited. It does not wait for programs that the tool leaves
    // running, or for their output. With a limit, a tool that runs for longer is ended at once
    // (SIGKILL), which the status then tells.
    static std::int32_t doShortTaskArgumentsInputShortOutput(
        const std::string& path, const std::vector<std::string>& arguments,
        const std::optional<std::string>& input, std::optional<std::string>* shortOutput,
        std::optional<std::chrono::milliseconds> limit = {});

    // Runs the loop while the tool runs. `output`, when it is given, is a descriptor that receives
    // the tool's standard output and standard error; it stays the caller's.
    //
    // After longestPipedTask the tool is asked once to terminate. When it refuses, this waits until
    // it exits of its own accord.
    //
    // Never throws a PlatformException, not even one from the run loop's callbacks: it logs
    // "Exception during AppSupport +doTask: %@, reason: %@" with the path and the reason, and
    // returns -1.
    static std::int32_t doPipedTaskArgumentsOutput(const std::string& path,
                                                   const std::vector<std::string>& arguments,
                                                   std::optional<int> output, RunLoop& runLoop);

    // `output`, unless null, receives everything that was written to the tool's standard output, or
    // an empty text when nothing was written. It is decoded in chunks of up to 512 bytes
    // (readFileHandle()). A character that two chunks share is put together, and a chunk that is
    // not UTF-8 adds nothing.
    //
    // `error`, unless null, receives everything that was written to the tool's standard error;
    // absent when that is not UTF-8. It does not change when nothing was written.
    //
    // Both are read to their ends, so this also waits for a program that the tool leaves running
    // and that still holds one of them.
    static std::int32_t doTaskArgumentsInputOutputError(const std::string& path,
                                                        const std::vector<std::string>& arguments,
                                                        const std::optional<std::string>& input,
                                                        std::optional<std::string>* output,
                                                        std::optional<std::string>* error);
};

// The bytes of a read. They lie in memory of the default memory resource (std::pmr), which must
// outlive them.
using MutableData = std::pmr::vector<std::uint8_t>;

// Reads the bytes that have arrived at a descriptor, at most 512, and stores them in `data`, which
// must hold nothing yet. Waits for the first byte (unless the descriptor does not block), and after
// each read about 10 microseconds for more. Interruptions by signals do not end it.
//
// Returns the number of bytes. Returns -1, with `data` unchanged, at the end of the file, after an
// error (errno says which), without memory, and when `data` is null or holds something already. An
// end or an error behind the first byte is told by the next call.
std::int32_t readFileHandle(int descriptor, std::optional<MutableData>* data);

} // namespace kx
