#include "commands/ExitStatus.h"

#include <csignal>

namespace kx {

std::string_view nameOf(ErrorCode code) {
    switch (code) {
    case ErrorCode::usage:
        return "usage";
    case ErrorCode::value:
        return "value";
    case ErrorCode::file:
        return "file";
    case ErrorCode::interface:
        return "interface";
    case ErrorCode::port:
        return "port";
    case ErrorCode::rights:
        return "rights";
    case ErrorCode::socket:
        return "socket";
    case ErrorCode::notFound:
        return "not-found";
    case ErrorCode::ambiguous:
        return "ambiguous";
    case ErrorCode::fewer:
        return "fewer";
    case ErrorCode::held:
        return "held";
    case ErrorCode::differs:
        return "differs";
    case ErrorCode::unchanged:
        return "unchanged";
    case ErrorCode::half:
        return "half";
    case ErrorCode::silent:
        return "silent";
    case ErrorCode::interrupted:
        return "interrupted";
    case ErrorCode::busy:
        break;
    }
    return "busy";
}

int exitStatusOf(ErrorCode code) {
    switch (code) {
    case ErrorCode::usage:
    case ErrorCode::value:
    case ErrorCode::file:
        return exitWrong;
    case ErrorCode::interface:
    case ErrorCode::port:
    case ErrorCode::rights:
    case ErrorCode::socket:
    case ErrorCode::busy:
        return exitCannotAsk;
    case ErrorCode::half:
    case ErrorCode::silent:
        return exitMustBeLookedAt;
    case ErrorCode::interrupted:
        return exitInterrupted + SIGINT;
    default:
        return exitNo;
    }
}

} // namespace kx
