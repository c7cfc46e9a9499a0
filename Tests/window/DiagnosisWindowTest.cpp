// The link beside the line below Discover, and the window with the checks that it opens.

#include "platform/qt/DiagnosisWindow.h"

#include "Looks.h"
#include "MainWindowFixture.h"
#include "core/conversation/DiagnosisSamples.h"
#include "doubles/ScriptedDiagnosticSockets.h"
#include "doubles/ScriptedHostDiagnostics.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTableWidget>

namespace kx {

namespace {

class OneInterface final : public HostInterfaces {
public:
    std::vector<HostInterface> list() override { return {interface}; }

    HostInterface interface = sampleInterface();
};

class DiagnosisWindowTest : public MainWindowTest {
protected:
    DiagnosisWindowTest() {
        window.setDiagnosis(&diagnosis, [this] { ++helps; });
    }
    ~DiagnosisWindowTest() override { window.setDiagnosis(nullptr, {}); }

    void say(const char* text) { window.outlets().discoveryLine->setStringValue(text); }

    // The window with the checks; null while there is none to see.
    static QWidget* details() {
        for (QWidget* const each : QApplication::topLevelWidgets()) {
            if (each->objectName() == "diagnosisWindow" && each->isVisible()) {
                return each;
            }
        }
        return nullptr;
    }

    template<class Part>
    static Part& part(const char* name) {
        return *details()->findChild<Part*>(name);
    }

    // The first row of pixels with a letter in it.
    static int firstRowOfText(QWidget& widget) {
        const QImage picture = widget.grab().toImage();
        const QColor background = backgroundOf(picture);
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (contrastOf(picture.pixelColor(x, y), background) > 3) {
                    return y;
                }
            }
        }
        return -1;
    }

    void openDetails() {
        say("No unit answered.");
        click("detailsButton");
    }

    // A listener asks everybody, and does not even hear itself.
    void listenInVain() {
        systemCalls.addLink("kx0", sampleLink);
        const int listener = witness.socket();
        witness.bind(listener, dataForAddress(0, 3520));
        witness.sendToByLink(listener, textBytes("^^IdX"), dataForAddress(0xC0A801FFU, 3520),
                             sampleLink);
    }

    int helps = 0;
    ScriptedDiagnosticSockets sockets;
    ScriptedHostDiagnostics host;
    OneInterface hostInterfaces;
    ListenerWitness witness{systemCalls};
    KXDiagnosis diagnosis{{.runLoop = runLoop,
                           .now = [this] { return runLoop.now(); },
                           .witness = witness,
                           .systemCalls = systemCalls,
                           .sockets = sockets,
                           .host = host,
                           .neighbours = neighbours,
                           .interfaces = hostInterfaces}};
};

class DiagnosisScreenFit : public DiagnosisWindowTest {}; // runs on small screens too

} // namespace

TEST_F(DiagnosisWindowTest, TheLinkStandsBesideTheLineWhateverTheLineSays) {
    launchWithTwoUnits();
    const auto& link = control<QPushButton>("detailsButton");
    const auto& line = control<QLabel>("discoveryLine");
    for (const auto* const sentence : {"No unit answered.", "2 units answered."}) {
        say(sentence);
        EXPECT_TRUE(link.isVisible());
        EXPECT_EQ(link.y(), line.y());
        EXPECT_GT(link.x(), line.geometry().right());
    }
}

TEST_F(DiagnosisWindowTest, TheLinkStandsOnTheBaselineOfTheLine) {
    launchWithTwoUnits();
    auto& link = control<QPushButton>("detailsButton");
    auto& line = control<QLabel>("discoveryLine");
    say(link.text().toStdString().c_str());
    EXPECT_EQ(link.y() + firstRowOfText(link), line.y() + firstRowOfText(line));
}

TEST_F(DiagnosisWindowTest, TheLinkShowsThatItHasTheKeyboard) {
    launchWithTwoUnits();
    auto& link = control<QPushButton>("detailsButton");
    control<QPushButton>("discoverButton").setFocus();
    const QImage without = link.grab().toImage();
    press(Qt::Key_Tab);
    ASSERT_TRUE(link.hasFocus());
    EXPECT_NE(link.grab().toImage(), without);
}

TEST_F(DiagnosisWindowTest, WithoutADiagnosisThereIsNoLink) {
    window.setDiagnosis(nullptr, {});
    launchWithTwoUnits();
    say("No unit answered.");
    EXPECT_FALSE(control<QPushButton>("detailsButton").isVisible());
}

TEST_F(DiagnosisWindowTest, NothingIsAskedBeforeItIsOpened) {
    launchWithTwoUnits();
    say("No unit answered.");
    EXPECT_TRUE(sockets.sent.empty());
}

TEST_F(DiagnosisWindowTest, ItAsksWhenItOpensAndAgainByItsButton) {
    launchWithTwoUnits();
    const std::string logBefore = controller.eventLog();
    openDetails();
    ASSERT_NE(details(), nullptr);
    EXPECT_FALSE(part<QPushButton>("askAgainButton").isEnabled());
    runLoop.advanceBy(std::chrono::seconds(1));
    EXPECT_TRUE(part<QPushButton>("askAgainButton").isEnabled());
    const auto& table = part<QTableWidget>("diagnosisChecks");
    ASSERT_EQ(table.rowCount(), 14);
    EXPECT_EQ(table.item(0, 0)->text(), "Link");
    EXPECT_EQ(table.item(0, 1)->text(), "✓ Fine");
    const auto sent = sockets.sent.size();
    EXPECT_GT(sent, 0U);
    QTest::mouseClick(&part<QPushButton>("askAgainButton"), Qt::LeftButton);
    runLoop.advanceBy(std::chrono::seconds(1));
    EXPECT_EQ(sockets.sent.size(), 2 * sent);
    EXPECT_EQ(controller.eventLog(), logBefore);
}

