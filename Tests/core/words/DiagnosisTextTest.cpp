#include "words/DiagnosisText.h"

#include "core/conversation/DiagnosisSamples.h"

#include <gtest/gtest.h>

#include <set>

namespace kx {

namespace {

DiagnosisEvidence evidenceOf(Cause cause) {
    for (const PlantedCause& each : plantedCauses()) {
        if (each.cause == cause) {
            return evidenceWith({&each});
        }
    }
    return {};
}

std::string sentenceOf(Cause cause) {
    return sentenceOfCause(cause, evidenceOf(cause));
}

} // namespace

TEST(DiagnosisText, EachCauseHasASentenceAndAdvice) {
    std::set<std::string> sentences;
    for (const Cause cause : allCauses) {
        const auto evidence = evidenceOf(cause);
        const std::string sentence = sentenceOfCause(cause, evidence);
        EXPECT_TRUE(sentence.ends_with('.')) << sentence;
        EXPECT_EQ(sentence.find('%'), std::string::npos) << sentence;
        EXPECT_FALSE(adviceOfCause(cause, evidence).empty());
        sentences.insert(sentence);
    }
    EXPECT_EQ(sentences.size(), allCauses.size());
}

TEST(DiagnosisText, EachCheckHasATitleAndEvidenceInEachState) {
    for (const Cause cause : allCauses) {
        auto evidence = evidenceOf(cause);
        for (const Check& check : diagnosisOf(evidence).checks) {
            const std::string text = evidenceOfCheck(check, evidence);
            EXPECT_FALSE(text.empty()) << idOfCause(cause) << ' ' << idOfCheck(check.kind);
            EXPECT_EQ(text.find('%'), std::string::npos) << text;
            EXPECT_FALSE(titleOfCheck(check.kind).empty());
            EXPECT_EQ(adviceOfCheck(check, evidence).has_value(), check.cause.has_value());
        }
    }
}

TEST(DiagnosisText, AnInterfaceIsSaidToCarryDatagramsOrNotToBroadcast) {
    const auto evidence = healthyEvidence();
    const auto textOf = [&evidence](CheckState state) {
        return evidenceOfCheck({.kind = CheckKind::link, .state = state}, evidence);
    };
    EXPECT_EQ(textOf(CheckState::ok), "The interface kx0 carries datagrams.");
    EXPECT_EQ(textOf(CheckState::fail), "The interface kx0 cannot broadcast.");
}

TEST(DiagnosisText, NamesWhatItHasFound) {
    EXPECT_EQ(sentenceOf(Cause::noLink), "The interface kx0 has no link.");
    EXPECT_EQ(sentenceOf(Cause::firewall),
              "A firewall on this computer lets no answers in to UDP port 3520.");
    EXPECT_EQ(sentenceOf(Cause::otherSubnet),
              "The unit 01 02 03 04 05 3D is at 10.5.0.7, which is not in the network of the "
              "interface kx0.");
    EXPECT_EQ(sentenceOf(Cause::staleARP),
              "A fixed ARP entry says that 192.168.1.10 is 02:00:00:00:00:99, but the unit there "
              "is 00:1A:2B:3C:4D:5E.");
    EXPECT_EQ(sentenceOf(Cause::sameAddress),
              "Several units have the address 192.168.1.62: 01 02 03 04 05 3E, 01 02 03 04 05 3F.");
    EXPECT_EQ(sentenceOf(Cause::otherPort),
              "The unit 01 02 03 04 05 3C answers to UDP port 3522, and not to the one that asks.");
}

TEST(DiagnosisText, UnitsOfOneSerialNumberAreToldByTheirHardwareAddresses) {
    auto evidence = healthyEvidence();
    SampleUnit twin;
    twin.internalMAC.back() = 0x77;
    evidence.linkUnits.add(heardUnit(twin));
    EXPECT_EQ(sentenceOfCause(Cause::sameAddress, evidence),
              "Several units have the address 192.168.1.10: 00:1A:2B:3C:4D:5E, 00:1A:2B:3C:4D:77.");
}

TEST(DiagnosisText, AFirewallIsNamedOnlyWhereItsServiceRuns) {
    auto evidence = evidenceOf(Cause::firewall);
    EXPECT_EQ(adviceOfCause(Cause::firewall, evidence),
              "Let UDP to port 3520 in, in the rules of the firewall.");
    evidence.firewallServices = {FirewallService::ufw};
    EXPECT_EQ(adviceOfCause(Cause::firewall, evidence),
              "Let the answers in: sudo ufw allow 3520/udp");
    evidence.firewallServices = {FirewallService::firewalld};
    EXPECT_EQ(adviceOfCause(Cause::firewallUnicastOnly, evidence),
              "Let the answers in: sudo firewall-cmd --add-port=3520/udp");
}

TEST(DiagnosisText, WhoHasThePortIsNamedAsFarAsItIsKnown) {
    auto evidence = evidenceOf(Cause::portTaken);
    EXPECT_EQ(sentenceOfCause(Cause::portTaken, evidence),
              "UDP port 3520 is taken by another program.");
    evidence.portOwner = PortOwner{.program = {}, .process = 0, .user = "anna"};
    EXPECT_EQ(sentenceOfCause(Cause::portTaken, evidence),
              "UDP port 3520 is taken by a program of the user anna.");
    evidence.portOwner = PortOwner{.program = "kxconfig", .process = 42, .user = "anna"};
    EXPECT_EQ(sentenceOfCause(Cause::portTaken, evidence),
              "UDP port 3520 is taken by kxconfig (process 42).");
}

TEST(DiagnosisText, ForeignTextsAreShownAsMarks) {
    auto evidence = evidenceOf(Cause::portTaken);
    evidence.portOwner = PortOwner{.program = "a\x1b[31m", .process = 1, .user = {}};
    EXPECT_EQ(sentenceOfCause(Cause::portTaken, evidence).find('\x1b'), std::string::npos);
}

TEST(DiagnosisText, ARouterThatReportsAnAddressIsNamed) {
    auto evidence = evidenceOf(Cause::noHost);
    EXPECT_EQ(sentenceOfCause(Cause::noHost, evidence),
              "No host answers for the address 192.168.1.77.");
    evidence.target->reporter = 0xC0A80101U;
    EXPECT_EQ(sentenceOfCause(Cause::noHost, evidence),
              "No host answers for the address 192.168.1.77.")
        << "this host reports its own failure";
    evidence.target->reporter = 0xC0A801FEU;
    EXPECT_EQ(sentenceOfCause(Cause::noHost, evidence),
              "192.168.1.254 says that 192.168.1.77 cannot be reached.");
}

} // namespace kx
