#include "tour/Tour.h"

#include <QApplication>
#include <QMenuBar>
#include <QTest>
#include <algorithm>

namespace kx {

namespace {

QPalette darkPalette() {
    QPalette dark(QColor(53, 53, 53), QColor(45, 45, 45));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::AlternateBase, QColor(38, 38, 38));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

// Colours of high contrast, as people with weak sight set them.
QPalette contrastPalette() {
    QPalette contrast(Qt::black);
    for (const QPalette::ColorRole role :
         {QPalette::Window, QPalette::Base, QPalette::AlternateBase, QPalette::Button,
          QPalette::HighlightedText}) {
        contrast.setColor(role, Qt::black);
    }
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText}) {
        contrast.setColor(role, Qt::white);
    }
    contrast.setColor(QPalette::Highlight, Qt::yellow);
    contrast.setColor(QPalette::Link, Qt::yellow);
    return contrast;
}

} // namespace

void Tour::run() {
    if (const QString interface = qEnvironmentVariable("KX_TOUR_INTERFACE"); !interface.isEmpty()) {
        _driver.pickInterface(interface);
    }
    const int units = qEnvironmentVariableIntValue("KX_TOUR_UNITS");
    _driver.discover(units);
    if (units > 0) {
        const int listed = _driver.control<QComboBox>("unitSelectPopUp").count();
        _driver.pickUnit(std::min(1, listed - 1));
        _driver.printParameters();
        _driver.pickParameter(0);
    }
    _driver.takePicture("window");
    _driver.openLog();
    _driver.printLog();
    _driver.takePicture("window-log");
    showOtherLooks();
    showMenus();
}

void Tour::showOtherLooks() {
    QMainWindow& window = _driver.window();
    const QPalette light = QApplication::palette();
    QApplication::setPalette(contrastPalette());
    _driver.takePicture("window-log-contrast");
    QApplication::setPalette(darkPalette());
    _driver.takePicture("window-log-dark");
    _driver.press("logDrawerButton");
    auto& drawer = _driver.control<QWidget>("eventLogDrawer");
    _driver.waitFor("a closed drawer", [&] { return !drawer.isVisible(); });
    _driver.takePicture("window-dark");
    QApplication::setPalette(light);

    const QSize size = window.size();
    window.resize(420, 480);
    _driver.takePicture("window-small");
    window.resize(1200, 700);
    _driver.takePicture("window-large");
    window.resize(size);
}

void Tour::showMenus() {
    QMenuBar& bar = *_driver.window().menuBar();
    for (QAction* action : bar.actions()) {
        _driver.click(bar, bar.actionGeometry(action).center());
        _driver.waitFor("an open menu", [&] { return action->menu()->isVisible(); });
        _driver.takePicture("menu-" + action->menu()->objectName().remove("Menu"), action->menu());
        QTest::keyClick(action->menu(), Qt::Key_Escape);
        _driver.waitFor("a closed menu", [&] { return !action->menu()->isVisible(); });
    }
}

} // namespace kx
