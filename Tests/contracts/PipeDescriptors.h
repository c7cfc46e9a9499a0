// Descriptors that a test makes readable at will: the reading ends of pipes.

#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <map>
#include <stdexcept>
#include <vector>

namespace kx {

class PipeDescriptors {
public:
    PipeDescriptors() = default;
    PipeDescriptors(const PipeDescriptors&) = delete;
    PipeDescriptors& operator=(const PipeDescriptors&) = delete;

    ~PipeDescriptors() {
        for (const auto& [readingEnd, writingEnd] : _writingEnds) {
            ::close(readingEnd);
            ::close(writingEnd);
        }
    }

    // A descriptor that cannot be read yet. It is open for as long as this object lives.
    int newDescriptor() {
        int ends[2];
        if (::pipe(ends) != 0 || ::fcntl(ends[0], F_SETFL, O_NONBLOCK) != 0) {
            throw std::runtime_error("no pipe");
        }
        _writingEnds[ends[0]] = ends[1];
        return ends[0];
    }

    // Numbers of no open descriptor: one that was open earlier, and one that never is. The next
    // call that opens a descriptor may get the first one again.
    static std::vector<int> closedDescriptors() {
        int ends[2];
        if (::pipe(ends) != 0) {
            throw std::runtime_error("no pipe");
        }
        ::close(ends[0]);
        ::close(ends[1]);
        return {ends[0], -1};
    }

    void setReadable(int descriptor, bool readable) {
        char byte = 0;
        while (::read(descriptor, &byte, 1) == 1) {
        }
        if (readable && ::write(_writingEnds.at(descriptor), &byte, 1) != 1) {
            throw std::runtime_error("the pipe takes no byte");
        }
    }

private:
    std::map<int, int> _writingEnds; // key: the reading end
};

} // namespace kx
