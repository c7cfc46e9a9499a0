#include "TourPlugin.h"

#include "Tour.h"

#include <QTimer>
#include <memory>

namespace kx {

namespace {

QtMessageHandler handlerBefore = nullptr;

// The offscreen platform says at each picture what it cannot do; that is no news of the tour.
void dropWordsOfThePlatform(QtMsgType type, const QMessageLogContext& context,
                            const QString& text) {
    if (!text.startsWith("This plugin does not support")) {
        handlerBefore(type, context, text);
    }
}

} // namespace

QObject* TourPlugin::create(const QString& /*name*/, const QString& /*specification*/) {
    handlerBefore = qInstallMessageHandler(dropWordsOfThePlatform);
    auto start = std::make_unique<QTimer>();
    connect(start.get(), &QTimer::timeout, start.get(), [] { Tour().run(); });
    start->setSingleShot(true);
    start->start(0);
    return start.release();
}

} // namespace kx
