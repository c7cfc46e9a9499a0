// Save Event Log and Save Session in the real window, with its real panel.

#include "MainWindowFixture.h"
#include "doubles/CaptureReader.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

namespace kx {

namespace {

class SavingTest : public MainWindowTest {
protected:
    static QFileDialog* panel() {
        auto* const found = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        return found != nullptr && found->isVisible() ? found : nullptr;
    }

    static void saveAs(const QString& path) {
        ASSERT_NE(panel(), nullptr);
        auto& name = *panel()->findChild<QLineEdit*>("fileNameEdit");
        name.setText(path);
        QTest::keyClick(&name, Qt::Key_Return);
    }

    QString pathOf(const QString& name) const { return folder.filePath(name); }
    std::string file(const QString& name) { return files[pathOf(name).toStdString()]; }

    QTemporaryDir folder;
};

} // namespace

TEST_F(SavingTest, TheMenuFileHasBothAboveQuit) {
    QStringList items;
    for (const QAction* item : control<QMenu>("fileMenu").actions()) {
        items += item->isSeparator() ? "-" : item->text().remove('&');
    }
    EXPECT_EQ(items.join(" | ").toStdString(),
              "Configure from File… | - | Save Event Log… | Save Session… | - | Quit");
}

TEST_F(SavingTest, ControlSSavesTheEventLog) {
    launchWithTwoUnits();
    press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_NE(panel(), nullptr);
    EXPECT_EQ(panel()->windowTitle(), "Save Event Log");
    EXPECT_EQ(panel()->nameFilters(), QStringList{"Text (*.txt)"});
    saveAs(pathOf("log.txt"));
    EXPECT_EQ(panel(), nullptr);
    EXPECT_EQ(file("log.txt"), controller.shownLog() + "\n");
    EXPECT_EQ(quietLine(), "The event log was saved.");
}

TEST_F(SavingTest, ControlShiftSSavesTheSession) {
    launchWithTwoUnits();
    press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_NE(panel(), nullptr);
    EXPECT_EQ(panel()->windowTitle(), "Save Session");
    EXPECT_EQ(panel()->nameFilters(), QStringList{"Captures (*.pcapng)"});
    saveAs(pathOf("session.pcapng"));
    EXPECT_TRUE(CaptureReader(file("session.pcapng")).isWellFormed);
    EXPECT_EQ(quietLine(), "The session was saved: 0 datagrams.") << "the network is scripted";
}

TEST_F(SavingTest, ANameThatIsTypedWithoutASuffixGetsIt) {
    launch();
    control<QAction>("saveSessionAction").trigger();
    saveAs(pathOf("rack 7"));
    EXPECT_FALSE(file("rack 7.pcapng").empty());
}

TEST_F(SavingTest, AFileThatIsThereIsReplacedOnlyWhenThePersonAgrees) {
    launch();
    QFile(pathOf("log.txt")).open(QIODevice::WriteOnly);
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        if (panel() == nullptr) {
            control<QAction>("saveEventLogAction").trigger();
        }
        bool wasAsked = false;
        QTimer person;
        QObject::connect(&person, &QTimer::timeout, &person, [&] {
            auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (question != nullptr && question->isVisible()) {
                wasAsked = true;
                person.stop();
                question->button(answer)->click();
            }
        });
        person.start(std::chrono::milliseconds(1));
        saveAs(pathOf("log.txt"));
        EXPECT_TRUE(wasAsked);
        EXPECT_EQ(file("log.txt").empty(), answer == QMessageBox::No);
    }
}

TEST_F(SavingTest, UnitsAreHeardWhileThePanelIsOpen) {
    launchWithInterface();
    control<QAction>("saveEventLogAction").trigger();
    receive(SampleUnit().reply());
    runLoop.advanceBy(std::chrono::seconds(2));
    EXPECT_EQ(selected("unitSelectPopUp"), "01 02 03 04 05 06");
    saveAs(pathOf("log.txt"));
    EXPECT_NE(file("log.txt").find("serial:01 02 03 04 05 06"), std::string::npos);
}

TEST_F(SavingTest, TheKeyboardIsBackInTheWindowAfterEscape) {
    launchWithTwoUnits();
    control<QWidget>("interfacePopUp").setFocus();
    control<QAction>("saveSessionAction").trigger();
    ASSERT_NE(panel(), nullptr);
    QTest::keyClick(panel(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    EXPECT_TRUE(control<QWidget>("interfacePopUp").hasFocus());
    EXPECT_TRUE(files.empty());
}

} // namespace kx
