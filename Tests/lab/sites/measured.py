"""How long apply.yml takes for each site of 200 units alone, and for all of them together.

usage: Tests/linux/in_namespaces.sh python3 -B Tests/lab/sites/measured.py [MILLISECONDS]

The units answer so many milliseconds late; 0 without it. KXCTL and KX_BUILD_DIR tell where the programs are.
"""

import pathlib
import sys
import tempfile
import time

from playbooks import play
from sites import Office, serial_of

UNITS = 200


def measured(office, folder, letter, *words):
    """Seconds of ansible-playbook, and of kxctl on the hosts from the first beginning to the last end."""
    for site in office.sites:
        rows = [f"{serial_of(number)},{letter}{number},192.0.2.{ord(letter)},{3521 + ord(letter) % 2}"
                for number in site.numbers]
        text = "\n".join(["serial,unit-id,destination-ip,destination-port", *rows])
        (folder / f"{site.name}.csv").write_text(text + "\n", encoding="utf-8")
    before = [len(site.calls()) for site in office.sites]
    begun = time.monotonic()
    status, printed = play("apply.yml", office.inventory(UNITS), "-e", f"tables={folder}", "-e",
                           f"report={folder}/report.csv", *words, home=office.home)
    lasted = time.monotonic() - begun
    assert status == 0 and "changed=0" not in printed, printed
    calls = [call for site, count in zip(office.sites, before) for call in site.calls()[count:]]
    return lasted, max(ended for _, ended, _ in calls) - min(begun for begun, _, _ in calls)


def main():
    late = int(sys.argv[1]) if len(sys.argv) > 1 else 0
    with tempfile.TemporaryDirectory() as folder:
        office = Office(pathlib.Path(folder), UNITS, late)
        try:
            office.open()
            print("| Sites | ansible-playbook | kxctl |\n|---|---|---|")
            for letter, words in zip("ABCD", [("--limit", site.name) for site in office.sites] + [()]):
                whole, kxctl = measured(office, pathlib.Path(folder), letter, *words)
                print(f"| {words[-1] if words else 'all three'} | {whole:.1f} s | {kxctl:.1f} s |")
        finally:
            office.close()


if __name__ == "__main__":
    main()
