#include "support/Pipe.h"

#include "System Configuration/SystemCallWrappers.h"
#include "support/Error.h"
#include "support/PlatformException.h"
#include "support/TextFormat.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <utility>

namespace kx {

FileDescriptor::FileDescriptor(FileDescriptor&& other) noexcept
    : _descriptor(std::exchange(other._descriptor, -1)) {}

FileDescriptor& FileDescriptor::operator=(FileDescriptor&& other) noexcept {
    if (this != &other) {
        close();
        _descriptor = std::exchange(other._descriptor, -1);
    }
    return *this;
}

void FileDescriptor::close() {
    if (_descriptor >= 0) {
        Close(std::exchange(_descriptor, -1));
    }
}

Pipe::Pipe() {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw PlatformException(filledText("No pipe: %s", {posixErrorText(errno)}));
    }
    readingEnd = FileDescriptor(ends[0]);
    writingEnd = FileDescriptor(ends[1]);
}

} // namespace kx
