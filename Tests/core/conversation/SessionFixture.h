// A session on doubles, and a front that writes down what it is told.

#pragma once

#include "conversation/UnitSession.h"
#include "core/SentDatagrams.h"
#include "core/UnitReplies.h"
#include "doubles/ManualRunLoop.h"
#include "doubles/RecordedSystemLog.h"
#include "doubles/ScriptedHostResolver.h"
#include "doubles/ScriptedReceiveBufferControl.h"
#include "doubles/ScriptedSystemCalls.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace kx {

using Events = std::vector<std::string>;

class RecordingObserver final : public UnitSessionObserver {
public:
    Events events;
    std::function<void(const std::string& event)> onEvent; // runs inside each method

    // The events since the last call of this.
    Events taken() { return std::exchange(events, {}); }

    void sessionDidStart(const Bytes& localAddress) override {
        note("started at " + endpointText(localAddress));
    }
    void sessionCanBroadcast() override { note("can broadcast"); }
    void sessionCannotBroadcast(const std::string& reason) override {
        note("cannot broadcast: " + reason);
    }
    void sessionDidStop(const Error& error) override {
        note("stopped: " + error.localizedDescription());
    }
    void sessionDidReceiveDatagram(std::size_t length) override {
        note("datagram of " + std::to_string(length));
    }
    void sessionDidIgnoreDatagram(PacketKind kind) override {
        note(kind == PacketKind::tooShort ? "ignored: too short" : "ignored: unknown");
    }
    void unitDidTellParameters(const Reply& reply, const DecodedUnitParameters& parameters,
                               const DatagramOrigin& origin) override {
        lastParameters = parameters;
        note("parameters of " + sender(reply, origin));
    }
    void unitDidAccept(const Reply& reply, const DatagramOrigin& origin) override {
        note("acceptance of " + sender(reply, origin));
    }
    void unitDidSendOtherReply(const Reply& reply, const DatagramOrigin& origin) override {
        note("\"" + std::string(reply.payload.begin(), reply.payload.end()) + "\" of " +
             sender(reply, origin));
    }
    void sessionDidReceiveError(const Error& error) override {
        note("receive error: " + error.localizedDescription());
    }
    void sessionDidSend() override { note("sent"); }
    void sessionDidFailToSend(const SendFailure& failure) override {
        note("not sent: " + reasonOf(failure));
    }
    void sessionDidDrop(std::uint32_t datagrams) override {
        note("dropped " + std::to_string(datagrams));
    }

    static std::string reasonOf(const SendFailure& failure) {
        return failure.error.has_value() ? failure.error->localizedDescription() : "no listener";
    }

    DecodedUnitParameters lastParameters;

private:
    static std::string sender(const Reply& reply, const DatagramOrigin& origin) {
        return reply.serialNumber.value_or("(nobody)") + " from " + endpointText(origin.sender) +
               " by " + std::to_string(origin.link);
    }

    void note(const std::string& event) {
        events.push_back(event);
        if (onEvent) {
            const auto action = onEvent; // it may replace itself
            action(event);
        }
    }
};

class SessionTest : public testing::Test {
protected:
    using Operation = ScriptedSystemCalls::Operation;

    static constexpr std::uint32_t unitAddress = 0xC0A8010AU; // 192.168.1.10
    static constexpr std::uint32_t linkOfUnit = 3;

    void start() {
        session.start(3520);
        observer.taken();
    }

    void receive(const Bytes& datagram) {
        systemCalls.queueDatagram(datagram, dataForAddress(unitAddress, 3520), linkOfUnit);
        runLoop.makeReadable(systemCalls.lastDescriptor());
    }

    // The events of one datagram.
    Events eventsOf(const Bytes& datagram) {
        observer.taken();
        receive(datagram);
        return observer.taken();
    }

    // Runs an action inside the event of this text, once.
    void inside(const std::string& event, std::function<void()> action) {
        observer.onEvent = [this, event, action = std::move(action)](const std::string& actual) {
            if (actual == event) {
                observer.onEvent = nullptr;
                action();
            }
        };
    }

    // "sent", or why not.
    std::string resultOfSend(std::string_view command, std::uint32_t link = 0) {
        const auto failure = session.send(command, unitAddress, 10000, link);
        return failure.has_value() ? RecordingObserver::reasonOf(*failure) : "sent";
    }

    RecordedSystemLog systemLog;
    ManualRunLoop runLoop;
    ScriptedHostResolver hostResolver;
    ScriptedSystemCalls systemCalls;
    ScriptedReceiveBufferControl receiveBuffers;
    UnitRegistry registry;
    RecordingObserver observer;
    UnitSession session{{.runLoop = runLoop,
                         .hostResolver = hostResolver,
                         .systemCalls = systemCalls,
                         .receiveBuffers = &receiveBuffers},
                        registry,
                        observer};
};

} // namespace kx
