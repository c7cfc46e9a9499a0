"""Runs kxctl on the host of a site, and tells Ansible what became of the site's units."""

import csv
import io
import json
import os

from ansible.module_utils.basic import AnsibleModule

DOCUMENTATION = r"""
module: kxctl
short_description: Find and configure the units of a site
description:
  - Runs C(kxctl --json) on the host. The task has failed unless kxctl ends with 0.
  - C(changed) is true when a unit shows a new value, and when it may have one, because it fell silent after a
    command or because kxctl did not end by itself.
  - In check mode C(apply) makes the plan only. Units get requests for their parameters, and no command.
    C(changed) is then true when a unit would change. None would where a row is refused or a unit does not
    answer, because that holds C(apply) back, unless I(keep_going) is set.
options:
  command: {choices: [apply, discover], required: true, description: What kxctl does.}
  interface: {type: str, description: The network interface that the units hear.}
  table: {type: str, description: "For C(apply): the text of the table, not its path."}
  expect: {type: int, description: "For C(discover): how many units shall answer; else any but 0."}
  keep_going: {type: bool, default: false, description: "For C(apply): go on after a unit that fails."}
  folder: {type: path, default: "~", description: "For C(apply): where the host keeps the journals."}
"""
RETURN = r"""
document: {type: dict, returned: when kxctl printed one, description: What it printed but rows and units.}
lines:
  type: list
  returned: when kxctl printed a document
  description: "Comma-separated values: a line for each row of the table (state, reason, line, serial), or for
    each unit (state, reason, serial, unit-id, internal-ip, destination-ip, destination-port)."
"""

PARAMETERS = {"command": {"choices": ["apply", "discover"], "required": True}, "interface": {},
              "table": {}, "expect": {"type": "int"}, "folder": {"type": "path", "default": "~"},
              "keep_going": {"type": "bool", "default": False}}


def kept_for_this_task(table, module):
    path = os.path.join(module.tmpdir, "table.csv")
    with open(path, "w", encoding="utf-8", newline="") as file:
        file.write(table)
    return path


def words_of(module):
    given = module.params
    words = ["kxctl", "--json"] + (["-i", given["interface"]] if given["interface"] else [])
    if given["command"] == "discover":
        return words + ["discover"] + (["--expect", str(given["expect"])] if given["expect"] else [])
    table = kept_for_this_task(given["table"], module)
    if module.check_mode:
        return words + ["plan", table]
    return words + ["apply", table, "--yes"] + (["--keep-going"] if given["keep_going"] else [])


def lines_of(document):
    rows = [[row["state"], row["reason"], row["line"], row["serial"]] for row in document.get("rows", [])]
    keys = ("serial", "unit_id", "internal_ip", "destination_ip", "destination_port")
    rows += [["answered", None] + [unit[key] for key in keys] for unit in document.get("units", [])]
    texts = []
    for row in rows:
        texts.append(io.StringIO())
        csv.writer(texts[-1], lineterminator="").writerow(row)
    return [text.getvalue() for text in texts]


def changes_of(document, *states):
    rows = [row for row in document.get("rows", []) if row["state"] not in ("refused", "untouched")]
    return [change for row in rows for change in row["changes"] if change["state"] in states]


def result_of(document, keeps_going):
    """A value that was read back, or that apply would set, is in the difference that --diff shows."""
    is_plan = document["command"] == "plan"
    is_held_back = is_plan and document["exit"] != 0 and not keeps_going
    certain = [] if is_held_back else ["planned" if is_plan else "done"]
    values = {key: "".join(f"{change['serial']} {change['parameter']}: {change[told]}\n"
                           for change in changes_of(document, *certain))
              for key, told in (("before", "from"), ("after", "to"))}
    return {"changed": bool(changes_of(document, *certain, "different", "silent")), "diff": values,
            "lines": lines_of(document),
            "document": {key: value for key, value in document.items() if key not in ("rows", "units")}}


def main():
    module = AnsibleModule(PARAMETERS, required_if=[("command", "apply", ["table"])], supports_check_mode=True)
    english = {"LC_ALL": "C.UTF-8", "LANGUAGE": "en"}
    words = words_of(module)
    status, out, err = module.run_command(words, cwd=module.params["folder"], environ_update=english)
    try:
        document = json.loads(out)
    except ValueError:
        told = f"kxctl ended with {status} and no document. {err}".strip()
        module.fail_json(msg=told, changed="apply" in words)
    for warning in document["warnings"]:
        module.warn(warning["message"])
    result = result_of(document, module.params["keep_going"])
    if status != 0:
        error = document["error"] or {"message": f"kxctl ended with {status}."}
        module.fail_json(msg=error["message"], **result)
    module.exit_json(**result)


if __name__ == "__main__":
    main()
