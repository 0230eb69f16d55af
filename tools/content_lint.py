#!/usr/bin/env python3
"""Checks what ships beside the program: string tables, pages, tips, pictures and the size of the catalogue.

    content_lint.py [--root DIR]     prints "file:line: reason" for every fault, and ends with status 1 if there is one

The sources are read as well: every text that they look up needs an entry in each string table, and an entry that
nothing looks up is a fault unless tests/content/keys-to-come.txt lists it. A listed key that is used is no fault.
"""

import argparse
import plistlib
import re
import sys
from dataclasses import dataclass
from pathlib import Path
from typing import Dict, Iterator, List, NamedTuple, Pattern, Set
from xml.etree import ElementTree
from xml.parsers.expat import ExpatError

sys.dont_write_bytecode = True  # the sources may be read-only

import catalogue  # noqa: E402
import catalogue_rules  # noqa: E402

BASE = "ru"  # the language that the others are compared with
FOREIGN = {"ru": re.compile(r"[A-Za-z]{2,}|[Ѐ-ԯ][A-Za-z]|[A-Za-z][Ѐ-ԯ]"), "en": re.compile(r"[Ѐ-ԯ]")}
# Names of resources, codes and proper names may be in Latin letters; each language is named in itself.
LATIN_IN_RUSSIAN = re.compile(r"iCloud|App Store|Facebook|nameRU|ingredientsRU|recipeRU|\w*_ru|%ld|E-mail")
OWN_NAMES = ("Русский",)
CYRILLIC = FOREIGN["en"]
DATA = ("Дополнительное поле", "Периоды")  # Russian texts of the sources that are no keys

STRINGS = re.compile(r'\s+|/\*.*?\*/|//[^\n]*|"((?:[^"\\]|\\.)*)"\s*=\s*"((?:[^"\\]|\\.)*)"\s*;', re.DOTALL)
ESCAPE = re.compile(r"\\(?:[uU]([0-9A-Fa-f]{4})|x([0-9A-Fa-f]{2})|(.|\n))")
VALUE = re.compile(r"%(?:\d+\$)?[-+ 0]*\d*(?:\.\d+)?(?:l?[dufi]|@)")
# "meat_%ld", "water_%1" or, where the code adds a number, "water_".
PLACE = r"%(?:ld|lu|d|i|u|@|1)"
NUMBERED = re.compile(rf"(?=...)[A-Za-z_]*_({PLACE}(_[a-z]+)?)?")
PICTURE_NAME = re.compile(r"[\w%@-]+\.(png|svg|jpg)")
EXTENSION = re.compile(r"\.(png|svg|jpg)$")
NUMBERED_PICTURES = {"meat_{}": [*range(1, 12), *range(13, 42)], "water_{}": range(1, 9), "ic_{}": range(9),
                     "{}_recipes_icon": range(9), "ing_cat_{}": range(4), "about_vc_icon_{}": range(5)}
# Comments and includes; raw texts; texts; characters and templates, which are texts in QML; words; signs.
TOKEN = re.compile(
    r'(//[^\n]*|/\*.*?\*/|#include[^\n]*)|(?:u8|u|L)?R"(\w*)\((.*?)\)\2"|"((?:\\.|[^"\\])*)"'
    r"|'((?:\\.|[^'\\])*)'|`([^`]*)`|(\d[\w']*|\w+)|(\S)", re.DOTALL)
AFFIXES = ("u", "u8", "L", "_qs", "_s")  # do not separate adjacent literals

DOUBLED = re.compile(r"\b(\w+)\s+\1\b", re.IGNORECASE)
OUTSIDE_LINK = re.compile(r"(https?:)?//[a-z]|www\.|mailto:|@import")
ACTIVE = ("script", "iframe", "img", "object", "form", "style")
WARNINGS = {"ru": ("врач", "беремен", "диабет", "почек"), "en": ("doctor", "pregnan", "diabet", "kidney")}
MIN_TIPS, MIN_PAGE, MIN_DISHES, MIN_IN_CATEGORY, MIN_PRODUCTS = 20, 300, 320, 30, 180
# The days of Attack and Cruise are filled from these categories without asking the user.
FILLED_FROM = ("1-starters", "2-soups", "3-mains", "5-desserts", "7-drinks")
MIN_TO_FILL = {"0": 14, "1": 24}


