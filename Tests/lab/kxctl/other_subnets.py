"""kxctl with units that have addresses of another subnet, and take broadcasts of their own only."""

from planted import other_subnet
from program import Test, commands_heard, kxctl, main


class OtherSubnets(Test):
    def test_only_the_limited_broadcast_reaches_them(self):
        with other_subnet():
            self.assertEnds(kxctl("discover", "--wait", "0.5", "--json"), 1, "not-found")
            found = kxctl("discover", "--wait", "0.5", "--limited", "--json")
        self.assertEnds(found, 0)
        self.assertEqual([unit["internal_ip"] for unit in found.document["units"]],
                         ["10.5.0.7", "10.5.0.8", "10.5.0.9"])

    def test_a_unit_that_did_not_answer_gets_no_command(self):
        with other_subnet():
            before = len(commands_heard())
            self.assertEnds(kxctl("set", "4B5800000001", "unit-id=A", "--json"), 1, "not-found")
            self.assertEqual(len(commands_heard()), before)


if __name__ == "__main__":
    main()
