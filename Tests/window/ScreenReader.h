// Stands for a screen reader. While it exists the toolkit announces changes to a function of the
// test. Only the platform plugin's own interface can switch this on.

#pragma once

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <QAccessible>

namespace kx {

class ScreenReader {
public:
    explicit ScreenReader(QAccessible::UpdateHandler hears)
        : _before(QAccessible::installUpdateHandler(hears)) {
        platform().setActive(true);
    }
    ~ScreenReader() {
        platform().setActive(false);
        QAccessible::installUpdateHandler(_before);
    }
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

private:
    static QPlatformAccessibility& platform() {
        return *QGuiApplicationPrivate::platformIntegration()->accessibility();
    }

    QAccessible::UpdateHandler _before;
};

} // namespace kx
