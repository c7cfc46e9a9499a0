// A file of the system with other contents, for this process and its children alone.
//
// The calling thread gets a view of the mounted file systems of its own and keeps it. Needs the
// rights that in_namespaces.sh gives.

#pragma once

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <string>

namespace kx {

class ReplacedFile {
public:
    // `mode` as for chmod(2).
    ReplacedFile(std::string path, const std::string& contents, mode_t mode)
        : _path(std::move(path)) {
        char copy[] = "/tmp/kx-replaced-XXXXXX";
        ::close(::mkstemp(copy));
        std::ofstream(copy) << contents;
        const bool isMounted = ::chmod(copy, mode) == 0 && ::unshare(CLONE_NEWNS) == 0 &&
                               ::mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0 &&
                               ::mount(copy, _path.c_str(), "none", MS_BIND, nullptr) == 0;
        const int errorNumber = errno;
        ::unlink(copy); // the mount keeps the file
        if (!isMounted) {
            throw std::runtime_error(_path + ": " + std::strerror(errorNumber));
        }
    }
    ~ReplacedFile() { ::umount2(_path.c_str(), MNT_DETACH); }
    ReplacedFile(const ReplacedFile&) = delete;
    ReplacedFile& operator=(const ReplacedFile&) = delete;

private:
    std::string _path;
};

} // namespace kx
