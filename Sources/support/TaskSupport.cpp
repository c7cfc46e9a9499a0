#include "support/TaskSupport.h"

#include "System Configuration/SystemCallWrappers.h"
#include "support/ChildProcess.h"
#include "support/Pipe.h"
#include "support/PlatformException.h"
#include "support/SystemLog.h"
#include "support/TextEncoding.h"
#include "support/TextFormat.h"

#include <fcntl.h>
#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <functional>
#include <new>
#include <string_view>
#include <utility>

namespace kx {

namespace {

using std::chrono::milliseconds;

constexpr int none = -1; // stands for no descriptor; poll(2) passes over it
constexpr std::size_t chunkLength = 512;
constexpr suseconds_t microsecondsForMore = 10;

// The time between two looks at a child while nothing else tells its end.
constexpr milliseconds timeBetweenLooks{10};

// The reading end of a pipe that holds this input and nothing more. The pipe is filled while its
// reading end is open here, so writing cannot break it.
FileDescriptor pipeHolding(const std::string& input) {
    Pipe pipe;
    const int writingEnd = pipe.writingEnd.number();
    ::fcntl(writingEnd, F_SETFL, O_NONBLOCK);
    std::string_view rest = input;
    while (!rest.empty()) {
        const ssize_t count = Write(writingEnd, rest.data(), rest.size());
        if (count <= 0) {
            throw PlatformException("The input of the task does not fit into a pipe");
        }
        rest.remove_prefix(static_cast<std::size_t>(count));
    }
    return std::move(pipe.readingEnd);
}

std::optional<FileDescriptor> inputEnd(const std::optional<std::string>& input) {
    return input.has_value() ? std::optional(pipeHolding(*input)) : std::nullopt;
}

std::optional<int> numberOf(const std::optional<FileDescriptor>& descriptor) {
    return descriptor.has_value() ? std::optional(descriptor->number()) : std::nullopt;
}

std::optional<Pipe> pipeIf(bool isWanted) {
    return isWanted ? std::optional<Pipe>(std::in_place) : std::nullopt;
}

std::optional<int> writingEndOf(const std::optional<Pipe>& pipe) {
    return pipe.has_value() ? std::optional(pipe->writingEnd.number()) : std::nullopt;
}

// The reading end, after the writing end was left to the child; `none` without a pipe.
int readingEndAlone(std::optional<Pipe>& pipe) {
    if (!pipe.has_value()) {
        return none;
    }
    pipe->writingEnd.close();
    return pipe->readingEnd.number();
}

bool isReadable(int descriptor, milliseconds wait) {
    pollfd polled{descriptor, POLLIN, 0};
    return ::poll(&polled, 1, static_cast<int>(wait.count())) > 0;
}

// Appends the bytes of one read. False at the end of the file.
bool readInto(Bytes& bytes, int descriptor) {
    std::array<std::uint8_t, 4096> buffer{};
    const ssize_t count = Read(descriptor, buffer.data(), buffer.size());
    if (count <= 0) {
        return false;
    }
    bytes.insert(bytes.end(), buffer.begin(), buffer.begin() + count);
    return true;
}

// The first bytes that the child writes, as many as fit into a pipe. The rest is read and
// discarded: a child that waits for room in the pipe would never exit.
Bytes shortOutputOf(ChildProcess& child, int descriptor, std::optional<milliseconds> limit) {
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    Bytes kept;
    const auto keepMore = [&] {
        const bool isOpen = readInto(kept, descriptor);
        kept.resize(std::min(kept.size(), TaskSupport::longestShortOutput));
        return isOpen;
    };
    int open = descriptor;
    while (!child.exitStatus().has_value()) {
        if (limit.has_value() && Clock::now() - begin >= *limit) {
            ::kill(child.processIdentifier(), SIGKILL);
        }
        if (isReadable(open, timeBetweenLooks) && !keepMore()) {
            open = none; // the tool runs on
        }
    }
    while (kept.size() < TaskSupport::longestShortOutput &&
           isReadable(descriptor, milliseconds(0)) && keepMore()) {
    }
    if (kept.size() == TaskSupport::longestShortOutput) {
        kept.resize(lengthOfWholeCharacters(kept)); // a character may have been cut
    }
    return kept;
}

// A text that arrives in chunks.
class ChunkedText {
public:
    void append(ByteView chunk) {
        _front.insert(_front.end(), chunk.begin(), chunk.end());
        const std::size_t whole = lengthOfWholeCharacters(_front);
        _text += textFromUTF8(subrange(_front, 0, whole)).value_or("");
        _front.erase(_front.begin(), _front.begin() + static_cast<std::ptrdiff_t>(whole));
    }