TEST_F(DiagnosisWindowTest, AFailedCheckHasASignAWordAndAdvice) {
    launch();
    hostInterfaces.interface.isRunning = false;
    openDetails();
    runLoop.advanceBy(std::chrono::seconds(1));
    const auto& table = part<QTableWidget>("diagnosisChecks");
    EXPECT_EQ(table.item(0, 1)->text(), "✗ Fails");
    EXPECT_EQ(table.item(0, 2)->text(), "The interface kx0 has no link.");
    EXPECT_TRUE(table.item(0, 3)->text().startsWith("Plug in the cable"));
    EXPECT_EQ(part<QLabel>("diagnosisHeading").text(), "The interface kx0 has no link.");
    EXPECT_TRUE(table.item(0, 0)->font().bold());
    EXPECT_FALSE(table.isColumnHidden(3));
}

TEST_F(DiagnosisWindowTest, WhereThereIsNothingToDoWhatWasSeenHasTheRoom) {
    launchWithTwoUnits();
    openDetails();
    runLoop.advanceBy(std::chrono::seconds(1));
    const auto& table = part<QTableWidget>("diagnosisChecks");
    EXPECT_TRUE(table.isColumnHidden(3)) << part<QLabel>("diagnosisHeading").text().toStdString();
    EXPECT_FALSE(table.item(0, 0)->font().bold());
}

TEST_F(DiagnosisWindowTest, WhatThereIsToDoIsInSightInALowWindowAndTheKeyboardBeginsThere) {
    window.show();
    listenInVain();
    openDetails();
    details()->resize(600, 220);
    runLoop.advanceBy(std::chrono::seconds(1));
    const auto& table = part<QTableWidget>("diagnosisChecks");
    const int row = table.currentRow();
    ASSERT_GE(row, 0);
    EXPECT_EQ(table.item(row, 0)->text(), "Own broadcast");
    EXPECT_FALSE(table.item(row, 3)->text().isEmpty());
    EXPECT_TRUE(table.selectedItems().isEmpty());
    const QRect place = table.visualItemRect(table.item(row, 0));
    EXPECT_TRUE(table.viewport()->rect().contains(place));
}

TEST_F(DiagnosisWindowTest, TheKeyboardStaysAtAskAgainWhileItAsks) {
    launchWithTwoUnits();
    openDetails();
    runLoop.advanceBy(std::chrono::seconds(1));
    ASSERT_TRUE(QTest::qWaitForWindowActive(details()));
    auto& button = part<QPushButton>("askAgainButton");
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_Space);
    EXPECT_FALSE(button.isEnabled());
    runLoop.advanceBy(std::chrono::seconds(1));
    EXPECT_TRUE(button.hasFocus());
    QTest::keyClick(&button, Qt::Key_Space);
    part<QTableWidget>("diagnosisChecks").setFocus();
    runLoop.advanceBy(std::chrono::seconds(1));
    EXPECT_FALSE(button.hasFocus()) << "a person has gone elsewhere meanwhile";
}

TEST_F(DiagnosisWindowTest, ItIsCopiedAsText) {
    launchWithTwoUnits();
    openDetails();
    EXPECT_FALSE(part<QPushButton>("copyChecksButton").isEnabled()) << "there is nothing yet";
    runLoop.advanceBy(std::chrono::seconds(1));
    QTest::mouseClick(&part<QPushButton>("copyChecksButton"), Qt::LeftButton);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), diagnosis.text());
    EXPECT_TRUE(QApplication::clipboard()->text().contains("Link\tFine\t"));
    EXPECT_TRUE(part<QLabel>("diagnosisHeading")
                    .textInteractionFlags()
                    .testFlag(Qt::TextSelectableByMouse));
}

TEST_F(DiagnosisWindowTest, HelpOpensAndEscapeClosesAndNothingGoesOn) {
    launchWithTwoUnits();
    openDetails();
    QTest::mouseClick(&part<QPushButton>("detailsHelpButton"), Qt::LeftButton);
    EXPECT_EQ(helps, 1);
    ASSERT_TRUE(QTest::qWaitForWindowActive(details()));
    QTest::keyClick(details(), Qt::Key_Escape);
    EXPECT_EQ(details(), nullptr);
    EXPECT_FALSE(diagnosis.isAsking());
    const auto sent = sockets.sent.size();
    runLoop.advanceBy(std::chrono::seconds(2));
    EXPECT_EQ(sockets.sent.size(), sent);
}

TEST_F(DiagnosisWindowTest, TheMainWindowStaysUsable) {
    launchWithTwoUnits();
    openDetails();
    EXPECT_FALSE(details()->isModal());
    click("reloadButton");
    runLoop.advanceBy(std::chrono::seconds(1));
    EXPECT_NE(details(), nullptr);
}

TEST_F(DiagnosisWindowTest, ItIsReachedByTheKeyboard) {
    launchWithTwoUnits();
    say("No unit answered.");
    control<QPushButton>("discoverButton").setFocus();
    press(Qt::Key_Tab);
    EXPECT_TRUE(control<QPushButton>("detailsButton").hasFocus());
    press(Qt::Key_Return);
    EXPECT_NE(details(), nullptr);
}

TEST_F(DiagnosisScreenFit, TheWindowAndItsFrameAreOnTheScreen) {
    launchWithTwoUnits();
    openDetails();
    ASSERT_TRUE(QTest::qWaitForWindowActive(details()));
    QTest::qWait(10);
    const QRect screen = details()->screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(details()->frameGeometry())) << details()->frameGeometry().height();
    EXPECT_GT(details()->frameGeometry().height(), details()->height());
}

} // namespace kx
