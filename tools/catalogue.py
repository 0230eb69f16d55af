#!/usr/bin/env python3
"""Makes the application's catalogue property lists from the sources in resources/catalogue.

    catalogue.py --out DIR       writes recipes.plist, ingredients_ru.plist and ingredients_en.plist
    catalogue.py --check         prints the faults of the sources and the number of dishes by category and phase

Faulty sources are never turned into property lists: both forms print "file:line: reason" and end with status 1.
"""

import argparse
import os
import plistlib
import re
import sys

sys.dont_write_bytecode = True  # the sources may be read-only

from dataclasses import dataclass, field
from pathlib import Path
from typing import Dict, List, Optional, Tuple

import catalogue_rules as rules

# Folder, prefix of the dish identifiers, Russian and English name; in display order
CATEGORIES = (
    ("0-salads", "sal", "Салаты", "Salads"),
    ("1-starters", "sta", "Закуски и бутерброды", "Starters and Sandwiches"),
    ("2-soups", "sou", "Первые блюда", "Soups"),
    ("3-mains", "mai", "Вторые блюда", "Main Courses"),
    ("4-savoury-baking", "bak", "Несладкая выпечка", "Savoury Baking"),
    ("5-desserts", "des", "Десерты", "Desserts"),
    ("6-pancakes", "pan", "Блины", "Pancakes"),
    ("7-drinks", "dri", "Напитки", "Drinks"),
    ("8-sauces", "sau", "Соусы", "Sauces"),
)
PHASES = "0123"
PHASE_NAMES = ("Attack", "Cruise", "Consolidation", "Stabilization")
KINDS = ("0", "1", "2", "3")
PHASE_SETS = ("0123", "123", "23", "3")
USES = ("amount", "taste", "note")
MAX_SERVINGS = 24
VOCABULARIES = ("products.txt", "free.txt", "units.txt", "pieces.txt", "tolerated.txt")

# The largest quantity of a unit that one dish may ask for
MAX_QUANTITY = {
    "g": 2000, "kg": 3, "ml": 3000, "l": 3, "cm": 30, "pcs": 60, "tbsp": 20, "tsp": 12, "pinch": 6, "drop": 40,
    "clove": 20, "slice": 40, "bunch": 5, "sprig": 20, "leaf": 60, "stalk": 20, "head": 5, "can": 6, "sachet": 6,
}
METRIC = ("g", "kg", "ml", "l", "cm")
FRACTIONS = {"0": "", "25": "¼", "5": "½", "75": "¾"}

SINGLE_FIELDS = ("nameRU", "nameENG", "serves")
BLOCK_FIELDS = ("ingredients", "recipeRU", "recipeENG")

KEY = re.compile(r"[a-z][a-z0-9]*(-[a-z0-9]+)*")
NUMBER = re.compile(r"(0|[1-9]\d*)(\.\d*[1-9])?")


class Faults:
    """The faults found so far, as the lines to print."""

    def __init__(self) -> None:
        self.messages: List[str] = []

    def add(self, path: Path, line: int, reason: str) -> None:
        self.messages.append(f"{os.path.relpath(path)}:{line}: {reason}")


@dataclass
class Product:
    """A row of products.txt, or of free.txt when it has no kind."""
    key: str
    names: Dict[str, str]
    kind: Optional[int] = None
    phases: str = PHASES
    use: str = "amount"
    pieces: Optional[List[str]] = None  # what English calls one and several of them
    portion: Optional[Tuple[float, str]] = None  # of a tolerated product: quantity and unit


@dataclass
class Unit:
    key: str
    forms: List[str]  # Russian one, few, many; English one, many


@dataclass
class Ingredient:
    product: Product
    quantity: Optional[str]
    unit: Optional[Unit]

    def text(self, language: str) -> str:
        """The line that the program shows. The shopping list takes what precedes " - ", and ignores a note."""
        name = ("- " if self.product.use == "note" else "") + self.product.names[language]
        if self.quantity is None or self.unit is None:
            taste = " - по вкусу" if language == "ru" else " - to taste"
            return name + (taste if self.product.use == "taste" else "")
        number = amount(self.quantity, self.unit.key, language)
        if language == "ru":
            return f"{name} - {number} {self.unit.forms[russian_form(self.quantity)]}"
        forms = self.product.pieces if self.unit.key == "pcs" and self.product.pieces else self.unit.forms[3:]
        return f"{name} - {number} {forms[0 if float(self.quantity) <= 1 else 1]}"


