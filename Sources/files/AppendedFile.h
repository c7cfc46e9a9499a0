// A file that grows at its end, and whose contents are on the disk when that is said.
//
// One thread at a time. Writing takes its time; nothing waits for another program. Failures are
// returned as the system's errors.

#pragma once

#include "support/Error.h"
#include "support/Pipe.h"

#include <optional>
#include <string>
#include <string_view>

namespace kx {

class AppendedFile {
public:
    // Begins the file with this text, by replaceFile(): the name stands for the old contents or for
    // the new ones. The name is on the disk afterwards too. Absent when it was done.
    std::optional<Error> begin(const std::string& path, std::string_view text);

    // Adds the text, and returns when it is on the disk. After a failure a part of the text may be
    // there, and nothing is added any more: every further call returns the same error. EBADF when
    // the file was not begun.
    std::optional<Error> append(std::string_view text);

private:
    FileDescriptor _file; // none: every write fails with EBADF
    std::optional<Error> _failure;
};

} // namespace kx
