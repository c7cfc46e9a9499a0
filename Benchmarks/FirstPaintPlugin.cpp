// A Qt generic plugin that writes the time of the first paint of a window to standard output, as
// nanoseconds of the monotonic clock, and ends the program.

#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>
#include <chrono>
#include <cstdio>

namespace kx {

class FirstPaint final : public QObject {
    Q_OBJECT

public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const widget = qobject_cast<QWidget*>(watched);
        if (event->type() == QEvent::Paint && widget != nullptr && widget->isWindow()) {
            qApp->removeEventFilter(this);
            // After the paint itself has been handled.
            QTimer::singleShot(0, this, [] {
                const auto now = std::chrono::steady_clock::now().time_since_epoch();
                std::printf("%lld\n",
                            static_cast<long long>(
                                std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
                std::fflush(stdout);
                QApplication::quit();
            });
        }
        return false;
    }
};

class FirstPaintPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "FirstPaintPlugin.json")

public:
    QObject* create(const QString& /*name*/, const QString& /*specification*/) override {
        auto* const firstPaint = new FirstPaint;
        // The application object is not complete yet while plugins are made.
        QTimer::singleShot(0, firstPaint, [firstPaint] { qApp->installEventFilter(firstPaint); });
        return firstPaint;
    }
};

} // namespace kx

#include "FirstPaintPlugin.moc"
