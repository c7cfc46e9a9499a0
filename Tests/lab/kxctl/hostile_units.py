"""kxctl with a unit of the test's own, which says what no honest unit says. It listens on this host.
The simulated units say nothing meanwhile."""

import csv
import io
import os
import signal
import unicodedata

from program import OWN, OwnUnit, Test, header, kxctl, main, reply, units_process

REQUEST = b"^^IdX"
COMMANDS = (b"^^IdT", b"^^IdU", b"^^IdZ")
OTHER = "024B58000077"


def setUpModule():
    os.kill(units_process(), signal.SIGSTOP)


def tearDownModule():
    os.kill(units_process(), signal.SIGCONT)


def tells(**values):
    """A unit that tells these values whatever it is sent."""
    return lambda data: [reply(**values)] if data == REQUEST else []


def obedient(before, after, command=b"^^IdT", acknowledges=True):
    """A unit that tells other values after a command."""
    state = {"now": before}

    def answer(data):
        if data.startswith(command):
            state["now"] = after
            return [header() + b"ok\r"] if acknowledges else []
        return [reply(**state["now"])] if data == REQUEST else []
    return answer


class UnitIDs(Test):
    IDS = {b"a\nb\r\tc": "\n", b"\"a,bc\"": None, b"\x1b[31mX": "\x1b", b"\x00ABCDE": "\x00",
           b"a\xc2\x9b31m": "\x9b", b"\xe2\x80\xaeabc": "\u202e", b"=1+2-3": None,
           b"7ABCDE": None, b" edge ": None, b"a,\"b;c": None}

    def test_tables_show_marks(self):
        for unit_id, acting in self.IDS.items():
            with OwnUnit(tells(unit_id=unit_id)):
                for words in (["discover", "--expect", "1"], ["show", "4B58000000AA"],
                              ["watch", "--until", "1"]):
                    out = kxctl(*words).out
                    if acting is not None:
                        self.assertIn("\ufffd", out)
                    for character in out:
                        self.assertFalse(
                            unicodedata.category(character) in ("Cc", "Cf") and character != "\n",
                            (words, out))

    def test_documents_stay_documents_and_tell_the_bytes(self):
        for unit_id in (*self.IDS, b"\xff\xfe\x00\x01\x02\x03", b"\xc3\x28abcd"):
            with OwnUnit(tells(unit_id=unit_id)):
                result = kxctl("discover", "--expect", "1", "--json")
            unit = result.document["units"][0]
            self.assertEqual(unit["unit_id_bytes"], unit_id.hex().upper())
            try:
                self.assertEqual(unit["unit_id"], unit_id.decode("utf-8").rstrip("\0"))
            except UnicodeDecodeError:
                self.assertIsNone(unit["unit_id"])
            self.assertTrue(result.out.isascii())

    def test_tables_of_values_stay_tables(self):
        for unit_id, acting in self.IDS.items():
            with OwnUnit(tells(unit_id=unit_id)):
                out = kxctl("discover", "--expect", "1", "--csv").out
            rows = list(csv.DictReader(io.StringIO(out, newline="")))
            self.assertEqual(len(rows), 1, out)
            self.assertEqual(rows[0]["unit_id_bytes"], unit_id.hex().upper())
            # A text is left out that would give other bytes when it is read back, or that a
            # spreadsheet may take for a number or a formula.
            is_kept = not acting and unit_id[:1].isalpha()
            self.assertEqual(rows[0]["unit-id"], unit_id.decode() if is_kept else "")


class Replies(Test):
    def test_what_is_no_reply_is_counted(self):
        def answer(data):
            return [reply(), b"^^", b"hello", b"^^<U>1", header() + b"what", header() + b"<M>12",
                    reply(serial_item=False)] if data == REQUEST else []
        with OwnUnit(answer):
            result = kxctl("discover", "--tries", "1", "--wait", "1", "--json")
        self.assertEnds(result, 0)
        self.assertEqual((len(result.document["units"]), result.document["rejected"]), (1, 6))

    def test_an_answer_to_an_option_may_be_anything(self):
        def answer(data):
            if data == REQUEST:
                return [reply()]
            return [header() + b"\x1b[2J\xff\n"] if data == b"^^IdV\r" else []
        with OwnUnit(answer):
            self.assertEqual(kxctl("option", "4B58000000AA", "V").out,
                             "\ufffd[2J\ufffd\ufffd\n")
            document = kxctl("option", "4B58000000AA", "V", "--json").document
        self.assertEqual(document["replies"][0]["bytes"], b"$\x1b[2J\xff\n".hex().upper())

    def test_addresses_under_two_serial_numbers_are_told_and_get_no_command(self):
        def answer(data):
            return [reply(), reply(serial="4B5800000002", hardware=OTHER)] if data == REQUEST else []
        with OwnUnit(answer) as unit:
            document = kxctl("discover", "--wait", "1", "--json").document
            self.assertEqual(document["duplicates"], [
                {"internal_ip": "192.0.2.1", "serials": ["4B 58 00 00 00 02", OWN]}])
            self.assertEqual(len(document["warnings"]), 1)
            result = kxctl("set", "4B58000000AA", "unit-id=A", "--json")
            self.assertEnds(result, 1, "ambiguous")
            self.assertEqual(set(unit.heard), {"^^IdX"})