@dataclass
class Literal:
    text: str
    place: str  # file and line
    localized: bool  # an argument of localized() or locolized()


class Page(NamedTuple):
    text: str
    elements: List[str]
    heading: str


def unescaped(literal: str) -> str:
    def sign(match: "re.Match[str]") -> str:
        code = match[1] or match[2]
        return chr(int(code, 16)) if code else {"n": "\n", "t": "\t", "\n": ""}.get(match[3], match[3])
    return ESCAPE.sub(sign, literal)


def literals(code: str, name: str) -> List[Literal]:
    """The texts in a C++ or QML source: adjacent ones joined, escapes resolved, comments and includes left out."""
    found: List[Literal] = []
    word, joins, depth, call_depth = "", False, 0, 0
    for token in TOKEN.finditer(code):
        comment, _, raw, text, character, template, identifier, sign = token.groups()
        if name.endswith(".qml") and text is None:
            text = character if character is not None else template
        if raw is not None or text is not None:
            value = raw if raw is not None else unescaped(text)
            if joins:
                found[-1].text += value
            else:
                found.append(Literal(value, f"{name}:{code.count(chr(10), 0, token.start()) + 1}", call_depth > 0))
            joins, word = True, ""
        elif identifier is not None:
            word = identifier
            joins = joins and word in AFFIXES
        elif sign is not None:
            if sign == "(":
                depth += 1
                if not call_depth and word in ("localized", "locolized"):
                    call_depth = depth
            elif sign == ")":
                call_depth = 0 if depth == call_depth else call_depth
                depth -= 1
            word, joins = "", False
    return found


def numbered(text: str) -> Pattern[str]:
    """What a text with a place for a number, or one that ends with "_", matches."""
    fixed = re.split(PLACE, text)
    return re.compile(r"\d+".join(map(re.escape, fixed)) + (r"\d+" if text.endswith("_") else "") + r"\Z")


