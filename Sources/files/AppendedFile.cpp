#include "files/AppendedFile.h"

#include "files/WholeFile.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace kx {

namespace {

// The folder has the file's name.
std::optional<Error> syncFolderOf(const std::string& path) {
    std::error_code failure;
    const auto file = std::filesystem::canonical(path, failure);
    const FileDescriptor folder(
        ::open(file.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    const bool isDone = folder.number() >= 0 && ::fsync(folder.number()) == 0;
    return isDone ? std::nullopt : std::optional(posixError(errno));
}

} // namespace

std::optional<Error> AppendedFile::begin(const std::string& path, std::string_view text) {
    if (auto error = replaceFile(path, text)) {
        return error;
    }
    _file = FileDescriptor(::open(path.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC | O_NOCTTY));
    _failure = _file.number() < 0 ? posixError(errno) : syncFolderOf(path);
    return _failure;
}

std::optional<Error> AppendedFile::append(std::string_view text) {
    while (!_failure.has_value() && !text.empty()) {
        const ssize_t count = ::write(_file.number(), text.data(), text.size());
        if (count >= 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            _failure = posixError(errno);
        }
    }
    if (!_failure.has_value() && ::fdatasync(_file.number()) != 0) {
        _failure = posixError(errno);
    }
    return _failure;
}

} // namespace kx
