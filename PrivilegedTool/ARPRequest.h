// What the privileged tool does for its caller, and the check of the caller's words.
//
// The tool takes these two lists of words, and no other:
//
//   -s ADDRESS HARDWARE-ADDRESS   enters the address into the host's ARP cache for good
//   -d ADDRESS HARDWARE-ADDRESS   takes such an entry out, if it names this hardware address
//
// ADDRESS is four decimal numbers from 0 to 255, joined by dots and without leading zeros:
// "192.0.2.7". The ARP tool itself reads more: 010 as the number 8, and a name by asking a name
// server. HARDWARE-ADDRESS is six pairs of hexadecimal digits in either case, joined by colons, and
// names one host: it is not a group's address, and not zero.
//
// Pure: nothing is allocated, read or written. Any thread.

#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <variant>

namespace kxarp {

// The program that does the work. Nobody can name another one.
inline constexpr auto arpTool = "/usr/sbin/arp";

enum class Verb { enter, takeOut };

struct Request {
    Verb verb = Verb::enter;
    std::string_view address;         // a part of the caller's words
    std::string_view hardwareAddress; // the same
};

// Why the tool did nothing. The values are its exit statuses. They are none of the ARP tool's own.
enum class Failure {
    badWords = 64,
    badAddress = 65,
    badHardwareAddress = 66,
    noSuchEntry = 67, // the cache has no fixed entry for both addresses
    noTable = 68,     // the host's ARP cache cannot be read
    noTool = 69,      // the ARP tool cannot be run
};

// The request in the words behind the tool's own name, or the reason why there is none.
std::variant<Request, Failure> requestOf(std::span<const std::string_view> words);

// One English sentence about a failure. A program that shows it may translate it.
const char* sentenceOf(Failure failure);

// The interface in one line of the host's table of ARP entries (/proc/net/arp, without its head),
// when the line tells a fixed entry for both addresses of the request; otherwise absent. The result
// is a part of the line.
std::optional<std::string_view> interfaceOfEntry(std::string_view line, const Request& request);

} // namespace kxarp
