// The window of all units in every palette and every language.

#include "AllUnitsFixture.h"
#include "InLanguage.h"
#include "Looks.h"
#include "doubles/MarkedLocalizedText.h"

#include <QDir>
#include <QHeaderView>
#include <QPushButton>

namespace kx {

namespace {

constexpr double readable = 4.5;

// Saves a picture when KX_PICTURES names a folder.
void takePicture(QWidget& widget, const QString& name) {
    const QString folder = qEnvironmentVariable("KX_PICTURES");
    if (!folder.isEmpty()) {
        const QString scale = QString::number(widget.devicePixelRatioF() * 100);
        ASSERT_TRUE(QDir().mkpath(folder));
        ASSERT_TRUE(
            widget.grab().save(QDir(folder).filePath("all-units-" + name + '-' + scale + ".png")));
    }
}

class AllUnitsColours : public AllUnitsWindowTest, public ::testing::WithParamInterface<Looks> {
private:
    UsedPalette _used{GetParam()};
};

// The language is there before the window is made.
class AllUnitsSpeaking : private InLanguage, public AllUnitsWindowTest {
protected:
    explicit AllUnitsSpeaking(const std::string& language)
        : InLanguage(language) {}
    using InLanguage::language;
};

class AllUnitsLanguagesTest : public ::testing::WithParamInterface<std::string>,
                              public AllUnitsSpeaking {
protected:
    AllUnitsLanguagesTest()
        : AllUnitsSpeaking(GetParam()) {}
};

class WithMarks {
private:
    MarkedLocalizedText _texts;
};

class AllUnitsMarkedTest : private WithMarks, public AllUnitsWindowTest {};

} // namespace

TEST_P(AllUnitsColours, EveryTextStandsOut) {
    hearFour();
    open();
    QTest::qWait(50);
    takePicture(window, nameOf(GetParam()));
    for (const char* name : {"allUnitsCount", "allUnitsFilter", "allUnitsColumnsButton",
                             "allUnitsExportButton", "allUnitsHelpButton"}) {
        EXPECT_GE(contrastOfTextIn(control<QWidget>(name)), readable) << name;
    }
    for (int row = 0; row < model().rowCount(); ++row) {
        const QRect place = table().visualRect(cell(row, UnitColumn::serialNumber));
        EXPECT_GE(contrastOfTextIn(*table().viewport(), place), readable) << row;
    }
    typeFilter("nowhere");
    EXPECT_GE(contrastOfTextIn(*table().viewport()), readable);
}

INSTANTIATE_TEST_SUITE_P(All, AllUnitsColours, ::testing::ValuesIn(allLooks),
                         [](const auto& looks) { return nameOf(looks.param); });

TEST_P(AllUnitsLanguagesTest, NoTextIsCutOff) {
    hearFour();
    open();
    QTest::qWait(50);
    takePicture(window, language());
    for (const auto* label : window.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->wordWrap()) {
            EXPECT_GE(label->width(), label->sizeHint().width()) << utf8Text(label->text());
        }
    }
    for (const auto* button : window.findChildren<QPushButton*>()) {
        EXPECT_GE(button->width(), button->sizeHint().width()) << utf8Text(button->text());
    }
    for (std::size_t column = 0; column < unitColumnCount; ++column) {
        const auto index = static_cast<int>(column);
        EXPECT_GE(table().columnWidth(index), table().horizontalHeader()->sectionSizeHint(index));
        for (int row = 0; row < model().rowCount(); ++row) {
            if (static_cast<UnitColumn>(column) != UnitColumn::lastHeard) {
                EXPECT_GE(table().columnWidth(index),
                          table().sizeHintForIndex(model().index(row, index)).width())
                    << column;
            }
        }
    }
    EXPECT_GE(filter().width(),
              filter().fontMetrics().horizontalAdvance(filter().placeholderText()));
}

INSTANTIATE_TEST_SUITE_P(All, AllUnitsLanguagesTest,
                         ::testing::Values("en", "de", "es", "fr", "ja"),
                         [](const auto& language) { return language.param; });

TEST_F(AllUnitsMarkedTest, EveryTextComesFromTheCatalogues) {
    hearFour();
    open();
    const auto isMarked = [](const QString& text) { return text.isEmpty() || text.contains('<'); };
    EXPECT_TRUE(isMarked(window.windowTitle()));
    EXPECT_TRUE(isMarked(table().accessibleName()));
    EXPECT_TRUE(isMarked(filter().placeholderText()));
    for (const auto* label : window.findChildren<QLabel*>()) {
        EXPECT_TRUE(isMarked(label->text())) << utf8Text(label->text());
    }
    for (const auto* button : window.findChildren<QPushButton*>()) {
        EXPECT_TRUE(isMarked(button->text())) << utf8Text(button->text());
    }
    emit table().columnMenu().aboutToShow();
    for (const auto* action : table().columnMenu().actions() + table().actions()) {
        EXPECT_TRUE(isMarked(action->text())) << utf8Text(action->text());
    }
    for (int row = 0; row < model().rowCount(); ++row) {
        const QModelIndex state = cell(row, UnitColumn::state);
        EXPECT_TRUE(isMarked(state.data().toString()));
        EXPECT_TRUE(isMarked(state.data(Qt::ToolTipRole).toString()));
    }
    typeFilter("nowhere");
    EXPECT_TRUE(isMarked(table().placeholderText()));
    window.exportTo("/nowhere/units.csv", AllUnitsWindow::FileFormat::csv);
    EXPECT_TRUE(isMarked(control<QLabel>("allUnitsNote").text()));
}

} // namespace kx
