#include "support/LocalizedText.h"

#include <gtest/gtest.h>

#include <string>

namespace kx {
namespace {

class UnitsInGerman final : public LocalizedText {
public:
    std::string textForKey(std::string_view key) const override {
        return key == "unit" ? "Einheit" : std::string(key);
    }
};

// Restores the process's earlier source at its end.
class InstalledText {
public:
    explicit InstalledText(const LocalizedText* source)
        : _previous(installLocalizedText(source)) {}
    ~InstalledText() { installLocalizedText(_previous); }
    InstalledText(const InstalledText&) = delete;
    InstalledText& operator=(const InstalledText&) = delete;

private:
    const LocalizedText* _previous;
};

TEST(LocalizedText, KeysStandForThemselvesWithoutASource) {
    const InstalledText none(nullptr);
    EXPECT_EQ(localizedText("unit"), "unit");
    EXPECT_EQ(localizedText(""), "");
}

TEST(LocalizedText, TextsComeFromTheInstalledSource) {
    const UnitsInGerman german;
    const InstalledText installed(&german);
    EXPECT_EQ(localizedText("unit"), "Einheit");
    EXPECT_EQ(localizedText("port"), "port");
}

TEST(LocalizedText, InstallingReturnsTheSourceBefore) {
    const InstalledText none(nullptr);
    const UnitsInGerman german;
    EXPECT_EQ(installLocalizedText(&german), nullptr);
    EXPECT_EQ(installLocalizedText(nullptr), &german);
    EXPECT_EQ(localizedText("unit"), "unit");
}

} // namespace
} // namespace kx