    const std::string& text() const { return _text; }

private:
    std::string _text;
    Bytes _front; // first bytes of a character whose rest has not arrived
};

// Appends one chunk. False at the end of the file.
bool readChunkInto(ChunkedText& text, int descriptor) {
    std::optional<MutableData> data;
    const bool isOpen = readFileHandle(descriptor, &data) >= 0;
    if (data.has_value()) {
        text.append(*data);
    }
    return isOpen;
}

// Reads each of two descriptors to its end, as data arrives, unless the system cannot wait for it.
void readToTheirEnds(int output, ChunkedText& outputText, int error, Bytes& errorBytes) {
    while (output != none || error != none) {
        std::array<pollfd, 2> polled{{{output, POLLIN, 0}, {error, POLLIN, 0}}};
        if (::poll(polled.data(), polled.size(), -1) < 0) {
            if (errno == EINTR) {
                continue;
            }
            return; // another try would fail again, for ever
        }
        if (polled[0].revents != 0 && !readChunkInto(outputText, output)) {
            output = none;
        }
        if (polled[1].revents != 0 && !readInto(errorBytes, error)) {
            error = none;
        }
    }
}

// Nothing wakes a run loop when a child ends, so the child is looked at from time to time.
int waitInRunLoop(ChildProcess& child, RunLoop& runLoop) {
    RunLoop::Handle nextLook;
    const std::function<void()> lookAgain = [&] {
        nextLook = runLoop.callOnceAfter(timeBetweenLooks, lookAgain);
    };
    lookAgain();
    runLoop.runUntil([&child] { return child.exitStatus().has_value(); });
    return child.waitUntilExit();
}

// Whether more arrives at once. select(2) takes only descriptors below FD_SETSIZE; for all others
// the answer is no.
bool hasMoreSoon(int descriptor) {
    if (descriptor >= FD_SETSIZE) {
        return false;
    }
    fd_set readable;
    FD_ZERO(&readable);
    FD_SET(descriptor, &readable);
    timeval timeout{.tv_sec = 0, .tv_usec = microsecondsForMore};
    return Select(descriptor + 1, &readable, nullptr, nullptr, &timeout) > 0;
}

} // namespace

std::int32_t TaskSupport::doShortTaskArgumentsInputShortOutput(
    const std::string& path, const std::vector<std::string>& arguments,
    const std::optional<std::string>& input, std::optional<std::string>* shortOutput,
    std::optional<milliseconds> limit) {
    Pipe output;
    auto standardInput = inputEnd(input);
    ChildProcess child(path, arguments,
                       {.standardInput = numberOf(standardInput),
                        .standardOutput = output.writingEnd.number(),
                        .standardError = {}});
    standardInput.reset();
    output.writingEnd.close();
    const Bytes kept = shortOutputOf(child, output.readingEnd.number(), limit);
    if (!kept.empty() && shortOutput != nullptr) {
        *shortOutput = textFromUTF8(kept);
    }
    return child.waitUntilExit();
}

std::int32_t TaskSupport::doPipedTaskArgumentsOutput(const std::string& path,
                                                     const std::vector<std::string>& arguments,
                                                     std::optional<int> output, RunLoop& runLoop) {
    try {
        ChildProcess child(
            path, arguments,
            {.standardInput = {}, .standardOutput = output, .standardError = output});
        const auto guard = runLoop.callOnceAfter(longestPipedTask, [&child] { child.terminate(); });
        return waitInRunLoop(child, runLoop);
    } catch (const PlatformException& exception) {
        logToSystem(filledText("Exception during AppSupport +doTask: %@, reason: %@",
                               {path, exception.reason()}));
        return -1;
    }
}

std::int32_t TaskSupport::doTaskArgumentsInputOutputError(const std::string& path,
                                                          const std::vector<std::string>& arguments,
                                                          const std::optional<std::string>& input,
                                                          std::optional<std::string>* output,
                                                          std::optional<std::string>* error) {
    auto standardInput = inputEnd(input);
    auto outputPipe = pipeIf(output != nullptr);
    auto errorPipe = pipeIf(error != nullptr);
    ChildProcess child(path, arguments,
                       {.standardInput = numberOf(standardInput),
                        .standardOutput = writingEndOf(outputPipe),
                        .standardError = writingEndOf(errorPipe)});
    standardInput.reset();
    ChunkedText outputText;
    Bytes errorBytes;
    readToTheirEnds(readingEndAlone(outputPipe), outputText, readingEndAlone(errorPipe),
                    errorBytes);
    if (output != nullptr) {
        *output = outputText.text();
    }
    const int status = child.waitUntilExit();
    if (!errorBytes.empty()) {
        *error = textFromUTF8(errorBytes);
    }
    return status;
}

std::int32_t readFileHandle(int descriptor, std::optional<MutableData>* data) {
    if (data == nullptr || data->has_value()) {
        return -1;
    }
    MutableData buffer;
    try {
        buffer.resize(chunkLength);
    } catch (const std::bad_alloc&) {
        return -1;
    }
    std::size_t total = 0;
    while (total < buffer.size()) {
        const ssize_t count = Read(descriptor, buffer.data() + total, buffer.size() - total);
        if (count <= 0) {
            break;
        }
        total += static_cast<std::size_t>(count);
        if (total < buffer.size() && !hasMoreSoon(descriptor)) {
            break;
        }
    }
    if (total == 0) {
        return -1;
    }
    buffer.resize(total);
    *data = std::move(buffer);
    return static_cast<std::int32_t>(total);
}

} // namespace kx
