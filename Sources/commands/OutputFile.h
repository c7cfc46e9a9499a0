// A file that a command writes, looked at before anything is sent and made when there is something
// to write.
//
// Main thread only.

#pragma once

#include "support/Error.h"

#include <optional>
#include <string>
#include <string_view>

namespace kx {

class OutputFile {
public:
    explicit OutputFile(std::string path)
        : _path(std::move(path)) {}
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    const std::string& path() const { return _path; }

    // Why the file cannot be written, as far as that can be told without changing a file; absent
    // without a reason. A pipe is opened, and nobody is waited for who reads it.
    std::optional<Error> look();

    // Writes to the end of what was written before. The first call makes the file, or empties it.
    // Absent when all was written. After a failure nothing more is written.
    std::optional<Error> write(std::string_view text);

    // The same for replaceBy(), which also needs a folder that takes a new file.
    std::optional<Error> lookForReplacement();

    // The file holds this text and nothing else afterwards. A regular file, or one that is not
    // there yet, is written beside it and then gets its name (files/WholeFile.h); a pipe or a
    // device is written to. Absent when all was written.
    std::optional<Error> replaceBy(std::string_view text);

    // Whether there is a file with contents that replaceBy() would replace.
    bool isFilled() const;

    // Why writing failed; absent while it has not.
    const std::optional<Error>& error() const { return _error; }

private:
    std::optional<Error> open();
    bool isReplaceable() const;

    std::string _path;
    int _descriptor = -1;
    std::optional<Error> _error;
};

} // namespace kx
