"""kxctl on a host with two links, two units on each."""

from program import FIRST, Test, commands_heard, eventually, heard, kxctl, main, run


def can_ask():
    listed = kxctl("interfaces", "--json").document["interfaces"]
    return [entry["name"] for entry in listed if entry["can_ask"]]


def set_up(*links):
    for link in links:
        run("ip", "link", "set", link, "up")
    if not eventually(lambda: can_ask() == ["kx0", "kx2"]):
        raise AssertionError("the links do not come back")


class TwoLinks(Test):
    def test_without_a_name_the_interfaces_are_listed(self):
        before = len(heard())
        result = kxctl("discover", "--json")
        self.assertEnds(result, 3, "interface")
        for title in ("Ethernet (kx0)", "Ethernet (kx2)"):
            self.assertIn(title, result.err)
        self.assertEqual(len(heard()), before)

    def test_a_named_interface_asks_only_its_units(self):
        document = kxctl("discover", "-i", "kx2", "--expect", "2", "--json").document
        self.assertEqual([unit["internal_ip"] for unit in document["units"]],
                         ["198.51.100.13", "198.51.100.14"])
        self.assertEqual({unit["interface"] for unit in document["units"]}, {"kx2"})
        self.assertEqual(document["interface"], "kx2")

    def test_all_interfaces_ask_all_units(self):
        document = kxctl("discover", "-i", "all", "--expect", "4", "--json").document
        self.assertEqual([unit["interface"] for unit in document["units"]],
                         ["kx0", "kx0", "kx2", "kx2"])
        self.assertEqual(document["interface"], "all")

    def test_a_unit_is_addressed_over_the_link_on_which_it_answered(self):
        # The routes lead to the other link.
        run("ip", "route", "add", "198.51.100.13/32", "dev", "kx0")
        try:
            result = kxctl("set", "-i", "all", "4B5800000003", "destination-port=3521", "--json")
        finally:
            run("ip", "route", "del", "198.51.100.13/32", "dev", "kx0")
        self.assertEnds(result, 0)

    def test_a_new_address_must_lie_in_a_network_of_the_units_own_link(self):
        before = len(commands_heard())
        result = kxctl("set", "-i", "all", "4B5800000001", "internal-ip=198.51.100.50", "--json")
        self.assertEnds(result, 2, "value")
        self.assertEqual(len(commands_heard()), before)

    def test_an_address_of_this_host_is_refused_on_whichever_link_it_is(self):
        before = len(heard())
        result = kxctl("set", "-i", "kx0", "4B5800000001", "internal-ip=198.51.100.1", "--json")
        self.assertEnds(result, 2, "value")
        self.assertIn("own address", result.err)
        self.assertEqual(len(heard()), before)

    def test_a_link_that_refuses_to_send_leaves_the_others(self):
        run("nft", "add table inet kx { chain out { type filter hook output priority 0; "
                   "ip daddr 192.0.2.255 drop; }; }")
        try:
            found = kxctl("discover", "-i", "all", "--expect", "2", "--json")
            watched = kxctl("watch", "-i", "all", "--until", "2", "--for", "5", "--json")
            restored = kxctl("restore", "-i", "all", "--everyone", "--yes", "--json")
        finally:
            run("nft", "delete table inet kx")
        for result in (found, watched, restored):
            self.assertEnds(result, 0)
            self.assertIn("socket",
                          [warning["code"] for warning in result.documents[-1]["warnings"]])
        self.assertFalse(found.document["complete"])
        self.assertEqual({unit["interface"] for unit in restored.document["units"]}, {"kx2"})

    def test_an_address_is_checked_on_the_link_of_its_network(self):
        document = kxctl("check", "-i", "all", "192.0.2.11", "198.51.100.13", "--json").document
        self.assertEqual([entry["holders"][0]["serial"] for entry in document["addresses"]],
                         [FIRST, "4B 58 00 00 00 03"])

    def test_a_link_that_is_down_cannot_ask(self):
        run("ip", "link", "set", "kx2", "down")
        try:
            self.assertEnds(kxctl("discover", "-i", "kx2", "--json"), 3, "interface")
            document = kxctl("discover", "--expect", "2", "--json").document
            self.assertEqual(document["interface"], "kx0")
        finally:
            set_up("kx2")

    def test_no_link_at_all_is_told(self):
        for link in ("kx0", "kx2"):
            run("ip", "link", "set", link, "down")
        try:
            self.assertEnds(kxctl("discover", "--json"), 3, "interface")
            self.assertEqual(can_ask(), [])
        finally:
            set_up("kx0", "kx2")

    def test_a_request_that_the_system_refuses_is_told(self):
        run("nft", "add table inet kx { chain out { type filter hook output priority 0; "
                   "ip daddr 192.0.2.255 drop; }; }")
        try:
            result = kxctl("discover", "-i", "kx0", "--json")
        finally:
            run("nft", "delete table inet kx")
        self.assertEnds(result, 3, "socket")
        self.assertIn("not permitted", result.err)


if __name__ == "__main__":
    main()
