// The window Configure from File… over units and files of the test.

#pragma once

#include "core/TableRunFixture.h"
#include "platform/qt/FromFileModel.h"
#include "platform/qt/FromFileTable.h"
#include "platform/qt/FromFileWindow.h"
#include "platform/qt/MainWindow.h"
#include "platform/qt/QtText.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

namespace kx {

class FromFileWindowTest : public TableRunTest {
protected:
    void show() {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    // Three units, the third of which does not answer.
    void showPlan() {
        addUnits(1, 2);
        show();
        openAndAsk(table(1, 3));
    }

    template<class Control>
    Control& control(const char* objectName) {
        return *window.findChild<Control*>(objectName);
    }
    QPushButton& button(const char* name) { return control<QPushButton>(name); }
    FromFileTable& shownTable() { return control<FromFileTable>("fromFileTable"); }
    QAbstractItemModel& model() { return *shownTable().model(); }
    std::string label(const char* name) { return utf8Text(control<QLabel>(name).text()); }
    QString cell(int row, PlanColumn column, int role = Qt::DisplayRole) {
        return model().index(row, static_cast<int>(column)).data(role).toString();
    }

    static QFileDialog* panel() {
        return qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    }
    static void choose(const std::string& path) {
        auto& name = *panel()->findChild<QLineEdit*>("fileNameEdit");
        name.setText(qtText(path));
        QTest::keyClick(&name, Qt::Key_Return);
    }
    static QMessageBox* question() {
        auto* const found = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        return found != nullptr && found->isVisible() ? found : nullptr;
    }
    static void answer(QMessageBox::ButtonRole role) {
        for (QAbstractButton* const each : question()->buttons()) {
            if (question()->buttonRole(each) == role) {
                each->click();
                return;
            }
        }
    }

    // Sends a key as the window system does it, so that shortcuts take part.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(window.windowHandle(), key, modifiers);
    }

    int helps = 0;
    FromFileWindow window{tableRun, [this] { ++helps; }};
};

} // namespace kx
