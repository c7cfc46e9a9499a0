#include "TourPlugin.h"

#include "Siege.h"
#include "Soak.h"
#include "Steps.h"
#include "Tour.h"
#include "WindowDriver.h"

#include <QCoreApplication>
#include <QHash>
#include <QTimer>
#include <cstdio>
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

template<class Visit>
void visit() {
    WindowDriver driver;
    try {
        driver.findWindow();
        Visit(driver).run();
    } catch (const Disappointment& disappointment) {
        std::fprintf(stderr, "kxtour: %s\n", qPrintable(disappointment.text));
        QCoreApplication::exit(1);
        return;
    }
    print("Tour complete.");
    if (!driver.isLeftOpen()) {
        driver.window().close();
    }
}

using Visit = void (*)();
const QHash<QString, Visit> visits{{"kxsiege", visit<Siege>},
                                   {"kxsoak", visit<Soak>},
                                   {"kxsteps", visit<Steps>},
                                   {"kxtour", visit<Tour>}};

} // namespace

QObject* TourPlugin::create(const QString& name, const QString& /*specification*/) {
    handlerBefore = qInstallMessageHandler(dropWordsOfThePlatform);
    auto start = std::make_unique<QTimer>();
    connect(start.get(), &QTimer::timeout, start.get(), visits.value(name));
    start->setSingleShot(true);
    start->start(0);
    return start.release();
}

} // namespace kx
