"""The rules for the texts and ingredients of the catalogue's dishes, used by catalogue.py."""

import re
from typing import TYPE_CHECKING, Dict, Iterator, List, Pattern, Sequence, Tuple

if TYPE_CHECKING:
    from catalogue import Dish, Ingredient

Rule = Tuple[Pattern[str], str]

TOLERATED = 2
MAX_TOLERATED = 2  # products a day, and portions of them in one serving
BRAN = ("oat-bran", "wheat-bran")
BRAN_SPOONS = {"tbsp": 1.0, "tsp": 1 / 3, "pinch": 1 / 24, "g": 1 / 12}  # a tablespoon of bran weighs 12 g
MAX_BRAN = {"0": 1.5, "1": 2.0, "2": 2.0, "3": 2.0}  # tablespoons a day by phase
EPSILON = 1e-6

# Grams or millilitres in a unit.
GRAMS = {"g": 1.0, "ml": 1.0, "kg": 1000.0, "l": 1000.0, "tbsp": 15.0, "tsp": 5.0}

MEASURES = {"g": "weight", "kg": "weight", "ml": "volume", "l": "volume", "pinch": "spoon", "drop": "spoon",
            "tsp": "spoon", "tbsp": "spoon"}
PARTS = ({"sprig", "bunch"}, {"stalk", "bunch"}, {"clove", "head"}, {"leaf", "head"})
NEVER_WEIGHED = {"sprig", "bunch", "clove", "cm", "sachet"}

# Products that need cooking through, and those that must at least be heated.
COOKED_THROUGH = set("""
    chicken-breast chicken-thigh chicken-drumstick chicken-whole poussin chicken-mince chicken-liver chicken-heart
    chicken-gizzard turkey-breast turkey-thigh turkey-drumstick turkey-mince turkey-liver turkey-heart turkey-gizzard
    guinea-fowl quail pheasant duck goose pork-tenderloin pork-roast pork-fatty beef-mince veal-mince""".split())
HEATED = set("""
    egg quail-egg egg-white egg-yolk cod haddock pollock saithe hake blue-whiting navaga halibut flounder sea-bass
    sea-bream redfish wolffish tilapia zander pike carp catfish whitefish sturgeon salmon pink-salmon chum-salmon trout
    tuna mackerel sardine squid mussels scallops white-beans red-beans chickpeas lentils-red lentils-green
    split-peas""".split())
SHELL_EGGS = {"egg", "quail-egg", "egg-white"}


def ignoring_case(*rules: Tuple[str, str]) -> Tuple[Rule, ...]:
    return tuple((re.compile(pattern, re.IGNORECASE), reason) for pattern, reason in rules)