@dataclass
class Block:
    """A field of a dish file: the line it starts at and its value, or its lines with their numbers."""
    line: int
    value: str = ""
    lines: List[Tuple[int, str]] = field(default_factory=list)

    def text(self) -> str:
        return " ".join(text for _, text in self.lines)


@dataclass
class Dish:
    dish_id: str
    category: Tuple[str, str, str, str]
    names: Dict[str, str]
    serves: int
    texts: Dict[str, str]
    ingredients: List[Ingredient]

    def phases(self) -> List[str]:
        return [phase for phase in PHASES if all(phase in item.product.phases for item in self.ingredients)]

    def record(self) -> Dict[str, object]:
        portions = ("порцию", "порции", "порций")[russian_form(str(self.serves))]
        return {
            "dishID": self.dish_id,
            "nameRU": self.names["ru"],
            "nameENG": self.names["en"],
            "dietPeriod": ", ".join(self.phases()),
            "recipeRU": f"На {self.serves} {portions}. {self.texts['ru']}",
            "recipeENG": f"Serves {self.serves}. {self.texts['en']}",
            "catRU": self.category[2],
            "catENG": self.category[3],
            "ingredientsRU": [item.text("ru") for item in self.ingredients],
            "ingredientsENG": [item.text("en") for item in self.ingredients],
        }


def russian_form(number: str) -> int:
    """0, 1 or 2: the one, few or many form after the number; a fraction takes few."""
    if "." in number:
        return 1
    value = int(number)
    if value // 10 % 10 == 1:
        return 2
    return {1: 0, 2: 1, 3: 1, 4: 1}.get(value % 10, 2)


def amount(quantity: str, unit: str, language: str) -> str:
    """A quantity as people write it: 1,5 (1.5 in English) in metric units, 1½ in all others."""
    whole, _, fraction = quantity.partition(".")
    if unit not in METRIC and fraction in FRACTIONS:
        return (whole if whole != "0" else "") + FRACTIONS[fraction]
    return quantity.replace(".", ",") if language == "ru" else quantity


def read_lines(path: Path, faults: Faults) -> List[Tuple[int, str]]:
    """The numbered lines of a file that are neither blank nor a comment."""
    try:
        text = path.read_text(encoding="utf-8")
    except (OSError, UnicodeDecodeError) as error:
        faults.add(path, 1, f"cannot be read: {error}")
        return []
    lines = enumerate(text.split("\n"), 1)
    return [(number, line.rstrip()) for number, line in lines if line.strip() and not line.startswith("#")]


def read_table(path: Path, columns: int, faults: Faults) -> List[Tuple[int, List[str]]]:
    """The numbered rows of a vocabulary file that have the right number of columns and a new, well-formed key."""
    rows = []
    keys = set()
    for number, line in read_lines(path, faults):
        cells = [cell.strip() for cell in line.split("|")]
        if len(cells) != columns or not all(cells):
            faults.add(path, number, f"{columns} filled columns expected")
        elif not KEY.fullmatch(cells[0]):
            faults.add(path, number, f"malformed key {cells[0]}")
        elif cells[0] in keys:
            faults.add(path, number, f"duplicate key {cells[0]}")
        else:
            keys.add(cells[0])
            rows.append((number, cells))
    return rows


def read_products(source: Path, faults: Faults) -> Dict[str, Product]:
    """All products and free things by key, in file order."""
    products: Dict[str, Product] = {}
    taken = set()
    for path, columns in ((source / "products.txt", 5), (source / "free.txt", 4)):
        for number, cells in read_table(path, columns, faults):
            key, names = cells[0], {"ru": cells[-2], "en": cells[-1]}
            if columns == 5 and (cells[1] not in KINDS or cells[2] not in PHASE_SETS):
                faults.add(path, number, f"unknown kind or phases: {cells[1]} {cells[2]}")
                continue
            if columns == 4 and cells[1] not in USES:
                faults.add(path, number, f"unknown use: {cells[1]}")
                continue
            if key in products:
                faults.add(path, number, f"duplicate key {key}")
            for language, name in names.items():
                for reason in rules.style_faults(name, language, rules.NAME_FAULTS):
                    faults.add(path, number, reason)
                if "," in name:
                    faults.add(path, number, f"comma in a name: {name}")
                if (language, name.casefold()) in taken:
                    faults.add(path, number, f"duplicate name: {name}")
                taken.add((language, name.casefold()))
            products[key] = (Product(key, names, int(cells[1]), cells[2]) if columns == 5
                             else Product(key, names, use=cells[1]))
    read_details(source, products, faults)
    return products


