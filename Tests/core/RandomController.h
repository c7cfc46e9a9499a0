// A life of the program in random steps, done to the controller and to its plain model: what the
// network, the host and a person do, except for editing.

#pragma once

#include "ControllerAndModel.h"
#include "addresses/SocketAddressRecord.h"
#include "model/RandomDatagrams.h"
#include "model/RandomSteps.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <memory>
#include <string>
#include <vector>

namespace kx {

class RandomController : public ::testing::Test {
protected:
    using Strings = std::vector<std::string>;
    using Text = ControllerAndModel::Text;

    // --- A life of the program ---

    void begin() {
        both.reset(); // first, because each has a system log that it restores
        both = std::make_unique<ControllerAndModel>(ControllerAndModel::Date{
            1 + static_cast<int>(random.below(12)), 1 + static_cast<int>(random.below(28)),
            static_cast<int>(random.below(24)), static_cast<int>(random.below(60))});
        both->setOptions(random.oneOf<Strings>({{"V  Version", "-Z  Set clock", "W", "  lead", ""},
                                                {"-Z", "-Zx y", "A B  two", "-z  small"},
                                                {}}));
        for (const char* const title :
             {"Ethernet (eth0)", "Wi-Fi (wlan0)", "Bridge (br0:1)", "Odd name", "A (b) (tun0)"}) {
            if (!random.oneIn(3)) {
                both->addInterface(title);
            }
        }
        for (const std::string& name : interfaceNames) {
            changeService(name);
        }
        if (random.oneIn(6)) {
            both->authority.beAbsent();
            both->plain.authority.isAbsent = true;
        }
        if (random.oneIn(6)) {
            both->window.eventLogDrawer.setState(DrawerState::open);
            both->plain.drawer.state = model::PlainDrawer::open;
        }
        random.tell("launch");
        both->controller.applicationDidFinishLaunching();
        both->plain.launch();
    }

    void end() {
        random.tell("end of the program");
        both->controller.applicationWillTerminate();
        both->plain.terminate();
        compare();
        random.tell("time passes after the end");
        both->pass(5000);
        compare();
    }

    void compare() {
        const std::string difference = both->difference();
        ASSERT_TRUE(difference.empty()) << difference;
    }

    // --- What comes from outside ---

    void receive() {
        if (!both->isListening()) {
            return;
        }
        const Bytes datagram = datagrams.any();
        random.tell("receive " + model::inOneLine({datagram.begin(), datagram.end()}));
        both->receive(datagram);
    }

    void receiveManyAcknowledgements() {
        if (!both->isListening()) {
            return;
        }
        random.tell("receive many acknowledgements");
        for (auto left = 10 + random.below(20); left > 0; --left) {
            both->receive(datagrams.wholeAcknowledgement());
            both->pass(static_cast<int>(random.below(60)));
        }
    }

    void passTime() {
        const int time = random.oneOf<int>({1, 50, 400, 999, 1000, 1001, 1999, 2000, 2500});
        random.tell("pass " + std::to_string(time) + " ms");
        both->pass(time);
    }

    void failNextCall() {
        const auto call = random.oneOf<std::string>(
            {"socket", "bind", "flags", "unblock", "broadcasts", "send", "send", "receive"});
        const int error =
            random.oneOf<int>({EADDRINUSE, ENETUNREACH, ENOBUFS, EACCES, EMFILE, ECONNREFUSED});
        random.tell("next " + call + " fails with " + std::to_string(error));
        both->failNext(call, error);
    }

    void tellEvent() {
        const bool isForeign = !both->isListening() || random.oneIn(2);
        UDPEcho& echo = isForeign ? *both->foreignEndpoint
                                  : const_cast<UDPEcho&>(*both->controller.udpListener());
        const int error = random.oneOf<int>({EPIPE, ENETUNREACH, EIO});
        auto& controller = both->controller;
        switch (random.below(6)) {
        case 0:
            random.tell("the endpoint tells a failed read");
            controller.echoDidReceiveError(echo, posixError(error));
            return both->plain.receiveErrorTold(error);
        case 1:
            random.tell("the endpoint tells a failed send");
            controller.echoDidFailToSendDataToAddressError(echo, {}, {}, posixError(error));
            return both->plain.sendFailureTold(error);
        case 2:
            random.tell("the endpoint tells a stop");
            controller.echoDidStopWithError(echo, posixError(error));
            return both->plain.stopTold(error);
        case 3:
            random.tell("a foreign endpoint tells a datagram");
            return controller.echoDidReceiveDataFromAddress(*both->foreignEndpoint, datagrams.any(),
                                                            dataForAddress(1, 2));
        case 4:
            random.tell("a foreign endpoint tells a send and a start");
            controller.echoDidSendDataToAddress(*both->foreignEndpoint, {}, {});
            return controller.echoDidStartWithAddress(*both->foreignEndpoint, dataForAddress(1, 2));
        default:
            if (!isForeign) {
                tellStart(echo);
            }
        }
    }

