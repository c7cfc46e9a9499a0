// A malicious sender, for tests in the lab. It knows nothing of the application and nothing of the
// simulated units' code.
//
//   kxlab_hostile ADDRESS PORT SECONDS SERIAL SEED [KIND]
//
// It sends to UDP port PORT of ADDRESS for SECONDS seconds, as fast as the system takes the
// datagrams. Without a KIND it sends all of them mixed: random bytes; whole parameter replies with
// a random serial number; whole parameter replies, and acknowledgements, in the name of SERIAL (12
// hexadecimal digits); and a few long texts. With a KIND it sends only
//
//   cut        replies that end in the middle of a field
//   long       texts of 60,000 bytes, with line feeds and escape sequences in them
//   invented   whole parameter replies with a random serial number
//
// Every value in a reply is random except for the IP address. The IP address lies in 192.0.2.0/24,
// so that commands to it stay on the lab's link. Equal seeds give equal datagrams. It prints the
// number of datagrams that it sent, and ends with 1 when there were none.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <span>
#include <string_view>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using Serial = std::array<std::uint8_t, 6>;

constexpr std::size_t datagramsInBatch = 64;
constexpr std::size_t longestDatagram = 60'000;
constexpr std::size_t longestRandom = 200;

// A datagram while it is being made.
class Datagram {
public:
    explicit Datagram(std::mt19937_64& random)
        : _random(random) {}

    std::span<std::uint8_t> bytes() { return {_bytes.data(), _length}; }

    void beRandom() {
        _length = 0;
        addRandom(_random() % (longestRandom + 1));
        // Every second datagram passes the first check of the receiver.
        if (_length > 0 && _random() % 2 == 0) {
            _bytes[0] = '^';
        }
    }

    void beParameterReply(const Serial& serial) {
        beHeader(serial);
        add("<M>");
        addRandom(6);
        add("<I>");
        add(std::array<std::uint8_t, 3>{192, 0, 2});
        addRandom(1);
        add("<D>");
        addRandom(4);
        add("<T>");
        addRandom(2);
        add("<P>");
        addRandom(2);
        add("<U>");
        addRandom(6);
        add("<C>");
        addRandom(6);
        add("<S>");
        add(serial);
    }

    // Its text tries to forge a line of a log and to give orders to a terminal.
    void beLongText(const Serial& serial) {
        constexpr std::string_view forged =
            "\nUDP server did send data.\x1B[2J\x1B]0;title\a\xE2\x80\xAE";
        beHeader(serial);
        constexpr std::size_t unitIDOffset = 5;
        std::fill_n(_bytes.begin() + unitIDOffset, 6, std::uint8_t{0}); // a unit ID with a text
        while (_length + forged.size() <= longestDatagram) {
            add(forged);
        }
    }

    void beCut() {
        _length = 0;
        add("^^<U>");
        addRandom(1);
    }

    void beAcknowledgement(const Serial& serial) {
        beHeader(serial);
        add("ok\r");
    }

private:
    void beHeader(const Serial& serial) {
        _length = 0;
        add("^^<U>");
        addRandom(6);
        add("<S>");
        add(serial);
        add("$");
    }

    void add(std::string_view text) {
        _length = static_cast<std::size_t>(std::ranges::copy(text, end()).out - _bytes.begin());
    }

    void add(std::span<const std::uint8_t> bytes) {
        _length = static_cast<std::size_t>(std::ranges::copy(bytes, end()).out - _bytes.begin());
    }

    void addRandom(std::size_t count) {
        std::generate_n(end(), count, [this] { return static_cast<std::uint8_t>(_random()); });
        _length += count;
    }

    std::array<std::uint8_t, longestDatagram>::iterator end() {
        return _bytes.begin() + static_cast<std::ptrdiff_t>(_length);
    }

    std::mt19937_64& _random;
    std::array<std::uint8_t, longestDatagram> _bytes{};
    std::size_t _length = 0;
};

Serial randomSerial(std::mt19937_64& random) {
    Serial serial{};
    std::ranges::generate(serial, [&] { return static_cast<std::uint8_t>(random()); });
    return serial;
}

void invent(Datagram& datagram, std::string_view kind, const Serial& claimed,
            std::mt19937_64& random) {
    if (kind == "cut") {
        return datagram.beCut();
    }
    if (kind == "long" || (kind.empty() && random() % 16 == 0)) {
        return datagram.beLongText(claimed);
    }
    if (kind == "invented") {
        return datagram.beParameterReply(randomSerial(random));
    }
    switch (random() % 6) {
    case 0:
    case 1:
        return datagram.beRandom();
    case 2:
    case 3:
        return datagram.beParameterReply(randomSerial(random));
    case 4:
        return datagram.beParameterReply(claimed);
    default:
        return datagram.beAcknowledgement(claimed);
    }
}

[[noreturn]] void fail(const char* what) {
    std::perror(what);
    std::exit(EXIT_FAILURE);
}

int openSocket(const char* address, const char* port) {
    const int descriptor = ::socket(AF_INET, SOCK_DGRAM, 0);
    sockaddr_in destination{};
    destination.sin_family = AF_INET;
    destination.sin_port = htons(static_cast<std::uint16_t>(std::strtoul(port, nullptr, 10)));
    if (::inet_pton(AF_INET, address, &destination.sin_addr) != 1) {
        fail("address");
    }
    if (descriptor < 0 || ::connect(descriptor, reinterpret_cast<const sockaddr*>(&destination),
                                    sizeof destination) != 0) {
        fail("socket");
    }
    return descriptor;
}

// Returns how many datagrams the system took. While nobody listens, the system refuses them and
// tells the sender so.
std::size_t sendBatch(int descriptor, std::span<Datagram> datagrams) {
    std::array<iovec, datagramsInBatch> parts{};
    std::array<mmsghdr, datagramsInBatch> messages{};
    for (std::size_t index = 0; index < datagrams.size(); ++index) {
        const auto bytes = datagrams[index].bytes();
        parts[index] = {bytes.data(), bytes.size()};
        messages[index].msg_hdr.msg_iov = &parts[index];
        messages[index].msg_hdr.msg_iovlen = 1;
    }
    const int sent =
        ::sendmmsg(descriptor, messages.data(), static_cast<unsigned>(datagrams.size()), 0);
    return sent > 0 ? static_cast<std::size_t>(sent) : 0;
}

} // namespace

int main(int argc, char* argv[]) {
    if (argc != 6 && argc != 7) {
        std::fputs("usage: kxlab_hostile ADDRESS PORT SECONDS SERIAL SEED [cut|long|invented]\n",
                   stderr);
        return EXIT_FAILURE;
    }
    const int descriptor = openSocket(argv[1], argv[2]);
    const auto end = Clock::now() + std::chrono::seconds(std::strtol(argv[3], nullptr, 10));
    std::uint64_t number = std::strtoull(argv[4], nullptr, 16);
    Serial claimed{};
    for (auto byte = claimed.rbegin(); byte != claimed.rend(); ++byte, number >>= 8U) {
        *byte = static_cast<std::uint8_t>(number);
    }
    std::mt19937_64 random(std::strtoull(argv[5], nullptr, 10));

    std::vector<Datagram> batch(datagramsInBatch, Datagram(random));
    std::size_t sent = 0;
    while (Clock::now() < end) {
        for (Datagram& datagram : batch) {
            invent(datagram, argc == 7 ? argv[6] : "", claimed, random);
        }
        sent += sendBatch(descriptor, batch);
    }
    ::close(descriptor);
    std::printf("%zu datagrams\n", sent);
    return sent > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
