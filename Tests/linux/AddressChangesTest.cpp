// Many changes of a unit's address in a row, with the real ARP tool, sockets and loop.

#include "KXConfigAppDelegate.h"
#include "PrivateNetwork.h"
#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"
#include "core/UnitReplies.h"
#include "doubles/FixedWallClock.h"
#include "doubles/ImpatientWaiting.h"
#include "doubles/RecordedOutlets.h"
#include "doubles/ScriptedHostResolver.h"
#include "platform/PollLoopDriver.h"
#include "platform/linux/RootAuthorizationService.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace kx {

namespace {

std::ptrdiff_t openDescriptors() {
    const std::filesystem::directory_iterator descriptors("/proc/self/fd");
    return std::distance(begin(descriptors), end(descriptors));
}

bool hasChildren() {
    return ::waitpid(-1, nullptr, WNOHANG) != -1 || errno != ECHILD;
}

// The limit of growth of the resident memory for 300 changes, in bytes. The event log grows by less
// than a fifth of it. The address sanitizer keeps all freed memory for a while.
#if defined(KX_SANITIZED)
constexpr long mostGrowth = 16L * 1024 * 1024;
#else
constexpr long mostGrowth = 512L * 1024;
#endif

// The resident memory in bytes.
long residentMemory() {
    std::ifstream file("/proc/self/statm");
    long size = 0;
    long resident = 0;
    file >> size >> resident;
    return resident * ::sysconf(_SC_PAGESIZE);
}

std::string neighbours(const std::string& hardwareAddress) {
    std::ifstream file("/proc/thread-self/net/arp");
    std::string found;
    for (std::string line; std::getline(file, line);) {
        if (line.find(hardwareAddress) != std::string::npos) {
            found += line.substr(0, line.find(' ')) + '\n';
        }
    }
    return found;
}

class AddressChanges : public testing::Test {
protected:
    AddressChanges() {
        network.ip("link add kx0 type veth peer name kx1");
        network.ip("address add 10.0.0.1/8 dev kx0");
        network.ip("link set kx0 up");
        network.ip("link set kx1 up");
        window.editParameterTableView.setDataSource(&controller);
        controller.applicationDidFinishLaunching();
    }

    // The unit tells its parameters, and the discovery selects it.
    bool discover() {
        DatagramSystemCalls calls;
        const int descriptor = calls.socket();
        calls.sendTo(descriptor, SampleUnit().reply(),
                     dataForAddress(ipForString("127.0.0.1"), 3520));
        calls.close(descriptor);
        return runLoopUntil(loop, [this] { return controller.selectedUnit().has_value(); });
    }

    // Each change runs one tool. A turn of the loop takes the end of the tool before it.
    void changeAddresses(int count) {
        for (int i = 0; i < count; ++i) {
            const std::string last = std::to_string(2 + next++ % 200);
            window.editParameterTableView.typeIntoCell(0, "parameterValue", "10.0.0." + last);
            controller.edit_internalIP();
            loop.runOnce(std::chrono::milliseconds(0));
        }
        EXPECT_TRUE(runLoopUntil(loop, [] { return !hasChildren(); }));
        runLoopFor(loop, std::chrono::milliseconds(200)); // takes the end of the last tool
    }

    PrivateNetwork network;
    PollRunLoop loop;
    ScriptedHostResolver hostResolver;
    DatagramSystemCalls systemCalls;
    FixedWallClock wallClock{2023, 11, 15, 23, 47, 0};
    RecordedApplication application;
    ImpatientWaiting waiting;
    RootAuthorizationService authority{loop, waiting};
    RecordedMainWindow window;
    KXConfigAppDelegate controller{
        window.outlets(),
        {loop, hostResolver, systemCalls, wallClock, application, nullptr, {}, &authority}};
    int next = 0;
};

} // namespace

TEST_F(AddressChanges, LeaveNoChildNoDescriptorAndNoMemoryBehind) {
    ASSERT_TRUE(discover());
    window.editParameterTableView.typeIntoCell(0, "parameterName", "internal IP address");
    changeAddresses(100);
    const auto descriptorsBefore = openDescriptors();
    const long memoryBefore = residentMemory();
    changeAddresses(300);
    EXPECT_EQ(openDescriptors(), descriptorsBefore);
    EXPECT_FALSE(hasChildren());
    EXPECT_LT(residentMemory() - memoryBefore, mostGrowth);
    EXPECT_TRUE(window.alert.shown().empty());
    const std::string entries = neighbours("00:1a:2b:3c:4d:5e");
    EXPECT_EQ(std::count(entries.begin(), entries.end(), '\n'), 200) << entries;
}

} // namespace kx
