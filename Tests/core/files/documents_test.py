"""The files of the first version, against the schemas that describe them.

usage: python3 -m unittest documents_test
"""

import json
import pathlib
import unittest

import jsonschema

HERE = pathlib.Path(__file__).resolve().parent
SCHEMAS = HERE.parents[2] / "docs/json-schema"
FIRST = HERE / "first-version"


def validator(name):
    schemas = {path.name: json.loads(path.read_text(encoding="utf-8"))
               for path in SCHEMAS.glob("*.json")}
    return jsonschema.Draft7Validator(
        schemas[name], resolver=jsonschema.RefResolver("", schemas[name], store=schemas))


class FirstVersion(unittest.TestCase):
    def test_a_discovery_fits_its_schema(self):
        validator("discover.json").validate(json.loads((FIRST / "discovery.json").read_text()))

    def test_a_plan_fits_its_schema(self):
        validator("kept-plan.json").validate(json.loads((FIRST / "plan.json").read_text()))

    def test_every_line_of_a_journal_fits_its_schema(self):
        lines = [json.loads(line) for line in (FIRST / "journal.jsonl").read_text().splitlines()]
        self.assertEqual({line.get("event", "the first line") for line in lines},
                         {"the first line", "command", "outcome", "arp-entry", "end"})
        for line in lines:
            validator("journal.json").validate(line)

    def test_a_schema_refuses_another_document(self):
        plan = json.loads((FIRST / "plan.json").read_text())
        for change in ({"kind": "journal"}, {"schema": 2}, {"seen": [{}]}, {"more": 1},
                       {"checksum": "0"}):
            self.assertFalse(validator("kept-plan.json").is_valid({**plan, **change}), change)
        line = json.loads((FIRST / "journal.jsonl").read_text().splitlines()[1])
        for change in ({"event": "outcome"}, {"serial": "1"}, {"entry": 0}, {"parameter": "rack"}):
            self.assertFalse(validator("journal.json").is_valid({**line, **change}), change)


if __name__ == "__main__":
    unittest.main()
