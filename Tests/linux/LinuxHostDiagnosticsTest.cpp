// What is read from files, on files that the test writes.

#include "platform/linux/LinuxHostDiagnostics.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace kx {

namespace {

class LinuxHostDiagnosticsTest : public testing::Test {
protected:
    LinuxHostDiagnosticsTest() {
        std::string name = "/tmp/kx-host-XXXXXX";
        folder = ::mkdtemp(name.data());
    }
    ~LinuxHostDiagnosticsTest() override { std::filesystem::remove_all(folder); }

    void write(const std::string& path, const std::string& text) const {
        const auto file = folder / path;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    std::vector<FirewallService> services() const {
        return LinuxHostDiagnostics(folder, folder).firewallServices();
    }

    std::filesystem::path folder;
};

} // namespace

TEST_F(LinuxHostDiagnosticsTest, ACounterIsFoundByItsGroupAndItsName) {
    const std::string text = "Ip: Forwarding InReceives\nIp: 2 17\nUdp: InDatagrams NoPorts\n"
                             "Udp: 5 18446744073709551615\n";
    EXPECT_EQ(counterIn(text, "Ip", "InReceives"), 17U);
    EXPECT_EQ(counterIn(text, "Udp", "NoPorts"), 18446744073709551615U);
    EXPECT_EQ(counterIn(text, "Udp", "InReceives"), std::nullopt);
    EXPECT_EQ(counterIn(text, "Tcp", "InReceives"), std::nullopt);
    EXPECT_EQ(counterIn("Ip: Forwarding InReceives\nIp: 2\n", "Ip", "InReceives"), std::nullopt);
    EXPECT_EQ(counterIn("Ip: InReceives\nIp: x\n", "Ip", "InReceives"), std::nullopt);
    EXPECT_EQ(counterIn("", "Ip", "InReceives"), std::nullopt);
}

TEST_F(LinuxHostDiagnosticsTest, ASocketIsFoundByItsPort) {
    const std::string text =
        "   sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  "
        "timeout inode ref pointer drops\n"
        "  1: 00000000:0044 00000000:0000 07 00000000:00000000 00:00000000 00000000     0        "
        "0 111 2 0 0\n"
        "  2: 0100007F:0DC0 00000000:0000 07 00000000:00000000 00:00000000 00000000  1000        "
        "0 222 2 0 0\n";
    const auto found = socketOnPort(text, 3520);
    ASSERT_TRUE(found.has_value());
    EXPECT_EQ(found->user, 1000U);
    EXPECT_EQ(found->inode, 222U);
    EXPECT_FALSE(socketOnPort(text, 3521).has_value());
    EXPECT_FALSE(socketOnPort("2: 0100007F:0DC0\n", 3520).has_value());
}

TEST_F(LinuxHostDiagnosticsTest, AFirewallCountsOnlyWhereItRuns) {
    EXPECT_TRUE(services().empty());
    write("ufw/ufw.conf", "# comment\nENABLED=no\n");
    write("12/comm", "sleep\n");
    EXPECT_TRUE(services().empty());
    write("ufw/ufw.conf", "LOGLEVEL=low\nENABLED=yes\n");
    EXPECT_EQ(services(), std::vector<FirewallService>{FirewallService::ufw});
    write("13/comm", "firewalld\n");
    EXPECT_EQ(services(),
              (std::vector<FirewallService>{FirewallService::ufw, FirewallService::firewalld}));
}

TEST_F(LinuxHostDiagnosticsTest, AHostThatTellsNothingIsNoFault) {
    LinuxHostDiagnostics host(folder, folder);
    EXPECT_FALSE(host.counters().has_value());
    EXPECT_FALSE(host.reversePathFilter("kx0").has_value());
    EXPECT_FALSE(host.ownerOfPort(3520).has_value());
}

TEST_F(LinuxHostDiagnosticsTest, ARouteIsFoundAlsoWhereStandardInputIsClosed) {
    constexpr std::uint32_t loopback = 0x7F000001U;
    const int before = ::dup(STDIN_FILENO);
    ::close(STDIN_FILENO); // its number is the next one that the system gives away
    const auto route = LinuxHostDiagnostics().route(loopback);
    if (before >= 0) {
        ::dup2(before, STDIN_FILENO);
        ::close(before);
    }
    ASSERT_TRUE(route.has_value());
    EXPECT_TRUE(route->exists);
}

} // namespace kx
