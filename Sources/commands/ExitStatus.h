// How a command ends: the codes that scripts rely on. They stay once they are released.
//
// Pure; any thread.

#pragma once

#include <string>
#include <string_view>
#include <utility>

namespace kx {

enum class ErrorCode {
    usage,
    value,
    file,
    interface,
    port,
    rights,
    socket,
    notFound,
    ambiguous,
    fewer,
    held,
    differs,
    unchanged,
    half,
    silent,
    interrupted,
    busy,
};

inline constexpr int exitDone = 0;
inline constexpr int exitNo = 1;        // asked properly, and the answer is no
inline constexpr int exitWrong = 2;     // a wrong command line, value or file; nothing was sent
inline constexpr int exitCannotAsk = 3; // interface, port, rights, socket
inline constexpr int exitMustBeLookedAt = 4; // a unit was left half configured or silent

// Added to the number of the signal that interrupted a command.
inline constexpr int exitInterrupted = 128;

// The name in documents, for example "not-found".
std::string_view nameOf(ErrorCode code);

// The exit status of an error of this kind, where the command has no other reason for one.
int exitStatusOf(ErrorCode code);

// Why a command has not done as asked.
struct Failure {
    ErrorCode code = ErrorCode::usage;
    std::string message; // a sentence for a person
    int exitStatus = exitWrong;
};

inline Failure failureOf(ErrorCode code, std::string message) {
    return {code, std::move(message), exitStatusOf(code)};
}

} // namespace kx
