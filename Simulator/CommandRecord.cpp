#include "Simulator/CommandRecord.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace kx::simulator {

namespace {

std::string hexOf(ByteView bytes, std::string_view separator = "") {
    constexpr std::string_view digitCharacters = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (!text.empty()) {
            text += separator;
        }
        text += digitCharacters[byte >> 4];
        text += digitCharacters[byte & 0x0F];
    }
    return text;
}

std::string dotted(IPv4 address) {
    std::string text;
    for (unsigned shift = 32; shift != 0; shift -= 8) {
        if (!text.empty()) {
            text += '.';
        }
        text += std::to_string(address >> (shift - 8) & 0xFF);
    }
    return text;
}

// Who can make files in a folder.
struct FolderRights {
    bool isOpenToEverybody = true;
    uid_t owner = 0;

    // Whether a stranger can. Root is none.
    bool includeStrangers() const {
        return isOpenToEverybody || (owner != ::geteuid() && owner != 0);
    }
};

// A folder that cannot be asked counts as open to everybody.
FolderRights rightsOf(int folder) {
    struct stat status {};
    return ::fstat(folder, &status) != 0
               ? FolderRights()
               : FolderRights{.isOpenToEverybody = (status.st_mode & S_IWOTH) != 0,
                              .owner = status.st_uid};
}

// Whether what is written goes to nobody but this process's user, or the one whose folder it is.
bool isOfNobodyElse(int descriptor, const FolderRights& rights) {
    struct stat status {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_nlink == 1 &&
           (status.st_uid == ::geteuid() ||
            (!rights.isOpenToEverybody && status.st_uid == rights.owner));
}

// -1, with errno set, when there is no such file to write to. The program often runs as root. In a
// folder where a stranger may make files, they can lay a link under the record's name, so that root
// would write into a file of the stranger's choice. There neither a link nor a file of somebody
// else is taken. The folder is opened once, so that it cannot be exchanged meanwhile.
int openForAppending(const std::filesystem::path& path) {
    const auto folderPath = path.has_parent_path() ? path.parent_path() : ".";
    const int folder = ::open(folderPath.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) {
        return -1;
    }
    const FolderRights rights = rightsOf(folder);
    const bool mayBeForeign = rights.includeStrangers();
    const int flags =
        O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | (mayBeForeign ? O_NOFOLLOW | O_NONBLOCK : 0);
    int descriptor = ::openat(folder, path.filename().c_str(), flags, 0644);
    int error = errno;
    if (descriptor >= 0 && mayBeForeign && !isOfNobodyElse(descriptor, rights)) {
        ::close(std::exchange(descriptor, -1));
        error = EPERM;
    }
    ::close(folder);
    errno = error;
    return descriptor;
}

} // namespace

CommandRecord::CommandRecord(const std::string& path)
    : _descriptor(openForAppending(path)) {
    if (_descriptor < 0) {
        throw std::system_error(errno, std::generic_category(), path);
    }
}

CommandRecord::CommandRecord()
    : _descriptor(STDOUT_FILENO) {}

CommandRecord::~CommandRecord() {
    if (_descriptor != STDOUT_FILENO) {
        ::close(_descriptor);
    }
}

void CommandRecord::addCommand(const SimulatedUnit& unit, const Datagram& datagram) {
    _lines += hexOf(unit.settings().serial) + ' ' + dotted(datagram.destination.address) + ' ' +
              std::to_string(datagram.destination.port) + ' ' + hexOf(datagram.payload) + '\n';
}

void CommandRecord::addState(const SimulatedUnit& unit) {
    const UnitSettings& settings = unit.settings();
    _lines += "state " + hexOf(settings.serial);
    _lines += " hardware=" + hexOf(settings.hardwareAddress, ":");
    _lines += " address=" + dotted(settings.address);
    _lines += " destination=" + dotted(settings.destinationAddress);
    _lines += " destination-port=" + std::to_string(settings.destinationPort);
    _lines += " device-port=" + std::to_string(settings.devicePort);
    _lines += " unit-id=" + hexOf(settings.unitID);
    _lines += " destination-hardware=" + hexOf(settings.destinationHardwareAddress, ":");
    _lines += " clock=" + (unit.clock().empty() ? "-" : unit.clock()) + '\n';
}

void CommandRecord::flush() {
    std::string_view rest = _lines;
    while (!rest.empty()) {
        const ssize_t written = ::write(_descriptor, rest.data(), rest.size());
        if (written >= 0) {
            rest.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "write the record");
        }
    }
    _lines.clear();
}

} // namespace kx::simulator
