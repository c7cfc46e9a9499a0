// The words that the privileged tool gets, and the lines of the host's table that it looks at.

#include "FuzzInput.h"
#include "PrivilegedTool/ARPRequest.h"

#include <arpa/inet.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <string>
#include <vector>

using namespace kx;

namespace {

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (true) {
        const auto end = text.find('\n');
        lines.push_back(text.substr(0, end));
        if (end == std::string_view::npos) {
            return lines;
        }
        text.remove_prefix(end + 1);
    }
}

// The system's own reading of an address, written again, gives the same text.
bool isAddressOfSystem(const std::string& text) {
    in_addr address{};
    std::array<char, INET_ADDRSTRLEN> written{};
    return text.find('\0') == std::string::npos &&
           ::inet_pton(AF_INET, text.c_str(), &address) == 1 &&
           ::inet_ntop(AF_INET, &address, written.data(), written.size()) == text;
}

} // namespace

// The first lines are the words. Each further line is one of the table.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    auto lines = linesOf(textOfInput(data, size));
    const std::size_t count = std::min<std::size_t>(lines.size(), 3);
    const std::vector<std::string_view> words(lines.begin(),
                                              lines.begin() + static_cast<long>(count));

    const auto result = kxarp::requestOf(words);
    const auto* const request = std::get_if<kxarp::Request>(&result);
    if (request == nullptr) {
        const auto failure = std::get<kxarp::Failure>(result);
        requireInvariant(failure != kxarp::Failure::badAddress ||
                             !isAddressOfSystem(std::string(words[1])),
                         "a refused address is none of the system's");
        return 0;
    }
    requireInvariant(isAddressOfSystem(std::string(request->address)),
                     "the system reads the address alike");
    std::array<unsigned, 6> octets{};
    int length = 0;
    const std::string hardwareAddress(request->hardwareAddress);
    requireInvariant(std::sscanf(hardwareAddress.c_str(), "%2x:%2x:%2x:%2x:%2x:%2x%n", &octets[0],
                                 &octets[1], &octets[2], &octets[3], &octets[4], &octets[5],
                                 &length) == 6 &&
                         length == 17 && hardwareAddress.size() == 17,
                     "the hardware address has six pairs");
    requireInvariant(octets[0] % 2 == 0, "it names one host");
    for (std::size_t i = count; i < lines.size(); ++i) {
        if (const auto interface = kxarp::interfaceOfEntry(lines[i], *request)) {
            const auto begin = std::min(lines[i].find_first_not_of(' '), lines[i].size());
            requireInvariant(lines[i].substr(begin).starts_with(request->address),
                             "the line is about the address");
            requireInvariant(!interface->empty() && interface->find(' ') == std::string_view::npos,
                             "the interface has a name");
        }
    }
    return 0;
}
