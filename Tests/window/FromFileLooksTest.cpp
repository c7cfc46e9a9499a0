// The window Configure from File… in every palette, in every language and on every screen.

#include "FromFileFixture.h"
#include "InLanguage.h"
#include "Looks.h"
#include "doubles/MarkedLocalizedText.h"

#include <QDir>
#include <QHeaderView>
#include <QScreen>

namespace kx {

namespace {

constexpr double readableText = 4.5;

// Saves a picture when KX_PICTURES names a folder.
void takePictureOf(QWidget& widget, const QString& name) {
    const QString pictures = qEnvironmentVariable("KX_PICTURES");
    if (!pictures.isEmpty()) {
        const QString scale = QString::number(widget.devicePixelRatioF() * 100);
        ASSERT_TRUE(QDir().mkpath(pictures));
        ASSERT_TRUE(widget.grab().save(
            QDir(pictures).filePath("from-file-" + name + '-' + scale + ".png")));
    }
}

class FromFileColours : public FromFileWindowTest, public ::testing::WithParamInterface<Looks> {
private:
    UsedPalette _used{GetParam()};
};

// The language is there before the window is made.
class FromFileSpeaking : private InLanguage, public FromFileWindowTest {
protected:
    explicit FromFileSpeaking(const std::string& language)
        : InLanguage(language) {}
    using InLanguage::language;
};

class FromFileLanguagesTest : public ::testing::WithParamInterface<std::string>,
                              public FromFileSpeaking {
protected:
    FromFileLanguagesTest()
        : FromFileSpeaking(GetParam()) {}

    void expectRoomForTexts() {
        for (const auto* each : window.findChildren<QLabel*>()) {
            if (each->isVisible() && !each->wordWrap() && each->objectName() != "fromFileName") {
                EXPECT_GE(each->width(), each->sizeHint().width()) << utf8Text(each->text());
            }
        }
        for (const auto* each : window.findChildren<QAbstractButton*>()) {
            if (each->isVisible() && !each->text().isEmpty()) {
                EXPECT_GE(each->width(), each->sizeHint().width()) << utf8Text(each->text());
                EXPECT_GE(each->height(), each->sizeHint().height()) << utf8Text(each->text());
            }
        }
        for (int column = 0; column + 1 < model().columnCount(); ++column) {
            EXPECT_GE(shownTable().columnWidth(column),
                      shownTable().horizontalHeader()->sectionSizeHint(column));
            for (int row = 0; row < model().rowCount(); ++row) {
                EXPECT_GE(shownTable().columnWidth(column),
                          shownTable().sizeHintForIndex(model().index(row, column)).width())
                    << row << ' ' << column;
            }
        }
    }
};

class WithMarksInFromFile {
private:
    MarkedLocalizedText _texts;
};

class FromFileMarkedTest : private WithMarksInFromFile, public FromFileWindowTest {};

class FromFileScreenFit : public FromFileWindowTest {};

} // namespace

TEST_P(FromFileColours, EveryTextStandsOut) {
    showPlan();
    shownTable().selectRow(4);
    QTest::qWait(50);
    takePictureOf(window, nameOf(GetParam()));
    for (const char* name :
         {"fromFileName", "fromFileHeading", "fromFileReason", "fromFileJournal",
          "fromFileKeepGoingBox", "fromFileChooseButton", "fromFileAskButton",
          "fromFileReportButton", "fromFileCloseButton", "fromFileInterfacePopUp"}) {
        EXPECT_GE(contrastOfTextIn(control<QWidget>(name)), readableText) << name;
    }
    shownTable().clearSelection(); // the colours of a selection are the desktop's
    for (int row = 0; row < model().rowCount(); ++row) {
        const QRect place =
            shownTable().visualRect(model().index(row, static_cast<int>(PlanColumn::state)));
        EXPECT_GE(contrastOfTextIn(*shownTable().viewport(), place), readableText) << row;
    }
    tableRun.setKeepsGoing(true);
    tableRun.apply();
    passUntil([this] { return tableRun.progress().ended > 0; });
    runLoop.advanceBy(100ms);
    QTest::qWait(50);
    takePictureOf(window, QString(nameOf(GetParam())) + "-applying");
    settle();
    QTest::qWait(50);
    takePictureOf(window, QString(nameOf(GetParam())) + "-ended");
}

INSTANTIATE_TEST_SUITE_P(All, FromFileColours, ::testing::ValuesIn(allLooks),
                         [](const auto& looks) { return nameOf(looks.param); });

TEST_P(FromFileLanguagesTest, NothingIsCutOff) {
    show();
    QTest::qWait(10);
    takePictureOf(window, language() + "-empty");
    addUnits(1, 2);
    openAndAsk(table(1, 3));
    QTest::qWait(10);
    expectRoomForTexts();
    takePictureOf(window, language() + "-plan");
    openAndAsk(file("rack.csv", "serial,unit-id\n4.7E+11,A\n"));
    QTest::qWait(10);
    expectRoomForTexts();
    takePictureOf(window, language() + "-faulty");
}

INSTANTIATE_TEST_SUITE_P(All, FromFileLanguagesTest,
                         ::testing::Values("en", "de", "es", "fr", "ja"),
                         [](const auto& language) { return language.param; });

TEST_F(FromFileMarkedTest, EveryTextComesFromTheCatalogues) {
    const auto isMarked = [](const QString& text) { return text.isEmpty() || text.contains('<'); };
    const auto expectAllMarked = [&] {
        for (const auto* each : window.findChildren<QLabel*>()) {
            EXPECT_TRUE(isMarked(each->text()) || each->objectName() == "fromFileName")
                << utf8Text(each->text());
        }
        for (const auto* each : window.findChildren<QAbstractButton*>()) {
            EXPECT_TRUE(isMarked(each->text())) << utf8Text(each->text());
            EXPECT_TRUE(isMarked(each->toolTip())) << utf8Text(each->toolTip());
        }
        for (const auto* each : window.findChildren<QWidget*>()) {
            EXPECT_TRUE(isMarked(each->accessibleName()) || each->objectName() == "fromFileName")
                << utf8Text(each->accessibleName());
        }
        for (int row = 0; row < model().rowCount(); ++row) {
            EXPECT_TRUE(isMarked(cell(row, PlanColumn::state)));
            EXPECT_TRUE(isMarked(cell(row, PlanColumn::reason)));
        }
        EXPECT_TRUE(isMarked(shownTable().placeholderText()));
    };
    EXPECT_TRUE(isMarked(window.windowTitle()));
    expectAllMarked();
    showPlan();
    expectAllMarked();
    for (int column = 0; column < model().columnCount(); ++column) {
        EXPECT_TRUE(isMarked(model().headerData(column, Qt::Horizontal).toString()));
    }
    tableRun.setKeepsGoing(true);
    applyAndWait();
    expectAllMarked();
    openAndAsk(file("rack.csv", "serial,unit-id\n4.7E+11,A\n"));
    expectAllMarked();
}

TEST_F(FromFileScreenFit, TheWindowAndItsFrameAreOnTheScreen) {
    showPlan();
    QTest::qWait(10);
    takePictureOf(window, "screen");
    const QRect screen = window.screen()->availableGeometry();
    EXPECT_TRUE(screen.contains(window.frameGeometry()))
        << window.frameGeometry().width() << " x " << window.frameGeometry().height();
    EXPECT_GE(shownTable().viewport()->height(),
              3 * shownTable().verticalHeader()->defaultSectionSize())
        << "some lines are in sight";
}

} // namespace kx