class AddressesOfMany(Test):
    def test_a_unit_that_tells_one_as_its_own_gets_no_command(self):
        for address in ("192.0.2.255", "192.0.2.0", "255.255.255.255", "224.0.0.1", "0.0.0.0",
                        "127.255.255.255"):
            with OwnUnit(tells(address=address)) as unit:
                for words in (["set", "4B58000000AA", "unit-id=A"], ["option", "4B58000000AA", "V"],
                              ["restore", "4B58000000AA", "--yes"]):
                    self.assertEnds(kxctl(*words, "--json"), 1, "ambiguous")
                self.assertEqual(set(unit.heard), {"^^IdX"}, address)

    def test_an_answer_from_another_address_is_a_warning(self):
        with OwnUnit(tells(address="192.0.2.77")):
            document = kxctl("discover", "--expect", "1", "--json").document
        self.assertEqual([warning["code"] for warning in document["warnings"]], ["sender"])
        self.assertIn("192.0.2.77", document["warnings"][0]["message"])


class Edits(Test):
    def test_a_value_that_comes_late_counts(self):
        with OwnUnit(obedient({}, {"destination_port": 3523}, acknowledges=False)):
            self.assertEnds(kxctl("set", "4B58000000AA", "destination-port=3523"), 0)

    def test_another_value_is_told(self):
        with OwnUnit(obedient({}, {"destination_port": 3521})):
            result = kxctl("set", "4B58000000AA", "destination-port=3523", "--json")
        self.assertEnds(result, 1, "differs")
        self.assertEqual(result.document["changes"][0]["state"], "different")

    def test_the_old_value_is_told(self):
        with OwnUnit(obedient({}, {})) as unit:
            result = kxctl("set", "4B58000000AA", "destination-port=3523", "--json")
        self.assertEnds(result, 1, "unchanged")
        self.assertEqual(unit.heard.count("^^IdT0DC3"), 1, "it was acknowledged")

    def test_a_lost_command_is_sent_again(self):
        state = {"heard": 0, "now": {}}

        def answer(data):
            if data.startswith(b"^^IdT"):
                state["heard"] += 1
                if state["heard"] == 3:
                    state["now"] = {"destination_port": 3523}
                return []
            return [reply(**state["now"])] if data == REQUEST else []
        with OwnUnit(answer):
            self.assertEnds(kxctl("set", "4B58000000AA", "destination-port=3523"), 0)

    def test_a_twin_that_shows_itself_after_the_command_stops_the_rest(self):
        state = {"now": {}, "twin": False}

        def answer(data):
            if data.startswith(b"^^IdU"):
                state["now"] = {"unit_id": b"A\0\0\0\0\0"}
                state["twin"] = True
                return [header() + b"ok\r"]
            if data != REQUEST:
                return []
            return ([reply(hardware=OTHER)] if state["twin"] else []) + [reply(**state["now"])]
        with OwnUnit(answer) as unit:
            result = kxctl("set", "4B58000000AA", "unit-id=A", "destination-port=3523", "--json")
        self.assertEnds(result, 4, "half")
        self.assertEqual([change["state"] for change in result.document["changes"]],
                         ["done", "refused"])
        self.assertNotIn("^^IdT0DC3", unit.heard)

    def test_a_restore_that_nobody_acknowledges_and_that_changes_nothing_is_no_success(self):
        with OwnUnit(tells()) as unit:
            result = kxctl("restore", "4B58000000AA", "--yes", "--json")
        self.assertEnds(result, 1, "unchanged")
        self.assertEqual(unit.heard.count("^^IdZ"), 3)

    def test_a_restore_shows_itself_in_other_values(self):
        with OwnUnit(obedient({"destination_port": 3523}, {}, b"^^IdZ", acknowledges=False)):
            result = kxctl("restore", "4B58000000AA", "--yes", "--json")
        self.assertEnds(result, 0)
        self.assertEqual(result.document["units"][0]["destination_port"], 3520)


if __name__ == "__main__":
    main()
