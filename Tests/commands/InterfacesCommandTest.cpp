#include "CommandFixture.h"

namespace kx {

namespace {

class InterfacesCommandTest : public CommandTest {
protected:
    InterfacesCommandTest() { addInterface("kx2", secondLink, 0x0A000001U); }

    Words names() const {
        Words names;
        const Json whole = document();
        for (const Json& each : whole["interfaces"]) {
            names.push_back(each["name"].get<std::string>());
        }
        return names;
    }
};

} // namespace

TEST_F(InterfacesCommandTest, AllAreListed) {
    for (const Words& words :
         {Words{"interfaces", "--json"}, Words{"-i", "all", "interfaces", "--json"}}) {
        EXPECT_EQ(run(words), 0);
        EXPECT_EQ(names(), (Words{"kx0", "kx2"}));
    }
}

TEST_F(InterfacesCommandTest, OneThatIsNamedIsListedAloneThoughItCannotAsk) {
    interfaces.interfaces.back().canAsk = false;
    for (const char* name : {"kx2", "Ethernet (kx2)"}) {
        EXPECT_EQ(run({"interfaces", "-i", name, "--json"}), 0);
        EXPECT_EQ(names(), Words{"kx2"});
    }
}

TEST_F(InterfacesCommandTest, ANameThatNoneHasOrSeveralHaveIsWrong) {
    EXPECT_EQ(run({"interfaces", "-i", "kx9", "--json"}), 2);
    EXPECT_EQ(errorCode(), "interface");
    EXPECT_EQ(names(), Words{});
    for (HostInterface& each : interfaces.interfaces) {
        each.hasProfile = true;
        each.userName = "Office";
    }
    EXPECT_EQ(run({"interfaces", "-i", "Office", "--json"}), 2);
    EXPECT_EQ(errorCode(), "ambiguous");
}

} // namespace kx
