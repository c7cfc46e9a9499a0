"""Checks translations, and describes each fault in words."""

import importlib.machinery
import importlib.util
import pathlib
import re
import xml.etree.ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]


def load_script():
    """scripts/translations as a module, because it knows the program's texts."""
    loader = importlib.machinery.SourceFileLoader("translations", str(ROOT / "scripts/translations"))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


script = load_script()

# The last characters of texts, in any script: a translation ends in the same way.
ENDINGS = {".": ".。", ":": ":：", "…": "…", "]": "]"}
MNEMONIC = re.compile(r"&(.)")


def placeholders(text):
    return script.PLACEHOLDER.findall(text)


def margins(text):
    """The white space around a text: an entry of the log begins with a new line."""
    return text[:len(text) - len(text.lstrip())], text[len(text.rstrip()):]


def mnemonic(text):
    """The key that a "&" marks, in lower case; None without one."""
    found = MNEMONIC.search(text.replace("&&", ""))
    return found[1].lower() if found else None


def ends_alike(key, translation):
    key, translation = key.rstrip(), translation.rstrip()
    wanted = ENDINGS.get(key[-1])
    if wanted is None:
        return translation[-1] not in "".join(ENDINGS.values())
    return translation[-1] in wanted


def faults_of_translation(key, translation):
    faults = []
    if placeholders(key) != placeholders(translation):
        faults.append(f"other placeholders: {translation!r}")
    if margins(key) != margins(translation):
        faults.append(f"other white space around it: {translation!r}")
    if not ends_alike(key, translation):
        faults.append(f"another ending: {translation!r}")
    if (mnemonic(key) is None) != (mnemonic(translation) is None):
        faults.append(f"a mnemonic too many or too few: {translation!r}")
    elif mnemonic(translation) and not re.fullmatch("[a-z0-9]", mnemonic(translation)):
        faults.append(f"a mnemonic that is not on every keyboard: {translation!r}")
    # The text before two blanks is the command itself; the rest describes it.
    if "  " in key.strip() and key.split("  ")[0] != translation.split("  ")[0]:
        faults.append(f"another option command: {translation!r}")
    return faults


def faults_of_catalogue(keys, translations):
    """Faults of a catalogue, given as translations by key, against the program's keys."""
    faults = [f"{key!r} is missing" for key in keys if key not in translations]
    faults += [f"{key!r} is not in the program" for key in translations if key not in keys]
    for key, translation in translations.items():
        if translation is None:
            faults.append(f"{key!r} is unfinished")
        else:
            faults += [f"{key!r} has {fault}" for fault in faults_of_translation(key, translation)]
    return faults


def mnemonic_groups(window):
    """The texts whose mnemonics work at the same time: of the window itself, and of each menu."""
    root = xml.etree.ElementTree.fromstring(window)

    def text_of(element, name):
        return element.findtext(f"property[@name='{name}']/string")
    actions = {action.get("name"): text_of(action, "text") for action in root.iter("action")}
    groups = {}
    for menu in root.iter("widget"):
        if menu.get("class") == "QMenu":
            names = [entry.get("name") for entry in menu.findall("addaction")]
            groups[menu.get("name")] = [actions[name] for name in names if name in actions]
    titles = [text_of(widget, "title") for widget in root.iter("widget")]
    texts = [text_of(widget, "text") for widget in root.iter("widget")]
    groups["window"] = [text for text in titles + texts if text and mnemonic(text)]
    return groups


def mnemonics_used_twice(groups, translations):
    faults = []
    for name, keys in groups.items():
        used = {}
        for key in keys:
            text = translations[key]
            other = used.setdefault(mnemonic(text), key)
            if other != key:
                faults.append(f"{name}: {translations[other]!r} and {text!r}")
    return faults