FOREIGN = {"ru": re.compile(r"[A-Za-zÀ-ɏ]+"), "en": re.compile(r"[А-Яа-яЁё]+")}
LEFTOVERS = ignoring_case(
    (r"\b(\w+)\s+\1\b", "doubled word"),
    (r"todo|fixme|lorem|\bxxx|\?\?|[_{}<>|*#@=\[\]\\]|\.\.|…|\bnan\b|\bnull\b", "leftover"),
    (r"\d-\d|\s-\s|\"", "dash or quote of a typewriter"),
    (r"\b(canape|crepe|puree|pate|souffle|consomme|saute)(s|ed)?\b", "accent missing"),
)
NAME_FAULTS = LEFTOVERS + (
    (re.compile(r"^-"), "hyphen at the beginning"),
    (re.compile(r"^[^A-ZА-ЯЁ\d]"), "no upper-case first letter"),
    (re.compile(r"[.,;:!?–—-]$"), "trailing punctuation"),
    (re.compile(r"\s{2,}"), "double blank"),
)
TEXT_FAULTS = LEFTOVERS + (
    (re.compile(r"\s{2,}"), "double blank"),
    (re.compile(r"[.,;:]{2,}"), "double punctuation"),
    (re.compile(r"[!?]"), "a sentence ends with a full stop only"),
    (re.compile(r"\s[.,;:)»]"), "blank before punctuation"),
    (re.compile(r"[(«]\s"), "blank after an opening bracket or quote"),
    (re.compile(r"[,;:](?=[^\s\d])"), "no blank after punctuation"),
    (re.compile(r"\.(?=[^\s\d)»”\"])"), "no blank after a full stop"),
    (re.compile(r"\. (?![A-ZА-ЯЁ\d«“\"])"), "no upper-case letter after a full stop"),
    (re.compile(r"\d°C"), "no blank before °C"),
    (re.compile(r"°(?!C)"), "° is followed by a Latin C"),
    (re.compile(r"[^.]$"), "no full stop at the end"),
    (re.compile(r"^[^A-ZА-ЯЁ\d«“\"]"), "no upper-case first letter"),
) + ignoring_case(
    (r"\b(ст|ч|мин|сек|шт|гр|т|др|пр|напр|прибл)\.", "abbreviation"),
    (r"\b(tbsp|tsp|approx|mins?|secs?|etc|ca|oz|e\.g|i\.e)\.", "abbreviation"),
    (r"\bнареза\w+ (двумя|тремя|четырьмя|\w*(пятью|шестью|семью|восемью|девятью|десятью|дцатью)) ",
     "things are cut «на» a number of pieces"),
    # A number or a range stands before a unit, a noun or °C; "2 by 2 cm" has the unit at its end.
    (r"\d(?![\d.,]*\d)(?!–)(?! ?°C)(?! (?:на|by|x) \d)(?! [a-zа-яё])(?!-[a-zа-яё])", "number without a unit"),
)
LANGUAGE_FAULTS = {
    "ru": ignoring_case(
        (r"\d (?:и|или|до|при|пока|а|чтобы|затем|с|в)\b", "number without a unit"),
        (r"\b(?:при|до) \d{2,3}(?!\d|–| ?[°а-яё])", "number without a unit"),
        (r"\d\.\d", "decimal point"),
        (r"непастериз|сыроед|парн(ое|ого) молок|сырое молоко|с кровью|слабой прожарки|карпачч|тартар", "unsafe"),
        (r"нитрит|вялить|засолить|закоптить|консервировать|закатать|стерилиз", "unsafe at home"),
        (r"разморозить (при|на столе|в комнат)|оставить на ночь (на столе|при комнат|в тепле)", "unsafe"),
        (r"\bсыр(ой|ого|ую|ым|ыми) (фарш|кури|свини|индейк|печен)", "unsafe"),
        (r"лечит|исцел|сжигает жир|детокс|гарантир", "medical claim"),
    ),
    "en": ignoring_case(
        (r"\d (?:and|or|to|at|until|then|with|so|for|in)\b(?! each| all)", "number without a unit"),
        (r"\b(?:at|to) \d{2,3}(?!\d|–| ?[°a-z])", "number without a unit"),
        (r"\d,\d", "decimal comma"),
        (r"unpasteuris|unpasteuriz|raw milk|raw food|\brare\b|medium-rare|carpaccio|tartare", "unsafe"),
        (r"nitrite|curing salt|home-cure|cure the|to cure|can the|sterilis", "unsafe at home"),
        (r"thaw (at|on the) (room|counter|table)|overnight (on the|at room)", "unsafe"),
        (r"\braw (mince|chicken|pork|turkey|liver|poultry)", "unsafe"),
        (r"heals|cures|burns fat|detox|guarantee", "medical claim"),
    ),
}
BRACKETS = (("(", ")"), ("«", "»"), ("“", "”"))
NUMBER = re.compile(r"\d+(?:[.,]\d+)?")

# What tells the cook that it is done: a temperature, the colour, the juices, or long cooking until it is tender.
DONE = {
    "ru": re.compile(r"(?<!\d)(7[4-9]|8\d) °C|розов|прозрачн|бел(ым|ого|ое) (на|до|в) срез|белого среза|"
                     r"бел(ым|ой) до середины|полностью сер|до мягкости", re.IGNORECASE),
    "en": re.compile(r"(?<!\d)(7[4-9]|8\d) °C|pink|runs? clear|juices? (is |are )?clear|white (right )?through|"
                     r"white to the|grey right through|fully grey|tender", re.IGNORECASE),
}
HEAT = {
    "ru": re.compile(r"вари|свар|жар|запе|выпе|печь|пекать|туши|припус|кип|°C|сковород|водян|пару|микровол|"
                     r"прогре|нагре|огн", re.IGNORECASE),
    "en": re.compile(r"boil|cook|fry|bake|roast|grill|steam|simmer|poach|stew|brais|°C|microwave|heat|pan",
                     re.IGNORECASE),
}
FOAM = re.compile(r"взби[а-яё]* [^.]*бел(ок|к)", re.IGNORECASE)

# The stem to look for where it changes, or where the text names the part, the colour or the kind.
OTHER_STEMS = {"лёд": "льд", "перец": "перч", "яйцо": "яиц", "белок": "белк", "желток": "желтк", "тунец": "тунц",
               "утка": "утин", "чай": "чаем", "куриное": "желтк", "chicken": "yolk"}


