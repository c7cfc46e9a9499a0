"""No unit that is there is called missing, however many answers get lost.

usage: missing_units.py RUNS [EXPECTED]

Saves the units of the lab, and compares them RUNS times. EXPECTED is their number, 200 without it.
Every tenth comparison is with a file that has one unit more, which is not there: that one must be
called missing, and no other, so that a comparison which finds nothing does not pass.
"""

import json
import pathlib
import sys
import tempfile

from program import kxctl

ABSENT = "4B 58 00 00 FF FF"


def saved_units(path, expected):
    """Units that lose answers are asked until all of them are in the file."""
    for _ in range(20):
        kxctl("discover", "--expect", str(expected), "--wait", "5", "--save", str(path))
        document = json.loads(path.read_text(encoding="utf-8"))
        if len(document["units"]) == expected:
            return document
    raise SystemExit(f"{len(document['units'])} of {expected} units are found")


def main():
    runs = int(sys.argv[1])
    expected = int(sys.argv[2]) if len(sys.argv) > 2 else 200
    false, unsure, unseen = 0, 0, 0
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "a.json")
        document = saved_units(path, expected)
        longer = pathlib.Path(folder, "b.json")
        absent = {**document["units"][0], "serial": ABSENT, "internal_mac": "02:4B:58:00:FF:FF",
                  "internal_ip": "192.0.2.250"}
        longer.write_text(json.dumps({**document, "units": [*document["units"], absent]}),
                          encoding="utf-8")
        for number in range(runs):
            has_absent = number % 10 == 9 or runs < 10 and number == runs - 1
            result = kxctl("compare", str(longer if has_absent else path), "--json").document
            missing = [unit["serial"] for unit in result["missing"]]
            unseen += has_absent and ABSENT not in missing
            false += sum(serial != ABSENT for serial in missing)
            unsure += result["same"] < expected
    print(f"{runs} comparisons of {expected} units: {false} falsely called missing, {unsure} with "
          f"a unit unheard, {unseen} in which the absent unit was not told")
    return 1 if false or unsure or unseen else 0


if __name__ == "__main__":
    sys.exit(main())