    void tellStart(UDPEcho& echo) {
        const bool isIPv4 = random.oneIn(2);
        random.tell(isIPv4 ? "the endpoint tells a start" : "the endpoint tells a start by IPv6");
        Bytes address(28, 7);
        address[0] = 28;
        address[1] = 30;
        both->controller.echoDidStartWithAddress(echo, isIPv4 ? dataForAddress(0x7F000001U, 4000)
                                                              : address);
        both->plain.startTold(isIPv4 ? "127.0.0.1:4000" : "");
    }

    // --- Discovery and selection ---

    void discover() {
        random.tell("Discover");
        both->controller.discoverButton();
        both->plain.discover();
    }

    void choosePort() {
        const auto title = random.oneOf(both->window.udpPortPopUp.titles());
        random.tell("port " + title);
        both->window.udpPortPopUp.selectItemWithTitle(title);
        both->plain.portPopUp.choose(title);
        both->controller.udpPortSelect();
        both->plain.discover();
    }

    void chooseUnit() {
        const auto& titles = both->window.unitSelectPopUp.titles();
        if (!titles.empty() && !random.oneIn(4)) {
            const std::string title = random.oneOf(titles);
            random.tell("unit " + title);
            both->window.unitSelectPopUp.selectItemWithTitle(title);
            both->plain.unitPopUp.choose(title);
        } else {
            random.tell("unit as it is");
        }
        both->controller.unitSelectPopUp();
        both->plain.unitChosen();
    }

    void chooseRow() {
        const auto rows = static_cast<std::uint32_t>(both->plain.rows.size());
        const int row = static_cast<int>(random.below(rows + 1)) - 1;
        random.tell("row " + std::to_string(row));
        both->window.unitParameterTableView.selectRow(row);
        both->plain.selectedRow = row;
        both->controller.tableViewSelectionDidChange();
        both->plain.rowChosen();
    }

    void chooseInterface() {
        const auto title = random.oneOf(both->window.interfacePopUp.titles());
        random.tell("interface " + title);
        both->window.interfacePopUp.selectItemWithTitle(title);
        both->plain.interfacePopUp.choose(title);
        both->controller.interfaceSelect();
        both->plain.interfaceChosen();
    }

    void changeOneService() {
        const std::string name = random.oneOf(interfaceNames);
        random.tell("another address of " + name);
        changeService(name);
    }

    void changeService(const std::string& name) {
        const auto address = random.oneOf<Text>(
            {"192.168.1.20", "192.168.1.20", "10.0.0.5", "nonsense", "0.0.0.0", std::nullopt});
        const auto mask = random.oneOf<Text>({"255.255.255.0", "255.0.0.0", "255.255.255.255",
                                              "0.0.0.0", "255.0.255.0", std::nullopt});
        both->setService(name, address, mask);
    }

    // --- Rights and the drawer ---

    void changeRights() {
        auto& authority = both->plain.authority;
        authority.personAgrees = !random.oneIn(3);
        authority.startStatus = random.oneOf<int>({0, 0, 0, -60031, 5});
        random.tell(std::string("the person ") + (authority.personAgrees ? "agrees" : "refuses") +
                    ", tools start with " + std::to_string(authority.startStatus));
        both->authority.answerDialogsWith(authority.personAgrees ? errAuthorizationSuccess
                                                                 : errAuthorizationCanceled);
        both->authority.startToolsWith(authority.startStatus);
    }

    void moveDrawer() {
        if (random.oneIn(2)) {
            random.tell("Event Log");
            both->controller.logDrawerButton();
            both->plain.toggleDrawer();
        } else {
            random.tell("the drawer ends its movement");
            both->window.eventLogDrawer.finishMoving();
            both->plain.drawer.finishMoving();
        }
    }

    const Strings interfaceNames{"eth0", "wlan0", "br0",
                                 "Odd name"}; // the other one has no service
    model::RandomSteps random{60'000};
    model::RandomDatagrams datagrams{random};
    std::unique_ptr<ControllerAndModel> both;
};

} // namespace kx
