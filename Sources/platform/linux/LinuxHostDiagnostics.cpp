#include "platform/linux/LinuxHostDiagnostics.h"

#include "support/Pipe.h"

#include <arpa/inet.h>
#include <linux/rtnetlink.h>
#include <pwd.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace kx {

namespace {

namespace fs = std::filesystem;

// The kernel answers within the call that asks.
constexpr timeval patienceForARoute{.tv_sec = 0, .tv_usec = 200'000};

std::string textOfFile(const fs::path& path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string firstLineOf(const fs::path& path) {
    std::ifstream file(path);
    std::string line;
    std::getline(file, line);
    return line;
}

template<class Number>
std::optional<Number> numberIn(std::string_view text, int base = 10) {
    Number number{};
    const auto* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, base);
    return read.ec == std::errc() && read.ptr == end ? std::optional(number) : std::nullopt;
}

std::vector<std::string> wordsOf(const std::string& line) {
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), {}};
}

// --- Routes ---

struct RouteRequest {
    nlmsghdr header{};
    rtmsg message{};
    rtattr attribute{};
    std::uint32_t destination = 0;
};

RouteRequest requestForRoute(std::uint32_t address) {
    RouteRequest request;
    request.header.nlmsg_len = sizeof request;
    request.header.nlmsg_type = RTM_GETROUTE;
    request.header.nlmsg_flags = NLM_F_REQUEST;
    request.message.rtm_family = AF_INET;
    request.message.rtm_dst_len = 32;
    request.attribute.rta_type = RTA_DST;
    request.attribute.rta_len = RTA_LENGTH(sizeof request.destination);
    request.destination = htonl(address);
    return request;
}

HostRoute routeIn(const nlmsghdr& header) {
    rtmsg message{};
    std::memcpy(&message, NLMSG_DATA(&header), sizeof message);
    HostRoute route;
    route.exists = message.rtm_type == RTN_UNICAST || message.rtm_type == RTN_LOCAL ||
                   message.rtm_type == RTN_BROADCAST;
    const auto* attribute = reinterpret_cast<const rtattr*>(reinterpret_cast<const char*>(&header) +
                                                            NLMSG_SPACE(sizeof message));
    auto length = static_cast<int>(header.nlmsg_len - NLMSG_SPACE(sizeof message));
    for (; RTA_OK(attribute, length); attribute = RTA_NEXT(attribute, length)) {
        std::uint32_t value = 0;
        if (RTA_PAYLOAD(attribute) != sizeof value) {
            continue;
        }
        std::memcpy(&value, RTA_DATA(attribute), sizeof value);
        if (attribute->rta_type == RTA_OIF) {
            route.link = value;
        } else if (attribute->rta_type == RTA_GATEWAY) {
            route.gateway = ntohl(value);
        }
    }
    return route;
}

// Errors that mean that no route leads there, or that one forbids it.
bool isMissingRoute(int error) {
    return error == ENETUNREACH || error == EHOSTUNREACH || error == EACCES || error == EINVAL;
}

// --- Processes ---

std::string userName(std::uint32_t user) {
    std::array<char, 4096> buffer{};
    passwd entry{};
    passwd* found = nullptr;
    const int result = ::getpwuid_r(user, &entry, buffer.data(), buffer.size(), &found);
    return result == 0 && found != nullptr ? entry.pw_name : std::to_string(user);
}

// Calls `look` with each process until it returns true.
template<class Look>
void eachProcess(const fs::path& proc, const Look& look) {
    std::error_code error;
    for (fs::directory_iterator entry(proc, error), end; !error && entry != end;
         entry.increment(error)) {
        const auto process = numberIn<std::int64_t>(entry->path().filename().string());
        if (process.has_value() && look(entry->path(), *process)) {
            return;
        }
    }
}

bool holdsSocket(const fs::path& process, std::uint64_t inode) {
    const std::string wanted = "socket:[" + std::to_string(inode) + "]";
    std::error_code error;
    for (fs::directory_iterator entry(process / "fd", error), end; !error && entry != end;
         entry.increment(error)) {
        std::error_code unreadable; // it may have been closed meanwhile
        if (fs::read_symlink(entry->path(), unreadable) == wanted) {
            return true;
        }
    }
    return false;
}

} // namespace

std::optional<std::uint64_t> counterIn(std::string_view text, std::string_view group,
                                       std::string_view name) {
    std::istringstream stream{std::string(text)};
    std::vector<std::string> heads;
    for (std::string line; std::getline(stream, line);) {
        auto words = wordsOf(line);
        if (words.empty() || words.front() != std::string(group) + ":") {
            continue;
        }
        if (heads.empty()) {
            heads = std::move(words);
            continue;
        }
        const auto place = static_cast<std::size_t>(std::ranges::find(heads, name) - heads.begin());
        return place < words.size() ? numberIn<std::uint64_t>(words[place]) : std::nullopt;
    }
    return std::nullopt;
}

