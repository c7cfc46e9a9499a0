#include "LogWindow.h"

#include "addresses/IPv4Address.h"
#include "addresses/SocketAddressRecord.h"
#include "core/UnitReplies.h"

#include <QApplication>
namespace kx {

LogWindow::LogWindow()
    : _controller(_window.outlets(),
                  {_runLoop, _resolver, _systemCalls, _wallClock, _application, nullptr, {}}) {
    _window.connectActions(_controller);
    _window.show();
    _controller.applicationDidFinishLaunching();
    handleEvents();
}

LogWindow::~LogWindow() {
    _window.disconnectActions();
    _controller.applicationWillTerminate();
}

void LogWindow::openDrawer() {
    _controller.logDrawerButton();
    while (!drawerIs(DrawerState::open)) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void LogWindow::appendLines(int count) {
    for (int line = 0; line < count; ++line) {
        _controller.appendString("\nUDP listener did receive data. Length: 81");
    }
}

void LogWindow::handleEvents() {
    QApplication::processEvents(QEventLoop::AllEvents);
}

void LogWindow::showEnd() {
    while (!drawerIs(DrawerState::closed) && !view().showsEnd()) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    handleEvents();
}

void LogWindow::receive(const Bytes& datagram) {
    _systemCalls.queueDatagram(datagram, dataForAddress(ipForString("192.168.1.10"), 3520));
    _runLoop.makeReadable(_systemCalls.lastDescriptor());
}

bool LogWindow::drawerIs(DrawerState state) {
    return _window.outlets().eventLogDrawer->state() == state;
}

std::vector<Bytes> repliesOfUnits(int count) {
    std::vector<Bytes> replies;
    for (int unit = 0; unit < count; ++unit) {
        SampleUnit sample;
        sample.serial[4] = static_cast<std::uint8_t>(unit >> 8);
        sample.serial[5] = static_cast<std::uint8_t>(unit);
        replies.push_back(sample.reply());
    }
    return replies;
}

} // namespace kx
