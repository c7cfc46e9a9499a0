// How long a person waits for the running program to take what they do.
//
// A thread of the probe's own presses a key that means nothing, through the window system, each
// time a few milliseconds after the last one was taken. It is swallowed when the program's event
// loop comes to it, so that no widget ever sees it. The processor's time that the main thread took
// meanwhile is measured, too: on a machine that does other things it is what the program itself is
// to blame for.
//
// Belongs to the main thread.

#pragma once

#include <QObject>
#include <QWindow>
#include <atomic>
#include <chrono>
#include <ctime>
#include <thread>

namespace kx {

class ResponsivenessProbe final : public QObject {
    Q_OBJECT

public:
    // Keys go to `window`, which must outlive the probe and stay open.
    explicit ResponsivenessProbe(QWindow& window);

    // Begins to measure. Once.
    void start();

    // The longest that a key has waited, one that waits still included.
    std::chrono::milliseconds longestGap() const;

    // The most that the main thread has computed while a key waited.
    std::chrono::milliseconds longestComputing() const;

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Moment {
        std::chrono::nanoseconds time;
        std::chrono::nanoseconds computed; // by the main thread, since it began
    };

    void pressWhenTaken();
    Moment now() const;
    Moment longest() const;

    QWindow& _window;
    const clockid_t _mainThreadClock;
    std::atomic<bool> _waits = false;
    Moment _pressed{}; // belongs to the main thread while a key waits, else to the other one
    Moment _longest{};
    std::jthread _person;
};

} // namespace kx
