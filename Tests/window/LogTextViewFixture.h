// A log view on the screen with the keyboard focus, and a person's actions on it.

#pragma once

#include "platform/qt/LogTextView.h"
#include "platform/qt/QtText.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>
#include <string>

namespace kx {

inline std::string numberedLines(int count) {
    std::string text;
    for (int line = 0; line < count; ++line) {
        text += (line == 0 ? "line " : "\nline ") + std::to_string(line);
    }
    return text;
}

class LogTextViewTest : public ::testing::Test {
protected:
    LogTextViewTest() {
        view.resize(400, 200);
        view.show();
        view.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&view));
    }

    void showAppended(std::string_view text) {
        view.append(text);
        view.scrollToEnd();
        EXPECT_TRUE(QTest::qWaitFor([this] { return view.showsEnd(); }));
    }

    QPoint pointAt(std::size_t position) const { return view.rectOf(position).center(); }
    QPoint leftOf(std::size_t position) const {
        const QRect place = view.rectOf(position);
        return {place.left() + 1, place.center().y()};
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view, key, modifiers);
    }
    void clickAt(std::size_t position, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, leftOf(position));
    }
    void moveTo(QPoint point) {
        const QPoint global = view.viewport()->mapToGlobal(point);
        QMouseEvent move(QEvent::MouseMove, point, global, Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &move);
    }
    void drag(QPoint from, QPoint to) {
        QTest::mousePress(view.viewport(), Qt::LeftButton, Qt::NoModifier, from);
        moveTo(to);
        QTest::mouseRelease(view.viewport(), Qt::LeftButton, Qt::NoModifier, to);
    }

    std::string selected() const { return utf8Text(view.selectedText()); }
    std::string clipboard() const { return utf8Text(QGuiApplication::clipboard()->text()); }
    int firstRow() const { return view.verticalScrollBar()->value(); }
    int linesInSight() const { return view.linesInSight(); }

    LogTextView view;
};

} // namespace kx
