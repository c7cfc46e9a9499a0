// An endpoint whose system calls read ahead: its delegate sees the same as without that.

#include "ForwardingSystemCalls.h"
#include "UDPEchoFixture.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <deque>

namespace kx {

namespace {

// Every datagram that waits is ahead after the first read. What is ahead is lost with its socket.
class ReadingAhead final : public ForwardingSystemCalls {
public:
    using ForwardingSystemCalls::ForwardingSystemCalls;

    std::deque<Bytes> waiting;
    Bytes sender;

    ssize_t receiveFrom(int descriptor, std::span<std::uint8_t> buffer,
                        DatagramOrigin& origin) override {
        if (waiting.empty()) {
            errno = EAGAIN;
            return -1;
        }
        _descriptor = descriptor;
        const Bytes next = waiting.front();
        waiting.pop_front();
        std::ranges::copy(next, buffer.begin());
        origin.sender = sender;
        return static_cast<ssize_t>(next.size());
    }
    void allowReadingAhead(int descriptor) override { _allowed = descriptor; }
    bool hasReadAhead(int descriptor) const override {
        return descriptor == _descriptor && descriptor == _allowed && !waiting.empty();
    }
    int close(int descriptor) override {
        if (hasReadAhead(descriptor)) {
            waiting.clear();
        }
        return ForwardingSystemCalls::close(descriptor);
    }

private:
    int _descriptor = -1;
    int _allowed = -1;
};

class UDPEchoReadAhead : public UDPEchoTest {
protected:
    void SetUp() override {
        ahead.sender = senderAddress;
        echo = OpenUDPEcho::make(loop, resolver, ahead);
        echo->setDelegate(&delegate);
        startServer();
        delegate.events.clear();
    }
    void TearDown() override {
        echo.reset();
        EXPECT_EQ(loop.watchCount(), 0U);
        EXPECT_EQ(loop.pendingCallCount(), 0U);
        expectEverySocketClosedOnce();
    }

    // These datagrams wait in the system, and the loop turns until none is ahead.
    void receiveAll(const std::deque<Bytes>& datagrams) {
        ahead.waiting = datagrams;
        loop.makeReadable(echo->nativeSocket());
        while (loop.pendingCallCount() > 0) {
            loop.runOneTurn();
        }
    }
    std::vector<Bytes> received() const {
        std::vector<Bytes> result;
        for (const EchoEvent& event : delegate.events) {
            result.push_back(event.data);
        }
        return result;
    }
    // Does something inside the event of the datagram {1}.
    void inFirstEvent(std::function<void(UDPEcho&)> action) {
        delegate.onEvent = [this, action = std::move(action)](UDPEcho& sender) {
            delegate.onEvent = nullptr;
            action(sender);
        };
    }

    ReadingAhead ahead{systemCalls};
};

} // namespace

TEST_F(UDPEchoReadAhead, WhatWasReadAheadIsHandedOutInOrder) {
    receiveAll({{1}, {2}, {3}});
    EXPECT_EQ(received(), (std::vector<Bytes>{{1}, {2}, {3}}));
    EXPECT_EQ(delegate.events.back().address, senderAddress);
    EXPECT_EQ(loop.pendingCallCount(), 0U);
}

TEST_F(UDPEchoReadAhead, ADatagramWithoutBytesBetweenOthersIsAFailedReadBetweenThem) {
    receiveAll({{1}, {}, {3}});
    EXPECT_EQ(delegate.kinds(),
              (std::vector<EchoEvent::Kind>{EchoEvent::receivedData, EchoEvent::receivedError,
                                            EchoEvent::receivedData}));
    EXPECT_EQ(delegate.events[1].error, posixError(EPIPE));
}

TEST_F(UDPEchoReadAhead, OtherEventsGetTheirTurnAfterALongDatagram) {
    const Bytes longDatagram(9000, 1);
    ahead.waiting = {longDatagram, longDatagram, {2}, {3}};
    loop.setReadable(echo->nativeSocket(), true);
    loop.runOneTurn();
    EXPECT_EQ(received(), (std::vector<Bytes>{longDatagram}));
    loop.setReadable(echo->nativeSocket(), false);
    loop.runOneTurn();
    EXPECT_EQ(received(), (std::vector<Bytes>{longDatagram, longDatagram}));
    loop.runOneTurn();
    EXPECT_EQ(received(), (std::vector<Bytes>{longDatagram, longDatagram, {2}, {3}}));
    EXPECT_EQ(loop.pendingCallCount(), 0U);
}

TEST_F(UDPEchoReadAhead, AStopInBetweenEndsIt) {
    inFirstEvent([](UDPEcho& sender) { sender.stop(); });
    receiveAll({{1}, {2}});
    EXPECT_EQ(received(), (std::vector<Bytes>{{1}}));
    expectStopped();
}

TEST_F(UDPEchoReadAhead, ARestartInBetweenLosesTheRest) {
    inFirstEvent([](UDPEcho& sender) {
        sender.stop();
        sender.startServerOnPort(3523);
    });
    receiveAll({{1}, {2}});
    EXPECT_EQ(delegate.kinds(),
              (std::vector<EchoEvent::Kind>{EchoEvent::receivedData, EchoEvent::started}));
    delegate.events.clear();
    receiveAll({{3}, {4}});
    EXPECT_EQ(received(), (std::vector<Bytes>{{3}, {4}}));
}

TEST_F(UDPEchoReadAhead, AReleaseInBetweenEndsIt) {
    inFirstEvent([this](UDPEcho&) { echo.reset(); });
    receiveAll({{1}, {2}});
    EXPECT_EQ(received(), (std::vector<Bytes>{{1}}));
}

TEST_F(UDPEchoReadAhead, ARunOfTheLoopInsideAnEventHandsOutTheRest) {
    inFirstEvent(
        [this](UDPEcho&) { loop.runUntil([this] { return delegate.events.size() == 3; }); });
    receiveAll({{1}, {2}, {3}});
    EXPECT_EQ(received(), (std::vector<Bytes>{{1}, {2}, {3}}));
}

TEST_F(UDPEchoReadAhead, ARunInsideTheEventOfARunHandsOutTheRestToo) {
    inFirstEvent([this](UDPEcho&) {
        inFirstEvent(
            [this](UDPEcho&) { loop.runUntil([this] { return delegate.events.size() == 3; }); });
        loop.runUntil([this] { return delegate.events.size() == 3; });
    });
    receiveAll({{1}, {2}, {3}});
    EXPECT_EQ(received(), (std::vector<Bytes>{{1}, {2}, {3}}));
}

TEST_F(UDPEchoReadAhead, AStopInARunInsideAnEventEndsItForBoth) {
    inFirstEvent([this](UDPEcho&) {
        inFirstEvent([](UDPEcho& sender) { sender.stop(); });
        loop.runUntil([this] { return delegate.events.size() == 2; });
    });
    receiveAll({{1}, {2}, {3}});
    EXPECT_EQ(received(), (std::vector<Bytes>{{1}, {2}}));
    expectStopped();
}

TEST_F(UDPEchoReadAhead, AHeldRunInsideAnEventHandsOutNothing) {
    inFirstEvent([this](UDPEcho&) {
        const auto hold = loop.holdCallbacks();
        loop.advanceBy(std::chrono::seconds(1));
        EXPECT_EQ(delegate.events.size(), 1U);
    });
    receiveAll({{1}, {2}});
    EXPECT_EQ(received(), (std::vector<Bytes>{{1}, {2}}));
}

} // namespace kx
