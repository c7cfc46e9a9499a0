// Files as a whole: read at once, and replaced at once.
//
// Any thread. Reading and writing take their time; nothing waits for another program. Failures are
// returned as the system's errors.

#pragma once

#include "support/Error.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace kx {

// The contents of a regular file of at most `mostBytes`. EFBIG for a longer one, EISDIR for a
// folder, and ENOTSUP for a pipe or a device, which may have no end.
std::variant<std::string, Error> contentsOfFile(const std::string& path, std::size_t mostBytes);

// Why replaceFile() could not work, as far as that can be told without changing anything; absent
// without a reason.
std::optional<Error> objectionToReplacing(const std::string& path);

// Writes the text to a new file in the same folder and gives it the name `path` when all of it is
// on the disk. So the name stands for the old contents or for the new ones, whatever happens in
// between; after a failure it stands for the old ones. A symbolic link stays, and the file that it
// names is replaced. The permissions of an existing file stay. When this process is killed while it
// writes, nothing is left where the file system has files without a name (open(2), O_TMPFILE).
// Absent when it was done.
std::optional<Error> replaceFile(const std::string& path, std::string_view text);

} // namespace kx
