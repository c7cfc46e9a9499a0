#include "ShownWindow.h"

#include <QApplication>
#include <optional>

namespace kx {

// Knows the text whose end the view painted last.
class ShownWindow::PaintsOfEnd final : public QObject {
public:
    explicit PaintsOfEnd(const LogTextView& view)
        : _view(view) {
        view.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            _painted = _view.showsEnd() ? std::optional(_view.text().size()) : std::nullopt;
        }
        return false;
    }

    bool areUpToDate() const { return _painted == _view.text().size(); }

private:
    const LogTextView& _view;
    std::optional<std::size_t> _painted; // size of that text; absent when the end was out of sight
};

ShownWindow::ShownWindow(RunLoop& runLoop, DatagramSystemCalls& systemCalls,
                         ReceiveBufferControl* receiveBuffers)
    : _controller(_window.outlets(), {.runLoop = runLoop,
                                      .hostResolver = _resolver,
                                      .systemCalls = systemCalls,
                                      .wallClock = _wallClock,
                                      .application = _application,
                                      .networkInterfaces = nullptr,
                                      .receiveBuffers = receiveBuffers})
    , _paintsOfEnd(std::make_unique<PaintsOfEnd>(view())) {
    _window.connectActions(_controller);
    _window.show();
    _controller.applicationDidFinishLaunching();
    handleEvents();
}

ShownWindow::~ShownWindow() {
    _window.disconnectActions();
    _controller.applicationWillTerminate();
}

void ShownWindow::openDrawer() {
    _controller.logDrawerButton();
    while (!drawerIs(DrawerState::open)) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

void ShownWindow::appendLines(int count) {
    for (int line = 0; line < count; ++line) {
        _controller.appendString("\nUDP listener did receive data. Length: 81");
    }
}

void ShownWindow::handleEvents() {
    QApplication::processEvents(QEventLoop::AllEvents);
}

void ShownWindow::showEnd() {
    while (!drawerIs(DrawerState::closed) && !_paintsOfEnd->areUpToDate()) {
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

bool ShownWindow::drawerIs(DrawerState state) {
    return _window.outlets().eventLogDrawer->state() == state;
}

} // namespace kx
