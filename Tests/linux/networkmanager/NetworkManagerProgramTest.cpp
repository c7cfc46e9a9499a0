// The real program on a host whose links have profiles.

#include "PrivateHost.h"

#include <gtest/gtest.h>

#include <QProcessEnvironment>

namespace kx {

namespace {

class NetworkManagerProgram : public testing::Test {
protected:
    NetworkManagerProgram() { host.start(); }

    // The report of the tour through the real window about an interface that it chooses.
    static std::string reportWith(const QString& interface) {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_GENERIC_PLUGINS", "kxtour");
        environment.insert("QT_PLUGIN_PATH", KX_PLUGINS);
        environment.insert("KX_TOUR_INTERFACE", interface);
        environment.insert("KX_TOUR_UNITS", "0");
        QProcess program;
        program.setProcessEnvironment(environment);
        program.start(KX_APPLICATION, QStringList());
        EXPECT_TRUE(program.waitForFinished(60'000));
        EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
        return program.readAllStandardOutput().toStdString();
    }

    PrivateHost host;
};

} // namespace

TEST_F(NetworkManagerProgram, ThePopUpNamesTheProfilesAndTheChosenOneGetsTheBroadcast) {
    const auto report = reportWith("kx1");
    EXPECT_NE(report.find("Interface: Production line (kx1)\n"), std::string::npos) << report;
    EXPECT_NE(report.find("Request unit parameters with address: 198.51.100.127\n"),
              std::string::npos)
        << report;
}

TEST_F(NetworkManagerProgram, ThePopUpNamesKindsWhileNetworkManagerHangs) {
    host.networkManager->hang();
    const auto report = reportWith("kx0");
    EXPECT_NE(report.find("Interface: Ethernet (kx0)\n"), std::string::npos) << report;
    EXPECT_NE(report.find("Request unit parameters with address: 192.0.2.255\n"), std::string::npos)
        << report;
}

TEST_F(NetworkManagerProgram, AtRestItSleeps) {
    EXPECT_EQ(QProcess::execute(KX_LAB_TESTS "/the_application_at_rest_sleeps.sh",
                                {"closed", KX_APPLICATION}),
              0);
}

} // namespace kx
