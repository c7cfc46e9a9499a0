// Owned descriptors, and pipes made of them.
//
// Every descriptor made here is closed when another program is launched, so that no child holds one
// by accident: a child gets only the descriptors that ChildProcess is told to give it. Move only;
// any thread, one at a time.

#pragma once

namespace kx {

// Owns one descriptor, or none. Closes it when it is destroyed or takes another.
class FileDescriptor {
public:
    FileDescriptor() = default; // holds no descriptor
    explicit FileDescriptor(int descriptor)
        : _descriptor(descriptor) {}
    ~FileDescriptor() { close(); }
    FileDescriptor(FileDescriptor&& other) noexcept;
    FileDescriptor& operator=(FileDescriptor&& other) noexcept;
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    // The descriptor, which stays owned; -1 for none.
    int number() const { return _descriptor; }

    // Closes the descriptor before the object is destroyed. Has no effect when there is none.
    void close();

private:
    int _descriptor = -1;
};

// A pipe, open at both ends. Throws PlatformException with the system's text when the system
// refuses, for example because the process has too many open descriptors.
struct Pipe {
    Pipe();

    FileDescriptor readingEnd;
    FileDescriptor writingEnd;
};

} // namespace kx
