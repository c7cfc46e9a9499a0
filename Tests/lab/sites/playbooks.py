"""The playbooks of docs/many-sites, as ansible-playbook plays them."""

import csv
import os
import pathlib
import re
import subprocess

EXAMPLE = pathlib.Path(__file__).resolve().parents[3] / "docs/many-sites"


def play(playbook, inventory, *words, home, **more):
    """The status of ansible-playbook, and what it printed. `home` has the settings of the person who plays."""
    done = subprocess.run(
        ["ansible-playbook", "-i", inventory, EXAMPLE / playbook, *words], stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
        env={**os.environ, "HOME": str(home), "ANSIBLE_CONFIG": str(EXAMPLE / "ansible.cfg"),
             "ANSIBLE_NOCOLOR": "1", "LC_ALL": "C.UTF-8", **more})
    return done.returncode, done.stdout


def recap(printed):
    """The counts of PLAY RECAP, by site."""
    lines = re.findall(r"^(\S+) +: (ok=.*)$", printed.split("PLAY RECAP")[-1], re.MULTILINE)
    return {site: {name: int(count) for name, count in re.findall(r"(\w+)=(\d+)", counts)}
            for site, counts in lines}


def rows_of(path):
    """The rows of a report or a list, by the names of their columns."""
    with open(path, encoding="utf-8", newline="") as file:
        return list(csv.DictReader(file))