class Lint:
    def __init__(self, root: Path) -> None:
        self.root = root
        self.resources = root / "resources"
        self.faults: List[str] = []
        self.notes: List[str] = []
        self.languages = sorted((p.stem for p in self.resources.glob("*.lproj")), key=lambda code: (code != BASE, code))
        self.tables = {language: self.read_table(language) for language in self.languages}
        self.literals = [literal for path in sorted((root / "src").rglob("*")) if path.suffix in (".cpp", ".h", ".qml")
                         for literal in literals(path.read_text(encoding="utf-8"), str(path.relative_to(root)))]

    def fault(self, place: object, reason: str) -> None:
        name = place.relative_to(self.root) if isinstance(place, Path) else place
        self.faults.append(f"{name}: {reason}")

    def folder(self, language: str) -> Path:
        return self.resources / f"{language}.lproj"

    def read_table(self, language: str) -> Dict[str, str]:
        path = self.folder(language) / "Localizable.strings"
        text = path.read_text(encoding="utf-8")
        table: Dict[str, str] = {}
        position = 0
        while position < len(text):
            entry = STRINGS.match(text, position)
            if not entry:
                self.fault(path, f"line {text.count(chr(10), 0, position) + 1} is no entry")
                return table
            if entry[1] is not None:
                key = unescaped(entry[1])
                if key in table:
                    self.fault(path, f"twice: {key}")
                table[key] = unescaped(entry[2])
            position = entry.end()
        return table

    def check_tables(self) -> None:
        base = self.tables[BASE]
        for language, table in self.tables.items():
            path = self.folder(language) / "Localizable.strings"
            for key in sorted(base.keys() ^ table.keys()):
                self.fault(path, f"in one language only: {key}")
            for key, text in table.items():
                if not text.strip() or text != text.strip() or "  " in text:
                    self.fault(path, f"empty, or blanks too many: {key}")
                shown = LATIN_IN_RUSSIAN.sub("", text) if language == "ru" else text
                if language in FOREIGN and FOREIGN[language].search(shown) and key not in OWN_NAMES:
                    self.fault(path, f"letters of another language: {text}")
                places = VALUE.findall(text)
                if places != VALUE.findall(base.get(key, text)) or places != (VALUE.findall(key) or places):
                    self.fault(path, f"other places for values: {key}")

    def check_keys(self) -> None:
        """Every key that the sources use has its text, and every text is used or listed as yet to come."""
        known = set(self.tables[BASE])
        used: Set[str] = set()
        for literal in self.literals:
            matches = known & {literal.text}
            if NUMBERED.fullmatch(literal.text):
                matches |= {key for key in known if numbered(literal.text).match(key)}
            # Every Russian text is a key, wherever it stands.
            if not matches and (literal.localized or CYRILLIC.search(literal.text) and literal.text not in DATA):
                self.fault(literal.place, f"no text for {literal.text}")
            used |= matches | known & {EXTENSION.sub("", literal.text)}
        path = self.root / "tests" / "content" / "keys-to-come.txt"
        lines = path.read_text(encoding="utf-8").split("\n") if path.exists() else []
        listed = {line.replace("\\n", "\n") for line in lines if line and not line.startswith("#")}
        for key in sorted(known - used - listed):
            self.fault(self.folder(BASE) / "Localizable.strings", f"nothing uses: {key}")
        for key in sorted(listed - known):
            self.fault(path, f"in no table: {key}")
        if listed & used:
            self.notes.append(f"{path.relative_to(self.root)}: {len(listed & used)} keys are used by now and can go")

    def check_pictures(self) -> None:
        files = {path.stem for path in (self.resources / "images").glob("*.svg")}
        for literal in self.literals:
            if PICTURE_NAME.fullmatch(literal.text) and not literal.text.startswith("_"):
                name = EXTENSION.sub("", literal.text)
                if name not in files and not ("%" in name and any(numbered(name).match(file) for file in files)):
                    self.fault(literal.place, f"no picture {literal.text}")
        for name in (form.format(number) for form, series in NUMBERED_PICTURES.items() for number in series):
            if name not in files:
                self.fault(self.resources / "images", f"no picture {name}")

    def tips(self, language: str) -> List[str]:
        path = self.folder(language) / (self.tables[language].get("tips plist", "") + ".plist")
        try:
            tips = plistlib.loads(path.read_bytes())
        except (OSError, ValueError, plistlib.InvalidFileException, ExpatError) as error:
            self.fault(path, f"cannot be read: {error}")
            return []
        if not isinstance(tips, list) or any(not tip or str(tip) != " ".join(str(tip).split()) for tip in tips):
            self.fault(path, "not an array of texts without needless blanks")
            return []
        if len(set(tips)) != len(tips) or len(tips) < MIN_TIPS:
            self.fault(path, f"a title twice, or fewer than {MIN_TIPS}")
        return tips

    def read_page(self, path: Path, language: str) -> Iterator[Page]:
        try:
            source = path.read_text(encoding="utf-8")
            html = ElementTree.fromstring(source)
        except (OSError, UnicodeDecodeError, ElementTree.ParseError) as error:
            self.fault(path, f"cannot be read: {error}")
            return
        metas = [meta.attrib for meta in html.findall("head/meta")]
        link = html.find("head/link")
        sheet = link.get("href", "") if link is not None else ""
        elements = [element.tag for element in html.iter()]
        text = " ".join(" ".join(html.itertext()).split())
        body = text[text.find(" ", len(text) // 4):]  # the title is repeated as the heading
        for reason, fault in (
                ("another lang", html.get("lang") != language),
                ("no viewport or charset", not any(m.get("name") == "viewport" for m in metas) or
                 not metas or metas[0].get("charset") != "utf-8"),
                ("no style sheet", not sheet or not (path.parent / sheet).exists()),
                ("active elements", any(element in ACTIVE for element in elements)),
                ("a link outside", OUTSIDE_LINK.search(source)),
                ("too little to read", len(text) <= MIN_PAGE),
                ("letters of another language", language in FOREIGN and FOREIGN[language].search(text)),
                ("doubled word", DOUBLED.search(body))):
            if fault:
                self.fault(path, reason)
        yield Page(text, elements, "".join(html.findtext("body/h1", "")))

    def check_pages(self) -> None:
        structure: Dict[str, Dict[int, List[str]]] = {}
        for language, table in self.tables.items():
            tips = self.tips(language)
            names = [table.get("about html", ""), table.get("phases html", "")]
            names += [f"sov{number}{table.get('tips_sufix', '')}" for number in range(1, len(tips) + 1)]
            structure[language] = {}
            for index, name in enumerate(names):
                path = self.folder(language) / f"{name}.html"
                for page in self.read_page(path, language):
                    structure[language][index] = page.elements
                    if index >= 2 and page.heading != tips[index - 2]:
                        self.fault(path, "the list of tips has another title")
                    if index == 0 and not all(word in page.text.lower() for word in WARNINGS.get(language, ())):
                        self.fault(path, "does not say who should ask a doctor")
            known = {"Localizable.strings", f"{table.get('tips plist')}.plist", *(f"{name}.html" for name in names)}
            for path in self.folder(language).iterdir():
                if path.name not in known:
                    self.fault(path, "is named nowhere")
            if structure[language] != structure[BASE]:
                differing = [i for i, e in structure[BASE].items() if structure[language].get(i) != e]
                self.fault(self.folder(language), f"other pages or elements than in {BASE}: pages {differing}")

    def check_catalogue(self) -> None:
        reader = catalogue.Reader(self.resources / "catalogue")
        self.faults += reader.faults.messages
        path = self.resources / "catalogue"
        products = [product for product in reader.products.values() if product.kind is not None]
        for product in products:
            if (product.kind == 1) != (product.phases == "3"):
                self.fault(path, f"what is forbidden belongs to Stabilization, and nothing else does: {product.key}")
            if product.kind == catalogue_rules.TOLERATED and product.phases != "123":
                self.fault(path, f"what is tolerated is not allowed in Attack: {product.key}")
        for key in sorted((catalogue_rules.COOKED_THROUGH | catalogue_rules.HEATED) - reader.products.keys()):
            self.fault(path, f"a rule is about an unknown product: {key}")
        if len(products) < MIN_PRODUCTS or len(reader.dishes) < MIN_DISHES:
            self.fault(path, f"{len(products)} products and {len(reader.dishes)} dishes are too few")
        for category in catalogue.CATEGORIES:
            members = [dish for dish in reader.dishes if dish.category == category]
            needed = {"": MIN_IN_CATEGORY, **(MIN_TO_FILL if category[0] in FILLED_FROM else {})}
            for phase, least in needed.items():
                count = sum(phase in dish.phases() or not phase for dish in members)
                if count < least:
                    self.fault(path / category[0], f"{count} dishes {phase and 'in phase ' + phase}, not {least}")


def main() -> int:
    parser = argparse.ArgumentParser(description="Checks what ships beside the program.")
    parser.add_argument("--root", type=Path, default=Path(__file__).resolve().parent.parent,
                        help="folder of the project")
    lint = Lint(parser.parse_args().root.resolve())
    lint.check_tables()
    lint.check_keys()
    lint.check_pictures()
    lint.check_pages()
    lint.check_catalogue()
    for message in lint.faults + [f"note: {note}" for note in lint.notes]:
        print(message)
    return 1 if lint.faults else 0


if __name__ == "__main__":
    sys.exit(main())
