// An endpoint on doubles, and a delegate that records its events.

#pragma once

#include "UDPEcho.h"
#include "addresses/SocketAddressRecord.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedSystemCalls.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kx {

// An event of a delegate; fields that its method does not have stay empty.
struct EchoEvent {
    enum Kind { receivedData, receivedError, sentData, failedToSend, started, stopped };

    Kind kind;
    const UDPEcho* echo = nullptr;
    Bytes data = {};
    Bytes address = {};
    std::optional<Error> error = std::nullopt;
};

class RecordingDelegate final : public UDPEchoDelegate {
public:
    std::vector<EchoEvent> events;
    std::function<void(UDPEcho&)> onEvent; // called inside each method

    std::vector<EchoEvent::Kind> kinds() const {
        std::vector<EchoEvent::Kind> result;
        result.reserve(events.size());
        for (const auto& event : events) {
            result.push_back(event.kind);
        }
        return result;
    }

    void echoDidReceiveDataFromAddress(UDPEcho& echo, const Bytes& data,
                                       const Bytes& address) override {
        note(echo, {EchoEvent::receivedData, &echo, data, address}, data, address);
    }
    void echoDidReceiveError(UDPEcho& echo, const Error& error) override {
        note(echo, {EchoEvent::receivedError, &echo, {}, {}, error});
    }
    void echoDidSendDataToAddress(UDPEcho& echo, const Bytes& data, const Bytes& address) override {
        note(echo, {EchoEvent::sentData, &echo, data, address}, data, address);
    }
    void echoDidFailToSendDataToAddressError(UDPEcho& echo, const Bytes& data, const Bytes& address,
                                             const Error& error) override {
        note(echo, {EchoEvent::failedToSend, &echo, data, address, error}, data, address);
    }
    void echoDidStartWithAddress(UDPEcho& echo, const Bytes& address) override {
        note(echo, {EchoEvent::started, &echo, {}, address}, {}, address);
    }
    void echoDidStopWithError(UDPEcho& echo, const Error& error) override {
        const EchoEvent event{EchoEvent::stopped, &echo, {}, {}, error};
        note(echo, event);
        EXPECT_EQ(event.error, error) << "the error changed under the delegate's hands";
    }

private:
    void note(UDPEcho& echo, const EchoEvent& event) { note(echo, event, {}, {}); }

    // The arguments must not change until the method returns, whatever happens meanwhile.
    void note(UDPEcho& echo, const EchoEvent& event, const Bytes& data, const Bytes& address) {
        events.push_back(event);
        if (onEvent) {
            const auto action = onEvent;
            action(echo);
        }
        EXPECT_EQ(event.data, data);
        EXPECT_EQ(event.address, address);
    }
};

// The endpoint with its steps open to the test.
class OpenUDPEcho final : public UDPEcho {
public:
    static std::shared_ptr<OpenUDPEcho> make(RunLoop& runLoop, HostResolver& hostResolver,
                                             DatagramSystemCalls& systemCalls) {
        return std::shared_ptr<OpenUDPEcho>(new OpenUDPEcho(runLoop, hostResolver, systemCalls));
    }

    using UDPEcho::_hostResolutionDone;
    using UDPEcho::_readData;
    using UDPEcho::_setupSocketConnectedToAddressPortError;
    using UDPEcho::_stopHostResolution;
    using UDPEcho::_stopWithError;
    using UDPEcho::_stopWithStreamError;

private:
    OpenUDPEcho(RunLoop& runLoop, HostResolver& hostResolver, DatagramSystemCalls& systemCalls)
        : UDPEcho(runLoop, hostResolver, systemCalls) {}
};

class UDPEchoTest : public testing::Test {
protected:
    using Operation = ScriptedSystemCalls::Operation;

    static constexpr const char* hostName = "unit.example";
    inline static const Bytes senderAddress = dataForAddress(0x0A000002U, 3520);
    inline static const Bytes hostRecord = dataForAddress(0x0A000003U, 0);
    inline static const Bytes peerAddress = dataForAddress(0x0A000003U, 3522);
    inline static const Bytes hello = {'h', 'e', 'l', 'l', 'o'};

    std::shared_ptr<OpenUDPEcho> newEcho() {
        auto result = OpenUDPEcho::make(loop, resolver, systemCalls);
        result->setDelegate(&delegate);
        return result;
    }

    void startServer() { echo->startServerOnPort(3521); }
    void startResolving() { echo->startConnectedToHostNamePort(hostName, 3522); }
    void startClient() {
        resolver.setAddresses(hostName, {hostRecord});
        startResolving();
        resolver.reportAnswers();
    }

    // A datagram comes in and the loop turns once.
    void receive(const Bytes& data) {
        systemCalls.queueDatagram(data, senderAddress);
        loop.makeReadable(echo->nativeSocket());
    }

    // The one event since the last call of this function.
    EchoEvent onlyEvent() {
        EXPECT_EQ(delegate.events.size(), 1U);
        auto event = delegate.events.empty() ? EchoEvent{} : delegate.events.back();
        delegate.events.clear();
        return event;
    }

    void expectStopped() const {
        EXPECT_EQ(echo->port(), 0U);
        EXPECT_EQ(echo->hostName(), std::nullopt);
        EXPECT_EQ(echo->hostAddress(), std::nullopt);
        EXPECT_TRUE(echo->isServer());
        EXPECT_EQ(echo->nativeSocket(), -1);
        EXPECT_EQ(resolver.requestCount(), 0U);
        EXPECT_EQ(loop.watchCount(), 0U);
        expectEverySocketClosedOnce();
    }

    void expectEverySocketClosedOnce() const {
        EXPECT_TRUE(systemCalls.openDescriptors().empty());
        for (int descriptor = 1000; descriptor <= systemCalls.lastDescriptor(); ++descriptor) {
            EXPECT_EQ(systemCalls.closeCount(descriptor), 1U) << "descriptor " << descriptor;
        }
    }

    static Error unknownHostError(std::optional<PropertyDictionary> userInfo = std::nullopt) {
        return {"kCFErrorDomainCFNetwork", 2, std::move(userInfo)};
    }

    ManualRunLoop loop;
    ScriptedHostResolver resolver;
    ScriptedSystemCalls systemCalls;
    RecordingDelegate delegate;
    std::shared_ptr<OpenUDPEcho> echo = newEcho();
};

} // namespace kx
