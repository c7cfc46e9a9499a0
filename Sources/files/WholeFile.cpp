#include "files/WholeFile.h"

#include "support/Pipe.h"

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

// A file that has no name yet, or a name that nobody else uses.
struct NewFile {
    std::string path;    // empty while it has no name
    int descriptor = -1; // -1 when it could not be made
};

// Calls `use` with one name after the other until it succeeds, or fails for another reason than
// that the name is taken. Returns the name; absent when it failed.
template<class Use>
std::optional<std::string> useFreeNameIn(const std::string& folder, const Use& use) {
    constexpr int mostNames = 100; // of files that were left behind
    for (int i = 0; i < mostNames; ++i) {
        std::string path =
            folder + "/.kxnew-" + std::to_string(::getpid()) + "-" + std::to_string(i);
        if (use(path)) {
            return path;
        }
        if (errno != EEXIST) {
            break;
        }
    }
    return std::nullopt;
}

// The way to an open file for a call that takes a path (proc(5)).
std::string pathOfOpenFile(int descriptor) {
    return "/proc/self/fd/" + std::to_string(descriptor);
}

// Of a file without a name nothing is left when this process is killed. Some file systems have
// none, and without /proc it could not get a name.
NewFile makeFileIn(const std::string& folder) {
    NewFile file;
    file.descriptor = ::open(folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0666);
    if (file.descriptor >= 0 && ::access(pathOfOpenFile(file.descriptor).c_str(), F_OK) == 0) {
        return file;
    }
    if (file.descriptor >= 0) {
        ::close(file.descriptor);
    }
    const auto path = useFreeNameIn(folder, [&file](const std::string& each) {
        file.descriptor =
            ::open(each.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
        return file.descriptor >= 0;
    });
    file.path = path.value_or("");
    return file;
}

bool giveName(const NewFile& file, const std::string& path) {
    return ::linkat(AT_FDCWD, pathOfOpenFile(file.descriptor).c_str(), AT_FDCWD, path.c_str(),
                    AT_SYMLINK_FOLLOW) == 0;
}

// Gives the file the name `target`. A file without a name cannot take the place of another one, so
// it gets a name for that moment.
std::optional<Error> putInPlace(NewFile& file, const std::string& target) {
    if (file.path.empty() && giveName(file, target)) {
        return std::nullopt;
    }
    if (file.path.empty() && errno == EEXIST) {
        const auto path = useFreeNameIn(
            folderOf(target), [&file](const std::string& each) { return giveName(file, each); });
        file.path = path.value_or("");
    }
    return file.path.empty() || ::rename(file.path.c_str(), target.c_str()) != 0 ? latestError()
                                                                                 : std::nullopt;
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
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    struct stat status {};
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0) {
        return posixError(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return posixError(S_ISDIR(status.st_mode) ? EISDIR : ENOTSUP);
    }
    std::string contents;
    std::array<char, 65'536> buffer{};
    for (;;) {
        const ssize_t count = ::read(file.number(), buffer.data(), buffer.size());
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
    NewFile file = makeFileIn(folderOf(target));
    if (file.descriptor < 0) {
        return latestError();
    }
    const FileDescriptor closesItself(file.descriptor);
    takeOverPermissions(target, file.descriptor);
    auto error = writeAll(file.descriptor, text);
    if (!error.has_value()) {
        error = putInPlace(file, target);
    }
    if (error.has_value() && !file.path.empty()) {
        ::unlink(file.path.c_str());
    }
    return error;
}

} // namespace kx
