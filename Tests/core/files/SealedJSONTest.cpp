#include "files/SealedJSON.h"

#include <gtest/gtest.h>

#include <string>

namespace kx {

namespace {

const std::string sealedSample =
    sealedText(R"({"kind":"plan","schema":1,"text":"a b\u00e9","n":7})");

std::optional<DocumentFault> faultOfSealed(std::string_view text, int version = 1) {
    const auto read = unsealedDocument(text, "plan", version);
    const auto* const fault = std::get_if<DocumentFault>(&read);
    return fault != nullptr ? std::optional(*fault) : std::nullopt;
}

} // namespace

TEST(SealedJSON, TheChecksumStandsAtTheEnd) {
    // The checksum of this text is the published check value of CRC-32, 0xCBF43926.
    EXPECT_EQ(sealedText("123456789"), "12345678,\"checksum\":\"cbf43926\"}\n");
    EXPECT_TRUE(
        sealedSample.starts_with(R"({"kind":"plan","schema":1,"text":"a b\u00e9","n":7,"che)"));
}

TEST(SealedJSON, AWholeTextIsOpenedWithoutItsChecksum) {
    const auto read = unsealedDocument(sealedSample, "plan", 1);
    ASSERT_TRUE(std::holds_alternative<Json>(read));
    const Json& json = std::get<Json>(read);
    EXPECT_EQ(json["text"], "a b\u00e9");
    EXPECT_EQ(json["n"], 7);
    EXPECT_FALSE(json.contains("checksum"));
}

TEST(SealedJSON, BlanksAndLineBreaksBetweenValuesDoNotCount) {
    EXPECT_EQ(sealedText("{\"a\":[\n1,\n2\n]}"),
              "{\"a\":[\n1,\n2\n],\"checksum\":\"" + sealedText("{\"a\":[1,2]}").substr(23));
    std::string spaced = sealedSample;
    spaced.replace(spaced.find(','), 1, " ,\r\n\t");
    EXPECT_EQ(faultOfSealed(spaced), std::nullopt);
    spaced = sealedSample;
    spaced.replace(spaced.find("a b"), 3, "a  b");
    EXPECT_EQ(faultOfSealed(spaced), DocumentFault::damaged) << "those within a value do";
}

TEST(SealedJSON, ATextThatIsNestedDeeplyIsDamaged) {
    const std::string deep(1'000'000, '[');
    EXPECT_EQ(faultOfSealed("{\"kind\":\"plan\",\"a\":" + deep + std::string(deep.size(), ']') +
                            ",\"checksum\":\"00000000\"}"),
              DocumentFault::damaged);
    EXPECT_EQ(faultOfSealed(deep), DocumentFault::damaged);
}

TEST(SealedJSON, ATextThatWasCutAnywhereIsDamaged) {
    for (std::size_t length = 0; length + 1 < sealedSample.size(); ++length) {
        EXPECT_EQ(faultOfSealed(sealedSample.substr(0, length)), DocumentFault::damaged) << length;
    }
    EXPECT_EQ(faultOfSealed(sealedSample.substr(0, sealedSample.size() - 1)), std::nullopt)
        << "the line break at the end says nothing";
}

TEST(SealedJSON, AByteThatHasChangedAnywhereIsDamageUnlessItMeansTheSame) {
    const Json whole = *unsealedObject(sealedSample);
    for (std::size_t place = 0; place + 1 < sealedSample.size(); ++place) {
        for (unsigned bit = 0; bit < 8; ++bit) {
            std::string text = sealedSample;
            text[place] = static_cast<char>(static_cast<unsigned char>(text[place]) ^ (1U << bit));
            if (text.find("\\u00E9") ==
                std::string::npos) { // the digit of an escape is in either case
                EXPECT_EQ(faultOfSealed(text), DocumentFault::damaged) << text;
            } else {
                EXPECT_EQ(unsealedObject(text), whole);
            }
        }
    }
}

TEST(SealedJSON, AnotherVersionAndAnotherKindAreToldApartFromDamage) {
    EXPECT_EQ(faultOfSealed(sealedSample, 2), DocumentFault::otherVersion);
    EXPECT_EQ(faultOfSealed(sealedText(R"({"kind":"plan","schema":"2a"})")),
              DocumentFault::otherVersion);
    EXPECT_EQ(faultOfSealed(sealedText(R"({"kind":"plan"})")), DocumentFault::otherVersion);
    EXPECT_EQ(faultOfSealed(sealedText(R"({"kind":"journal","schema":1})")),
              DocumentFault::otherKind);
    EXPECT_EQ(faultOfSealed(sealedText(R"({"schema":1})")), DocumentFault::otherKind);
}

TEST(SealedJSON, JSONWithoutASealIsOfAnotherKindUnlessItNamesOne) {
    for (const char* text : {R"({"schema":1,"command":"discover"})", "[1]", "7", "null", "\"x\""}) {
        EXPECT_EQ(faultOfSealed(text), DocumentFault::otherKind) << text;
    }
    EXPECT_EQ(faultOfSealed(R"({"kind":"plan","schema":1})"), DocumentFault::damaged);
    EXPECT_EQ(faultOfSealed(R"({"checksum":7})"), DocumentFault::damaged);
}

TEST(SealedJSON, ATextThatWasNeverJSONIsOfAnotherKindAndNothingAtAllIsDamage) {
    for (const char* text : {"serial,unit-id\n", "\n\nserial\n", "\xEF\xBB\xBFserial", "x"}) {
        EXPECT_EQ(faultOfSealed(text), DocumentFault::otherKind) << text;
    }
    for (const char* text : {"", "\n", " \t\r\n", "[", "x\"kind\":\"plan\",\"schema\":1}"}) {
        EXPECT_EQ(faultOfSealed(text), DocumentFault::damaged) << text;
    }
}

TEST(SealedJSON, LinesThatBeginWithADocumentOfAnotherKindAreOfAnotherKind) {
    const std::string journal = sealedText(R"({"kind":"journal","schema":1})");
    EXPECT_EQ(faultOfSealed(journal + journal), DocumentFault::otherKind);
    EXPECT_EQ(faultOfSealed(sealedSample + '\n' + sealedSample), DocumentFault::damaged);
}

} // namespace kx