// Columns: number, local address and port, remote ones, state, queues, timer, retransmissions,
// user, time-out, inode.
std::optional<BoundSocket> socketOnPort(std::string_view text, std::uint16_t port) {
    constexpr std::size_t local = 1;
    constexpr std::size_t user = 7;
    constexpr std::size_t inode = 9;
    std::istringstream stream{std::string(text)};
    for (std::string line; std::getline(stream, line);) {
        const auto words = wordsOf(line);
        if (words.size() <= inode) {
            continue;
        }
        const std::size_t colon = words[local].rfind(':');
        const auto bound = colon != std::string::npos
                               ? numberIn<std::uint16_t>(words[local].substr(colon + 1), 16)
                               : std::nullopt;
        if (bound == port) {
            return BoundSocket{.user = numberIn<std::uint32_t>(words[user]).value_or(0),
                               .inode = numberIn<std::uint64_t>(words[inode]).value_or(0)};
        }
    }
    return std::nullopt;
}

LinuxHostDiagnostics::LinuxHostDiagnostics(fs::path proc, fs::path etc)
    : _proc(std::move(proc))
    , _etc(std::move(etc)) {}

std::optional<HostRoute> LinuxHostDiagnostics::route(std::uint32_t address) {
    const FileDescriptor socket(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_ROUTE));
    const RouteRequest request = requestForRoute(address);
    alignas(nlmsghdr) std::array<char, 4096> buffer{};
    if (socket.number() < 0 ||
        ::setsockopt(socket.number(), SOL_SOCKET, SO_RCVTIMEO, &patienceForARoute,
                     sizeof patienceForARoute) != 0 ||
        ::send(socket.number(), &request, sizeof request, 0) != ssize_t{sizeof request}) {
        return std::nullopt;
    }
    const ssize_t received = ::recv(socket.number(), buffer.data(), buffer.size(), 0);
    const auto* const header = reinterpret_cast<const nlmsghdr*>(buffer.data());
    const bool isWhole = received >= 0 && NLMSG_OK(header, static_cast<std::size_t>(received));
    if (!isWhole) {
        return std::nullopt;
    }
    if (header->nlmsg_type == RTM_NEWROUTE && header->nlmsg_len >= NLMSG_SPACE(sizeof(rtmsg))) {
        return routeIn(*header);
    }
    if (header->nlmsg_type == NLMSG_ERROR) {
        nlmsgerr error{};
        std::memcpy(&error, NLMSG_DATA(header), sizeof error.error);
        return isMissingRoute(-error.error) ? std::optional(HostRoute()) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<HostCounters> LinuxHostDiagnostics::counters() {
    const std::string snmp = textOfFile(_proc / "net/snmp");
    const std::string netstat = textOfFile(_proc / "net/netstat");
    const auto received = counterIn(snmp, "Ip", "InReceives");
    const auto delivered = counterIn(snmp, "Ip", "InDelivers");
    const auto withoutListener = counterIn(snmp, "Udp", "NoPorts");
    const auto wrongPath = counterIn(netstat, "TcpExt", "IPReversePathFilter");
    if (!received.has_value() || !delivered.has_value()) {
        return std::nullopt;
    }
    return HostCounters{.received = *received,
                        .delivered = *delivered,
                        .wrongReversePath = wrongPath.value_or(0),
                        .withoutListener = withoutListener.value_or(0)};
}

// The stricter of the setting for all interfaces and of that for this one is in force; of 1 and 2
// the kernel takes 2.
std::optional<int> LinuxHostDiagnostics::reversePathFilter(const std::string& interface) {
    std::optional<int> inForce;
    for (const std::string& name : {std::string("all"), interface}) {
        const auto value =
            numberIn<int>(firstLineOf(_proc / "sys/net/ipv4/conf" / name / "rp_filter"));
        if (value.has_value()) {
            inForce = std::max(inForce.value_or(0), *value);
        }
    }
    return inForce;
}

std::optional<PortOwner> LinuxHostDiagnostics::ownerOfPort(std::uint16_t port) {
    auto bound = socketOnPort(textOfFile(_proc / "net/udp"), port);
    if (!bound.has_value()) {
        bound = socketOnPort(textOfFile(_proc / "net/udp6"), port);
    }
    if (!bound.has_value()) {
        return std::nullopt;
    }
    PortOwner owner{.program = {}, .process = 0, .user = userName(bound->user)};
    eachProcess(_proc, [&owner, &bound](const fs::path& folder, std::int64_t process) {
        if (!holdsSocket(folder, bound->inode)) {
            return false;
        }
        owner.program = firstLineOf(folder / "comm");
        owner.process = process;
        return true;
    });
    return owner;
}

std::vector<FirewallService> LinuxHostDiagnostics::firewallServices() {
    std::vector<FirewallService> services;
    std::istringstream configuration(textOfFile(_etc / "ufw/ufw.conf"));
    for (std::string line; std::getline(configuration, line);) {
        if (line == "ENABLED=yes") {
            services.push_back(FirewallService::ufw);
            break;
        }
    }
    eachProcess(_proc, [&services](const fs::path& folder, std::int64_t /*process*/) {
        const bool isFirewall = firstLineOf(folder / "comm") == "firewalld";
        if (isFirewall) {
            services.push_back(FirewallService::firewalld);
        }
        return isFirewall;
    });
    return services;
}

} // namespace kx
