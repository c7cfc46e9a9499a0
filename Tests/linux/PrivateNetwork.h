// A network of the test's own: a new network namespace for the thread that makes it.
//
// It begins with only the loopback link, which is up. Sockets and programs that are made later
// belong to it. It goes away with the last of them. Links are made with ip(8), as an administrator
// makes them.

#pragma once

#include "support/Pipe.h"

#include <fcntl.h>
#include <sched.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace kx {

// Waits for facts that the kernel tells late, such as the loss of a carrier. False when the
// condition never holds.
inline bool eventually(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition() && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return condition();
}

class PrivateNetwork {
public:
    PrivateNetwork() {
        if (::unshare(CLONE_NEWNET) != 0) {
            throw std::runtime_error(std::string("no private network: ") + std::strerror(errno));
        }
        _network = FileDescriptor(::open("/proc/thread-self/ns/net", O_RDONLY | O_CLOEXEC));
        ip("link set lo up");
    }

    // Makes the calling thread part of this network again, after another network was made.
    void enter() {
        if (::setns(_network.number(), CLONE_NEWNET) != 0) {
            throw std::runtime_error(std::string("no way back: ") + std::strerror(errno));
        }
    }

    // Runs ip(8) with these words.
    void ip(const std::string& words) { run("ip " + words); }

    // Runs a program with its arguments, separated by blanks, and waits for its end.
    static void run(const std::string& words) {
        std::istringstream stream(words);
        std::vector<std::string> arguments;
        for (std::string word; stream >> word;) {
            arguments.push_back(word);
        }
        std::vector<char*> pointers;
        pointers.reserve(arguments.size() + 1);
        for (auto& argument : arguments) {
            pointers.push_back(argument.data());
        }
        pointers.push_back(nullptr);
        pid_t child = 0;
        int status = 0;
        if (::posix_spawnp(&child, pointers[0], nullptr, nullptr, pointers.data(), environ) != 0 ||
            ::waitpid(child, &status, 0) != child || status != 0) {
            throw std::runtime_error("failed: " + words);
        }
    }

    // Runs many commands of ip(8) at once, one on each line.
    void batch(const std::string& commands) {
        char path[] = "/tmp/kx-ip-XXXXXX";
        const int descriptor = ::mkstemp(path);
        const auto length = static_cast<ssize_t>(commands.size());
        const bool isWritten = ::write(descriptor, commands.data(), commands.size()) == length;
        ::close(descriptor);
        if (isWritten) {
            ip(std::string("-batch ") + path);
        }
        ::unlink(path);
        if (!isWritten) {
            throw std::runtime_error("the commands cannot be written");
        }
    }

    // Adds a link with a hardware address. The link is up and has a carrier from a peer of its own.
    void addLink(const std::string& name, const std::string& hardwareAddress) {
        ip("link add " + name + " address " + hardwareAddress + " type veth peer name p-" + name);
        ip("link set p-" + name + " up");
        ip("link set " + name + " up");
    }
    void addAddress(const std::string& link, const std::string& address) {
        ip("address add " + address + " dev " + link);
    }

private:
    FileDescriptor _network;
};

} // namespace kx
