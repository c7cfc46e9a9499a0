// Edits of many units by hand, to compare kxctl apply with: the same datagrams, eight units at a
// time, and nothing that gets lost is sent again.
//
//   kxbareedits BROADCAST-ADDRESS COUNT LETTER
//
// One broadcast finds the units. Each gets a unit ID that begins with the letter, a destination
// port and a destination hardware address; after each acknowledgement it is asked for its
// parameters, and the next command follows the answer. Ends with 0 when all units have answered the
// last time, otherwise with 1 after two seconds of silence.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::uint16_t port = 3520;
constexpr int receiveBuffer = 4 * 1024 * 1024;
constexpr timeval longestSilence{.tv_sec = 2, .tv_usec = 0};
constexpr std::string_view request = "^^IdX";
constexpr std::size_t unitsAtOnce = 8;
constexpr std::size_t commandsOfUnit = 3;
constexpr std::size_t lengthOfHeader = 21;

struct Unit {
    sockaddr_in address{};
    unsigned number = 0;
    std::size_t acknowledged = 0;
    std::size_t answered = 0;
};

[[noreturn]] void fail(const char* what) {
    std::perror(what);
    std::exit(EXIT_FAILURE);
}

sockaddr_in endpoint(in_addr address, std::uint16_t itsPort) {
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(itsPort);
    result.sin_addr = address;
    return result;
}

int openSocket() {
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    const int on = 1;
    ::setsockopt(descriptor, SOL_SOCKET, SO_BROADCAST, &on, sizeof on);
    ::setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &longestSilence, sizeof longestSilence);
    if (::setsockopt(descriptor, SOL_SOCKET, SO_RCVBUFFORCE, &receiveBuffer,
                     sizeof receiveBuffer) != 0) {
        ::setsockopt(descriptor, SOL_SOCKET, SO_RCVBUF, &receiveBuffer, sizeof receiveBuffer);
    }
    const sockaddr_in own = endpoint({htonl(INADDR_ANY)}, port);
    if (::bind(descriptor, reinterpret_cast<const sockaddr*>(&own), sizeof own) != 0) {
        fail("bind");
    }
    return descriptor;
}

std::string commandOf(const Unit& unit, std::size_t number, char letter) {
    std::array<char, 32> text{};
    switch (number) {
    case 0:
        std::snprintf(text.data(), text.size(), "^^IdU%02X%02X%02X%02X%02X%02X", letter,
                      '0' + unit.number / 10'000 % 10, '0' + unit.number / 1'000 % 10,
                      '0' + unit.number / 100 % 10, '0' + unit.number / 10 % 10,
                      '0' + unit.number % 10);
        break;
    case 1:
        std::snprintf(text.data(), text.size(), "^^IdT%04X", 3521 + letter % 3);
        break;
    default:
        std::snprintf(text.data(), text.size(), "^^IdC0200000000%02X", letter);
        break;
    }
    return text.data();
}

class Edits {
public:
    Edits(int descriptor, char letter)
        : _descriptor(descriptor)
        , _letter(letter) {}

    void send(std::string_view text, const sockaddr_in& address) const {
        if (::sendto(_descriptor, text.data(), text.size(), 0,
                     reinterpret_cast<const sockaddr*>(&address), sizeof address) < 0) {
            fail("sendto");
        }
    }

    // A list of parameters tells the port on which the unit takes commands; its own address is that
    // of the sender.
    void take(const sockaddr_in& sender, std::string_view reply) {
        const auto known = _units.find(sender.sin_addr.s_addr);
        if (reply.substr(lengthOfHeader - 1).starts_with("$ok")) {
            if (known != _units.end()) {
                ++known->second.acknowledged;
                send(request, known->second.address);
            }
        } else if (known == _units.end()) {
            add(sender, reply);
        } else if (known->second.acknowledged > known->second.answered) {
            ++known->second.answered;
            goOn(known->second);
        }
    }

    void begin() {
        for (auto& [address, unit] : _units) {
            _waiting.push_back(&unit);
        }
        for (std::size_t i = 0; i < unitsAtOnce; ++i) {
            beginNext();
        }
    }

    std::size_t found() const { return _units.size(); }
    std::size_t done() const { return _done; }

private:
    void add(const sockaddr_in& sender, std::string_view reply) {
        const std::size_t place = reply.find("<P>");
        if (place == std::string_view::npos || place + 5 > reply.size()) {
            return;
        }
        const auto high = static_cast<std::uint8_t>(reply[place + 3]);
        const auto low = static_cast<std::uint8_t>(reply[place + 4]);
        const auto itsPort = static_cast<std::uint16_t>(high << 8U | low);
        const auto number = static_cast<unsigned>(_units.size() + 1);
        _units[sender.sin_addr.s_addr] = {.address = endpoint(sender.sin_addr, itsPort),
                                          .number = number};
    }

    void goOn(const Unit& unit) {
        if (unit.answered < commandsOfUnit) {
            send(commandOf(unit, unit.answered, _letter), unit.address);
        } else {
            ++_done;
            beginNext();
        }
    }

    void beginNext() {
        if (_next < _waiting.size()) {
            goOn(*_waiting[_next++]);
        }
    }

    int _descriptor;
    char _letter;
    std::map<in_addr_t, Unit> _units;
    std::vector<Unit*> _waiting;
    std::size_t _next = 0;
    std::size_t _done = 0;
};

} // namespace

int main(int argc, char** argv) {
    in_addr broadcast{};
    if (argc != 4 || ::inet_pton(AF_INET, argv[1], &broadcast) != 1) {
        std::fputs("usage: kxbareedits BROADCAST-ADDRESS COUNT LETTER\n", stderr);
        return EXIT_FAILURE;
    }
    const auto wanted = std::strtoul(argv[2], nullptr, 10);
    const int descriptor = openSocket();
    Edits edits(descriptor, argv[3][0]);
    edits.send(request, endpoint(broadcast, port));
    bool hasBegun = false;
    std::array<char, 65'536> buffer{};
    while (edits.done() < wanted) {
        sockaddr_in sender{};
        socklen_t length = sizeof sender;
        const ssize_t size = ::recvfrom(descriptor, buffer.data(), buffer.size(), 0,
                                        reinterpret_cast<sockaddr*>(&sender), &length);
        if (size < 0) {
            fail("recvfrom");
        }
        if (static_cast<std::size_t>(size) > lengthOfHeader) {
            edits.take(sender, {buffer.data(), static_cast<std::size_t>(size)});
        }
        if (!hasBegun && edits.found() == wanted) {
            hasBegun = true;
            edits.begin();
        }
    }
    std::printf("%zu\n", edits.done());
    ::close(descriptor);
    return EXIT_SUCCESS;
}
