// A standard error stream of the test's own.

#pragma once

#include <unistd.h>

#include <cstdio>
#include <stdexcept>
#include <string>

namespace kx {

// While this object lives, standard error is this descriptor. The caller keeps the descriptor.
class ReplacedStandardError {
public:
    explicit ReplacedStandardError(int descriptor)
        : _before(::dup(STDERR_FILENO)) {
        if (_before < 0 || ::dup2(descriptor, STDERR_FILENO) < 0) {
            throw std::runtime_error("standard error cannot be replaced");
        }
    }
    ~ReplacedStandardError() {
        ::dup2(_before, STDERR_FILENO);
        ::close(_before);
    }
    ReplacedStandardError(const ReplacedStandardError&) = delete;
    ReplacedStandardError& operator=(const ReplacedStandardError&) = delete;

private:
    int _before;
};

// While this object lives, standard error goes into a file.
class CapturedStandardError {
public:
    CapturedStandardError() = default;
    ~CapturedStandardError() { std::fclose(_file); }
    CapturedStandardError(const CapturedStandardError&) = delete;
    CapturedStandardError& operator=(const CapturedStandardError&) = delete;

    std::string text() {
        std::string result;
        std::rewind(_file);
        for (int character = std::fgetc(_file); character != EOF; character = std::fgetc(_file)) {
            result += static_cast<char>(character);
        }
        return result;
    }

private:
    static std::FILE* temporaryFile() {
        std::FILE* const file = std::tmpfile();
        return file != nullptr ? file : throw std::runtime_error("there is no temporary file");
    }

    std::FILE* _file = temporaryFile();
    ReplacedStandardError _standardError{::fileno(_file)};
};

} // namespace kx