def read_details(source: Path, products: Dict[str, Product], faults: Faults) -> None:
    """Adds the names of pieces and the portions of tolerated products."""
    for name in ("pieces.txt", "tolerated.txt"):
        path = source / name
        for number, (key, first, second) in read_table(path, 3, faults):
            product = products.get(key)
            if product is None:
                faults.add(path, number, f"unknown product {key}")
            elif name == "pieces.txt":
                product.pieces = [first, second]
            elif product.kind != rules.TOLERATED or not NUMBER.fullmatch(first) or second not in rules.GRAMS:
                faults.add(path, number, "a tolerated product, a number and a unit that is no count expected")
            else:
                product.portion = (float(first), second)
    for product in products.values():
        if product.kind == rules.TOLERATED and product.portion is None:
            faults.add(source / "tolerated.txt", 1, f"missing product {product.key}")


def read_fields(path: Path, faults: Faults) -> Dict[str, Block]:
    """The fields of a dish file; a field that is absent or twice in the file is a fault."""
    fields: Dict[str, Block] = {}
    current: Optional[Block] = None
    for number, line in read_lines(path, faults):
        if line[0].isspace():
            if current is None:
                faults.add(path, number, "indented line outside of a block")
            else:
                current.lines.append((number, line.strip()))
            continue
        name, colon, value = line.partition(":")
        block = Block(number, value.strip())
        current = block if name in BLOCK_FIELDS else None
        if not colon or name not in SINGLE_FIELDS + BLOCK_FIELDS:
            faults.add(path, number, f"unknown field {name}")
        elif name in fields:
            faults.add(path, number, f"duplicate field {name}")
        elif name in BLOCK_FIELDS and block.value:
            faults.add(path, number, f"text behind the colon of {name}")
        else:
            fields[name] = block
    for name in SINGLE_FIELDS + BLOCK_FIELDS:
        if name not in fields:
            faults.add(path, 1, f"missing field {name}")
    return fields