def style_faults(text: str, language: str, rules: Sequence[Rule]) -> List[str]:
    """What is wrong with a name or a recipe text by the given rules."""
    if not text:
        return ["empty text"]
    reasons = []
    for pattern, reason in (*rules, (FOREIGN[language], "letters of the other language")):
        found = pattern.search(text.replace("°C", "°") if pattern is FOREIGN[language] else text)
        if found:
            reasons.append(f"{reason}: …{text[max(0, found.start() - 15):found.end() + 15]}…")
    if any(text.count(opening) != text.count(closing) for opening, closing in BRACKETS):
        reasons.append("unbalanced brackets or quotes")
    return reasons


def clash(unit: str, other: str) -> bool:
    """Whether two dishes should not measure the same product by these units."""
    measures = {MEASURES.get(unit, "count"), MEASURES.get(other, "count")}
    if measures == {"count"}:
        return unit != other and {unit, other} not in PARTS
    if measures == {"count", "weight"}:
        return bool({unit, other} & NEVER_WEIGHED)
    return measures == {"weight", "volume"}


def sentences(text: str) -> List[str]:
    """The paragraphs that the dish screen makes of a recipe."""
    return text[:-1].split(". ")


def numbers(text: str) -> List[str]:
    return sorted(number.replace(",", ".") for number in NUMBER.findall(text))


def stems(name: str) -> Iterator[str]:
    """The beginnings of a product's words, one of which a text that uses it holds."""
    for word in re.findall(r"\w{3,}", name.lower()):
        yield word[:4 if len(word) > 4 else 3]
        if word in OTHER_STEMS:
            yield OTHER_STEMS[word]


def per_serving(dish: "Dish", item: "Ingredient", units: Dict[str, float]) -> float:
    """The amount in one serving; infinite for a unit that is not among the given ones."""
    if item.quantity is None or item.unit is None:
        return float("inf")
    return float(item.quantity) * units.get(item.unit.key, float("inf")) / dish.serves


def text_faults(dish: "Dish", language: str) -> Iterator[str]:
    text = dish.texts[language]
    yield from style_faults(text, language, TEXT_FAULTS + LANGUAGE_FAULTS[language])
    parts = sentences(text)
    if not 4 <= len(parts) <= 11:
        yield f"{len(parts)} sentences, not 4 to 11"
    for sentence in parts:
        if " " not in sentence or len(sentence) > 180:
            yield f"a sentence of one word or more than 180 characters: {sentence[:40]}"
    for item in dish.ingredients:
        if not any(stem in text.lower() for stem in stems(item.product.names[language])):
            yield f"{item.product.key} is not in the text"
    keys = {item.product.key for item in dish.ingredients}
    if keys & COOKED_THROUGH and not DONE[language].search(text):
        yield f"does not say when it is cooked through: {' '.join(sorted(keys & COOKED_THROUGH))}"
    if keys & HEATED and not HEAT[language].search(text):
        yield f"is not heated: {' '.join(sorted(keys & HEATED))}"
    foam = FOAM.search(text)
    if foam and keys & SHELL_EGGS and not HEAT["ru"].search(text, foam.start()):
        yield "an uncooked foam needs pasteurised egg white"


def balance_faults(dish: "Dish") -> Iterator[str]:
    """Whether a serving holds more than a day allows in a phase that offers the dish."""
    bran = sum(per_serving(dish, item, BRAN_SPOONS) for item in dish.ingredients if item.product.key in BRAN)
    for phase in dish.phases():
        if bran > MAX_BRAN[phase] + EPSILON:
            yield f"{bran:.2f} tablespoons of bran a serving, {MAX_BRAN[phase]} are allowed a day in phase {phase}"
            break
    tolerated = [item for item in dish.ingredients if item.product.kind == TOLERATED and item.product.portion]
    if len(tolerated) > MAX_TOLERATED:
        yield f"more than {MAX_TOLERATED} tolerated products: {' '.join(item.product.key for item in tolerated)}"
    portions = 0.0
    for item in tolerated:
        size, unit = item.product.portion
        portions += per_serving(dish, item, GRAMS) / (size * GRAMS[unit])
    if portions > MAX_TOLERATED + EPSILON:
        yield f"{portions:.2f} portions of tolerated products a serving, {MAX_TOLERATED} are allowed a day"


def dish_faults(dish: "Dish") -> Iterator[Tuple[str, str]]:
    """The field and the reason of each fault of a dish."""
    for field, language in (("recipeRU", "ru"), ("recipeENG", "en")):
        for reason in text_faults(dish, language):
            yield field, reason
    russian, english = dish.texts["ru"], dish.texts["en"]
    if numbers(russian) != numbers(english):
        yield "recipeENG", f"other numbers than in Russian: {numbers(russian)}, {numbers(english)}"
    if abs(len(sentences(russian)) - len(sentences(english))) > 1:
        yield "recipeENG", f"{len(sentences(russian))} Russian and {len(sentences(english))} English sentences"
    for reason in balance_faults(dish):
        yield "ingredients", reason
