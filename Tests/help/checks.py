"""Reads the sources of the help book's checks: pages, the window's description, and the code."""

import html.parser
import pathlib
import re
import xml.etree.ElementTree

# Elements without content, which have no end tag.
VOID = {"br", "img", "link", "meta", "hr"}


class Page(html.parser.HTMLParser):
    """One page: its anchors, references, pictures, text, and the log entries that it explains."""

    def __init__(self, path):
        super().__init__(convert_charrefs=True)
        self.path = pathlib.Path(path)
        self.anchors = set()
        self.links = []  # targets of <a href> and <link href>
        self.pictures = []  # attributes of each <img>
        self.elements = []
        self.titles = []
        self.entries = set()  # "%" stands for each part that changes
        self.faults = []
        self._open = []
        self._texts = []
        self._entry = None
        self.feed(self.path.read_text(encoding="utf-8"))
        self.close()
        self.faults += [f"<{tag}> is not closed" for tag in self._open]

    @property
    def text(self):
        return " ".join("".join(self._texts).split())

    def handle_starttag(self, tag, attributes):
        attributes = dict(attributes)
        self.elements.append((tag, attributes))
        if tag not in VOID:
            self._open.append(tag)
        if "id" in attributes:
            if attributes["id"] in self.anchors:
                self.faults.append(f"the anchor {attributes['id']} stands there twice")
            self.anchors.add(attributes["id"])
        if tag in ("a", "link") and "href" in attributes:
            self.links.append(attributes["href"])
        if tag == "img":
            self.pictures.append(attributes)
        if attributes.get("class") == "entry":
            self._entry = ""

    def handle_endtag(self, tag):
        if not self._open or self._open[-1] != tag:
            self.faults.append(f"</{tag}> closes nothing")
            return
        self._open.pop()
        if tag == "code" and self._entry is not None:
            self.entries.add(self._entry.strip())
            self._entry = None

    def handle_data(self, data):
        self._texts.append(data)
        if self._open and self._open[-1] == "title":
            self.titles.append(data)
        if self._entry is not None:
            self._entry += "%" if self._open[-1] == "var" else data


def pages(folder):
    return {path.name: Page(path) for path in sorted(pathlib.Path(folder).glob("*.html"))}


def broken_references(folder):
    """Every link, style sheet and picture of the pages whose target is missing or out of the folder."""
    folder = pathlib.Path(folder)
    book = pages(folder)
    broken = []
    for name, page in book.items():
        targets = page.links + [picture.get("src", "") for picture in page.pictures]
        for picture in page.pictures:
            targets += [choice.split()[0] for choice in picture.get("srcset", "").split(",") if choice]
        for target in targets:
            file, _, anchor = target.partition("#")
            file = file or name
            if ":" in file or file.startswith(("/", "..")) or not (folder / file).is_file():
                broken.append(f"{name}: {target}")
            elif anchor and anchor not in book[file].anchors:
                broken.append(f"{name}: {target}")
    return broken


def literals(text):
    """The C++ string literals of a piece of source; adjacent literals count as one."""
    joined = re.sub(r'"\s*\n\s*"', "", text)
    return [literal.encode().decode("unicode_escape").encode("latin-1").decode("utf-8")
            for literal in re.findall(r'"((?:[^"\\\n]|\\.)*)"', joined)]


def pattern(message):
    return re.sub(r"%[@ds]", "%", message)


def logged_entries(path):
    """Every entry for the event log that a source words, with "%" for its arguments."""
    entries = []
    text = pathlib.Path(path).read_text(encoding="utf-8")
    for call in re.finditer(r'localizedText\(\s*((?:"(?:[^"\\\n]|\\.)*"\s*)+)', text):
        message = pattern("".join(literals(call[1])))
        if message.startswith(("\n", "[")) or not entries:
            entries.append(message)
        else:
            entries[-1] += message  # it continues the entry before it
    return {entry.strip() for entry in entries}


def functions_of_entries(header):
    """The functions of a header that word an entry, or a text that follows one."""
    text = pathlib.Path(header).read_text(encoding="utf-8")
    return set(re.findall(r"std::string (entryOf\w+|\w+InEntry)\(", text))


def appended(source_folder):
    """What the sources append to the event log: how each argument, or each choice of one, begins."""
    found = set()
    for path in pathlib.Path(source_folder).rglob("*.cpp"):
        text = path.read_text(encoding="utf-8")
        for call in re.finditer(r"\bappendString\((?!std::)([^;]*?)\);", text):
            choices = re.split(r"\s[?:]\s", call[1])
            found |= {choice.partition("(")[0] for choice in choices[1:] or choices}
    return found


def localized_texts(path):
    """The literal keys that a source file looks up, with "%" for their arguments."""
    text = pathlib.Path(path).read_text(encoding="utf-8")
    calls = re.finditer(r'localizedText\(\s*((?:"(?:[^"\\\n]|\\.)*"\s*)+)', text)
    return {pattern("".join(literals(call[1]))) for call in calls}


def strings_of(description, *properties):
    """The values of these properties in the window's description, as a person reads them."""
    tree = xml.etree.ElementTree.parse(description)
    values = set()
    for element in tree.iter("property"):
        value = element.find("string")
        if element.get("name") in properties and value is not None and value.text:
            values.add(value.text.replace("&", ""))
    return values
