// Measures how long a person waits for the running program to take their input.
//
// A thread of the probe presses a key without a meaning, through the window system, each time a few
// milliseconds after the last key was taken. The probe swallows the key when the program's event
// loop comes to it, so no widget ever sees it. The probe also measures the processor time that the
// main thread used meanwhile. On a machine that does other things, the program itself is to blame
// only for this time.
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
    // The probe sends keys to `window`, which must outlive the probe and stay open.
    explicit ResponsivenessProbe(QWindow& window);

    // Begins to measure. Must be called only once.
    void start();

    // The longest wait of a key, including a key that still waits.
    std::chrono::milliseconds longestGap() const;

    // The most processor time that the main thread used while a key waited.
    std::chrono::milliseconds longestComputing() const;

    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Moment {
        std::chrono::nanoseconds time;
        std::chrono::nanoseconds computed; // processor time of the main thread since its start
    };

    void pressWhenTaken();
    Moment now() const;
    Moment longest() const;

    QWindow& _window;
    const clockid_t _mainThreadClock;
    std::atomic<bool> _waits = false;
    Moment _pressed{}; // belongs to the main thread while a key waits, otherwise to _person
    Moment _longest{};
    std::jthread _person;
};

} // namespace kx
