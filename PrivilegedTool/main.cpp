// kxarp: changes one entry of the host's ARP cache for KXConfig, with administrator rights.
//
// usage: kxarp -s ADDRESS HARDWARE-ADDRESS
//        kxarp -d ADDRESS HARDWARE-ADDRESS
//
// polkit lets a person decide who may run it, and pkexec runs it (Resources/*.policy). So every
// word that arrives here may come from a stranger. ARPRequest.h says which words are taken. For
// these it becomes the ARP tool, with exactly these words for -s. Otherwise it changes nothing and
// ends with one sentence on standard error and a status of its own (kxarp::Failure).
//
// It takes nothing else over from its caller: no environment, no descriptor but standard error.

#include "PrivilegedTool/ARPRequest.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr auto arpTable = "/proc/net/arp";

[[noreturn]] void endWith(kxarp::Failure failure) {
    std::fprintf(stderr, "%s\n", kxarp::sentenceOf(failure));
    std::exit(static_cast<int>(failure));
}

// A caller may have closed the standard descriptors, and then the next file that is opened would
// become one of them.
void leaveCallerBehind() {
    ::clearenv();
    int nothing = -1;
    do {
        nothing = ::open("/dev/null", O_RDWR);
    } while (nothing >= 0 && nothing <= STDERR_FILENO);
    if (nothing < 0 || ::dup2(nothing, STDIN_FILENO) < 0 || ::dup2(nothing, STDOUT_FILENO) < 0 ||
        ::close_range(STDERR_FILENO + 1, ~0U, 0) != 0) {
        endWith(kxarp::Failure::noTool);
    }
}

[[noreturn]] void becomeARPTool(const std::vector<std::string>& words) {
    std::vector<char*> pointers{const_cast<char*>(kxarp::arpTool)};
    for (const std::string& word : words) {
        pointers.push_back(const_cast<char*>(word.c_str()));
    }
    pointers.push_back(nullptr);
    ::execv(kxarp::arpTool, pointers.data());
    endWith(kxarp::Failure::noTool);
}

[[noreturn]] void takeOut(const kxarp::Request& request) {
    std::ifstream table(arpTable);
    std::string line;
    if (!std::getline(table, line)) { // the head of the table
        endWith(kxarp::Failure::noTable);
    }
    while (std::getline(table, line)) {
        if (const auto interface = kxarp::interfaceOfEntry(line, request)) {
            becomeARPTool({"-i", std::string(*interface), "-d", std::string(request.address)});
        }
    }
    endWith(kxarp::Failure::noSuchEntry);
}

} // namespace

int main(int argc, char* argv[]) {
    leaveCallerBehind();
    const std::vector<std::string_view> words(argv + (argc > 0 ? 1 : 0), argv + argc);
    const auto result = kxarp::requestOf(words);
    if (const auto* const failure = std::get_if<kxarp::Failure>(&result)) {
        endWith(*failure);
    }
    const auto& request = std::get<kxarp::Request>(result);
    if (request.verb == kxarp::Verb::takeOut) {
        takeOut(request);
    }
    becomeARPTool({"-s", std::string(request.address), std::string(request.hardwareAddress)});
}
