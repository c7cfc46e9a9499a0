#include "driver/Visit.h"

#include <QCoreApplication>
#include <QTimer>
#include <cstdio>
#include <memory>
#include <utility>

namespace kx {

namespace {

QtMessageHandler handlerBefore = nullptr;

// At each picture the offscreen platform reports a function that it lacks. A visit does not show
// this.
void dropWordsOfThePlatform(QtMsgType type, const QMessageLogContext& context,
                            const QString& text) {
    if (!text.startsWith("This plugin does not support")) {
        handlerBefore(type, context, text);
    }
}

void run(const Visit& visit) {
    WindowDriver driver;
    try {
        driver.findWindow();
        visit(driver);
    } catch (const VisitFailure& disappointment) {
        std::fprintf(stderr, "kxtour: %s\n", qPrintable(disappointment.text));
        QCoreApplication::exit(1);
        return;
    }
    print("Tour complete.");
    if (!driver.isLeftOpen()) {
        driver.window().close();
    }
}

} // namespace

QObject* beginVisit(Visit visit) {
    handlerBefore = qInstallMessageHandler(dropWordsOfThePlatform);
    auto start = std::make_unique<QTimer>();
    QObject::connect(start.get(), &QTimer::timeout, start.get(),
                     [visit = std::move(visit)] { run(visit); });
    start->setSingleShot(true);
    start->start(0);
    return start.release();
}

} // namespace kx
