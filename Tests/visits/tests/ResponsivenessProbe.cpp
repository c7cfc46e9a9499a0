#include "tests/ResponsivenessProbe.h"

#include <pthread.h>
#include <qpa/qwindowsysteminterface.h>

#include <QCoreApplication>
#include <QInputDevice>
#include <QKeyEvent>
#include <algorithm>

namespace kx {

namespace {

constexpr std::chrono::milliseconds betweenKeys{5};
constexpr int meaninglessKey = Qt::Key_F35;

clockid_t clockOfThisThread() {
    clockid_t clock = CLOCK_THREAD_CPUTIME_ID;
    ::pthread_getcpuclockid(::pthread_self(), &clock);
    return clock;
}

std::chrono::nanoseconds timeOf(clockid_t clock) {
    timespec time{};
    ::clock_gettime(clock, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

} // namespace

ResponsivenessProbe::ResponsivenessProbe(QWindow& window)
    : _window(window)
    , _mainThreadClock(clockOfThisThread()) {}

void ResponsivenessProbe::start() {
    QInputDevice::primaryKeyboard(); // made here first, because the other thread must not make it
    QCoreApplication::instance()->installEventFilter(this);
    _person = std::jthread([this](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            pressWhenTaken();
            std::this_thread::sleep_for(betweenKeys);
        }
    });
}

ResponsivenessProbe::Moment ResponsivenessProbe::now() const {
    return {timeOf(CLOCK_MONOTONIC), timeOf(_mainThreadClock)};
}

void ResponsivenessProbe::pressWhenTaken() {
    if (_waits) {
        return;
    }
    _pressed = now();
    _waits = true;
    QWindowSystemInterface::handleKeyEvent<QWindowSystemInterface::AsynchronousDelivery>(
        &_window, QEvent::KeyRelease, meaninglessKey, Qt::NoModifier);
}

ResponsivenessProbe::Moment ResponsivenessProbe::longest() const {
    if (!_waits) {
        return _longest;
    }
    const Moment present = now();
    return {std::max(_longest.time, present.time - _pressed.time),
            std::max(_longest.computed, present.computed - _pressed.computed)};
}

std::chrono::milliseconds ResponsivenessProbe::longestGap() const {
    return std::chrono::ceil<std::chrono::milliseconds>(longest().time);
}

std::chrono::milliseconds ResponsivenessProbe::longestComputing() const {
    return std::chrono::ceil<std::chrono::milliseconds>(longest().computed);
}

bool ResponsivenessProbe::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() != QEvent::KeyRelease ||
        static_cast<QKeyEvent*>(event)->key() != meaninglessKey) {
        return QObject::eventFilter(receiver, event);
    }
    _longest = longest();
    _waits = false;
    return true;
}

} // namespace kx
