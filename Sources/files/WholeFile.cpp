#include "files/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

namespace kx {

namespace {

// Closes its descriptor at the end.
class Descriptor {
public:
    explicit Descriptor(int descriptor)
        : _descriptor(descriptor) {}
    ~Descriptor() {
        if (_descriptor >= 0) {
            ::close(_descriptor);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return _descriptor; }

private:
    int _descriptor;
};

std::optional<Error> latestError() {
    return posixError(errno);
}

std::string folderOf(const std::string& path) {
    const auto folder = std::filesystem::path(path).parent_path();
    return folder.empty() ? "." : folder.string();
}

// The file that a symbolic link names; the path itself where there is none yet.
std::string withoutLinks(const std::string& path) {
    std::error_code failure;
    const auto found = std::filesystem::canonical(path, failure);
    return failure ? path : found.string();
}

struct NewFile {
    std::string path;
    int descriptor = -1; // -1 when it could not be made
};

NewFile makeFileIn(const std::string& folder) {
    constexpr int mostNames = 100; // of files that were left behind
    NewFile file;
    for (int i = 0; i < mostNames; ++i) {
        file.path = folder + "/.kxnew-" + std::to_string(::getpid()) + "-" + std::to_string(i);
        file.descriptor =
            ::open(file.path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        if (file.descriptor >= 0 || errno != EEXIST) {
            break;
        }
    }
    return file;
}

// Only root can give a file to somebody else; for others it stays their own.
void takeOverPermissions(const std::string& path, int descriptor) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) {
        [[maybe_unused]] const int given = ::fchown(descriptor, status.st_uid, status.st_gid);
        ::fchmod(descriptor, status.st_mode & 07777);
    }
}

std::optional<Error> writeAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(descriptor, text.data(), text.size());
        if (count >= 0) {
            text.remove_prefix(static_cast<std::size_t>(count));
        } else if (errno != EINTR) {
            return latestError();
        }
    }
    return ::fsync(descriptor) != 0 ? latestError() : std::nullopt;
}

} // namespace

std::variant<std::string, Error> contentsOfFile(const std::string& path, std::size_t mostBytes) {
    // Without O_NONBLOCK a pipe would wait for a writer.
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status {};
    if (file.get() < 0 || ::fstat(file.get(), &status) != 0) {
        return posixError(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return posixError(S_ISDIR(status.st_mode) ? EISDIR : ENOTSUP);
    }
    std::string contents;
    std::array<char, 65'536> buffer{};
    for (;;) {
        const ssize_t count = ::read(file.get(), buffer.data(), buffer.size());
        if (count == 0) {
            return contents;
        }
        if (count < 0 && errno != EINTR) {
            return posixError(errno);
        }
        contents.append(buffer.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (contents.size() > mostBytes) {
            return posixError(EFBIG);
        }
    }
}

std::optional<Error> objectionToReplacing(const std::string& path) {
    if (path.empty()) {
        return posixError(ENOENT);
    }
    const std::string target = withoutLinks(path);
    struct stat status {};
    if (::stat(target.c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode)) {
            return posixError(S_ISDIR(status.st_mode) ? EISDIR : ENOTSUP);
        }
        if (::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) {
            return latestError(); // somebody has protected it
        }
    } else if (errno != ENOENT) {
        return latestError();
    }
    return ::faccessat(AT_FDCWD, folderOf(target).c_str(), W_OK | X_OK, AT_EACCESS) != 0
               ? latestError()
               : std::nullopt;
}

std::optional<Error> replaceFile(const std::string& path, std::string_view text) {
    const std::string target = withoutLinks(path);
    const NewFile file = makeFileIn(folderOf(target));
    if (file.descriptor < 0) {
        return latestError();
    }
    const Descriptor closesItself(file.descriptor);
    takeOverPermissions(target, file.descriptor);
    auto error = writeAll(file.descriptor, text);
    if (!error.has_value() && ::rename(file.path.c_str(), target.c_str()) != 0) {
        error = latestError();
    }
    if (error.has_value()) {
        ::unlink(file.path.c_str());
    }
    return error;
}

} // namespace kx
