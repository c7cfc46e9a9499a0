#include "commands/OutputFile.h"

#include "files/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>

namespace kx {

namespace {

std::optional<Error> objectionToWriting(const std::string& path) {
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0
               ? std::optional(posixError(errno))
               : std::nullopt;
}

} // namespace

OutputFile::~OutputFile() {
    if (_descriptor >= 0) {
        ::close(_descriptor);
    }
}

std::optional<Error> OutputFile::look() {
    struct stat status {};
    if (::stat(_path.c_str(), &status) != 0) {
        if (errno != ENOENT || _path.empty()) {
            return posixError(errno);
        }
        const auto folder = std::filesystem::path(_path).parent_path();
        return objectionToWriting(folder.empty() ? "." : folder.string());
    }
    if (S_ISDIR(status.st_mode)) {
        return posixError(EISDIR);
    }
    // A pipe that is opened twice ends for its reader in between.
    return S_ISREG(status.st_mode) ? objectionToWriting(_path) : open();
}

std::optional<Error> OutputFile::lookForReplacement() {
    return isReplaceable() ? objectionToReplacing(_path) : look();
}

std::optional<Error> OutputFile::replaceBy(std::string_view text) {
    if (!isReplaceable()) {
        return write(text);
    }
    _error = replaceFile(_path, text);
    return _error;
}

bool OutputFile::isFilled() const {
    struct stat status {};
    return ::stat(_path.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0;
}

// A folder is told by look(), as is a path through something that is none.
bool OutputFile::isReplaceable() const {
    struct stat status {};
    return ::stat(_path.c_str(), &status) == 0 ? S_ISREG(status.st_mode) : errno == ENOENT;
}

std::optional<Error> OutputFile::open() {
    if (_descriptor >= 0) {
        return std::nullopt;
    }
    // Without O_NONBLOCK a pipe would wait for a reader. Writing waits for it.
    _descriptor = ::open(_path.c_str(),
                         O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
    if (_descriptor < 0 || ::fcntl(_descriptor, F_SETFL, O_WRONLY) != 0) {
        return posixError(errno);
    }
    return std::nullopt;
}

std::optional<Error> OutputFile::write(std::string_view text) {
    if (!_error.has_value()) {
        _error = open();
    }
    while (!_error.has_value() && !text.empty()) {
        const ssize_t count = ::write(_descriptor, text.data(), text.size());
        if (count >= 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            _error = posixError(errno);
        }
    }
    return _error;
}

} // namespace kx