class Reader:
    """Reads the catalogue's sources and collects their faults."""

    def __init__(self, source: Path) -> None:
        self.source = source
        self.faults = Faults()
        self.products = read_products(source, self.faults)
        self.units = {cells[0]: Unit(cells[0], cells[1:])
                      for _, cells in read_table(source / "units.txt", 6, self.faults)}
        self.taken_names: Dict[Tuple[str, str], str] = {}
        self.measured: Dict[str, Dict[str, str]] = {}  # by product: the units and the first dish that has each
        self.dishes = self.read_dishes()

    def read_dishes(self) -> List[Dish]:
        dishes = []
        known = {category[0] for category in CATEGORIES} | set(VOCABULARIES)
        for path in sorted(self.source.glob("*")):
            if path.name not in known:
                self.faults.add(path, 1, "does not belong to the catalogue")
        for category in CATEGORIES:
            for path in sorted((self.source / category[0]).glob("*")):
                if re.fullmatch(category[1] + r"\d\d\.txt", path.name):
                    dish = self.read_dish(path, category)
                    dishes += [dish] if dish else []
                else:
                    self.faults.add(path, 1, f"a file here is named {category[1]} and two digits and .txt")
        return dishes

    def read_dish(self, path: Path, category: Tuple[str, str, str, str]) -> Optional[Dish]:
        fields = read_fields(path, self.faults)
        if len(fields) != len(SINGLE_FIELDS + BLOCK_FIELDS):
            return None
        names = {"ru": fields["nameRU"], "en": fields["nameENG"]}
        texts = {"ru": fields["recipeRU"], "en": fields["recipeENG"]}
        for language in names:
            self.check_name(path, names[language], language)
        serves = fields["serves"]
        if not re.fullmatch(r"[1-9]\d?", serves.value) or int(serves.value) > MAX_SERVINGS:
            self.faults.add(path, serves.line, f"number of servings not from 1 to {MAX_SERVINGS}: {serves.value}")
            return None
        ingredients = self.read_ingredients(path, fields["ingredients"])
        dish = Dish(path.stem, category, {key: block.value for key, block in names.items()}, int(serves.value),
                    {key: block.text() for key, block in texts.items()}, ingredients)
        for name, reason in rules.dish_faults(dish):
            self.faults.add(path, fields[name].line, reason)
        return dish

    def check_name(self, path: Path, block: Block, language: str) -> None:
        for reason in rules.style_faults(block.value, language, rules.NAME_FAULTS):
            self.faults.add(path, block.line, reason)
        other = self.taken_names.setdefault((language, block.value.casefold()), path.stem)
        if other != path.stem:
            self.faults.add(path, block.line, f"the name of {other}, too: {block.value}")

    def read_ingredients(self, path: Path, block: Block) -> List[Ingredient]:
        ingredients = []
        for number, line in block.lines:
            ingredient, reason = self.read_ingredient(line)
            if reason:
                self.faults.add(path, number, f"{reason} ({line})")
            if ingredient and any(item.product is ingredient.product for item in ingredients):
                self.faults.add(path, number, f"duplicate product {ingredient.product.key}")
            if ingredient and ingredient.unit:
                self.check_unit(path, number, ingredient.product, ingredient.unit.key)
            ingredients += [ingredient] if ingredient else []
        if all(item.product.kind is None for item in ingredients):
            self.faults.add(path, block.line, "no product")
        return ingredients

    def check_unit(self, path: Path, number: int, product: Product, unit: str) -> None:
        """A product is measured alike in all dishes, and what is counted in pieces has an English name for them."""
        if unit == "pcs" and product.pieces is None:
            self.faults.add(path, number, f"{product.key} is not in pieces.txt")
        units = self.measured.setdefault(product.key, {})
        for other, dish in units.items():
            if rules.clash(unit, other):
                self.faults.add(path, number, f"{product.key} is measured by {unit} here and by {other} in {dish}")
        units.setdefault(unit, path.stem)

    def read_ingredient(self, line: str) -> Tuple[Optional[Ingredient], str]:
        """The ingredient of a line, and what is wrong with the line or an empty text."""
        cells = line.split()
        product = self.products.get(cells[0])
        if product is None:
            return None, "unknown product"
        if len(cells) == 1:
            return Ingredient(product, None, None), "no quantity" if product.use == "amount" else ""
        if len(cells) != 3:
            return None, "an ingredient is a key, or a key, a number and a unit"
        quantity, unit = cells[1:]
        if not NUMBER.fullmatch(quantity) or quantity == "0":
            return None, "malformed number"
        if unit not in self.units:
            return None, "unknown unit"
        too_much = float(quantity) > MAX_QUANTITY.get(unit, 100)
        return Ingredient(product, quantity, self.units[unit]), "quantity too large" if too_much else ""

    def reference_list(self, language: str) -> List[Dict[str, object]]:
        return [{"name": product.names[language], "Дополнительное поле": product.kind,
                 "Периоды": ",".join(product.phases)}
                for product in self.products.values() if product.kind is not None]


def print_counts(dishes: List[Dish]) -> None:
    """The table of the numbers of dishes by category and phase."""
    print("{:<24}{:>7}".format("category", "dishes") + "".join(f"{name:>15}" for name in PHASE_NAMES))
    rows = [(category[3], [dish for dish in dishes if dish.category == category]) for category in CATEGORIES]
    for title, members in rows + [("all", dishes)]:
        counts = [sum(phase in dish.phases() for dish in members) for phase in PHASES]
        print(f"{title:<24}{len(members):>7}" + "".join(f"{count:>15}" for count in counts))


def main() -> int:
    parser = argparse.ArgumentParser(description="Checks the catalogue's sources and makes its property lists.")
    parser.add_argument("--source", type=Path, help="folder of the sources (default: resources/catalogue)",
                        default=Path(__file__).resolve().parent.parent / "resources" / "catalogue")
    parser.add_argument("--out", type=Path, help="folder to write the property lists to")
    parser.add_argument("--check", action="store_true", help="print the faults and the counts")
    arguments = parser.parse_args()
    if not arguments.check and arguments.out is None:
        parser.error("--out or --check is needed")

    reader = Reader(arguments.source)
    for message in reader.faults.messages:
        print(message, file=sys.stdout if arguments.check else sys.stderr)
    if arguments.check:
        print_counts(reader.dishes)
    if reader.faults.messages:
        return 1
    if arguments.out is not None:
        arguments.out.mkdir(parents=True, exist_ok=True)
        lists = {"ingredients_ru": reader.reference_list("ru"), "ingredients_en": reader.reference_list("en"),
                 "recipes": [dish.record() for dish in reader.dishes]}
        for name, value in lists.items():
            (arguments.out / f"{name}.plist").write_bytes(plistlib.dumps(value, sort_keys=False))
    return 0


if __name__ == "__main__":
    sys.exit(main())
