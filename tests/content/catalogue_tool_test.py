"""Tests of tools/catalogue.py: a small catalogue that is fine, and the same with one fault a rule.

    catalogue_tool_test.py PATH_OF_THE_TOOL
"""

import contextlib
import importlib.util
import io
import plistlib
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

TOOL = Path(sys.argv.pop(1)) if len(sys.argv) > 1 else Path(__file__).parents[2] / "tools" / "catalogue.py"
sys.path.insert(0, str(TOOL.parent))
loader = importlib.util.spec_from_file_location("catalogue", TOOL)
catalogue = importlib.util.module_from_spec(loader)
sys.modules["catalogue"] = catalogue
loader.loader.exec_module(catalogue)

PRODUCTS = """# key | kind | phases | Russian name | English name
egg | 0 | 0123 | Яйцо | Egg
tomato | 0 | 123 | Помидор | Tomato
cocoa | 2 | 123 | Какао | Cocoa
cornstarch | 2 | 123 | Крахмал | Cornstarch
milk-powder | 2 | 123 | Сухое молоко | Milk powder
apple | 0 | 23 | Яблоко | Apple
sugar | 1 | 3 | Сахар | Sugar
oat-bran | 3 | 0123 | Отруби | Oat bran
duck | 1 | 3 | Утка | Duck
"""
FREE = """salt | taste | Соль | Salt
water | note | Вода | Water
"""
UNITS = """g | г | г | г | g | g
pcs | шт. | шт. | шт. | pc | pcs
clove | зубчик | зубчика | зубчиков | clove | cloves
tbsp | ст. л. | ст. л. | ст. л. | tbsp | tbsp
"""
PIECES = "egg | egg | eggs\ntomato | tomato | tomatoes\n"
TOLERATED = "cocoa | 1 | tbsp\ncornstarch | 20 | g\nmilk-powder | 20 | g\n"
DISH = """nameRU: Яйца с помидором
nameENG: Eggs with tomato
serves: 2
ingredients:
  egg 1.5 pcs
  tomato 100 g
  salt
recipeRU:
  Запечь яйца с помидором, яблоком или сахаром при 180 °C за 20 минут.
  Слегка посолить.
  Добавить какао, крахмал, молоко и отруби по вкусу.
  Разлить воду.
  Подать сразу к столу.
recipeENG:
  Bake the eggs with the tomato, apple or sugar at 180 °C for 20 minutes.
  Season with salt.
  Add the cocoa, cornstarch, milk and bran to taste.
  Pour the water.
  Serve at once.
"""


class Catalogue(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.source = Path(folder.name) / "catalogue"
        self.out = Path(folder.name) / "out"
        for name, text in (("products.txt", PRODUCTS), ("free.txt", FREE), ("units.txt", UNITS),
                           ("pieces.txt", PIECES), ("tolerated.txt", TOLERATED)):
            self.write(name, text)
        self.write("0-salads/sal01.txt", DISH)

    def write(self, name, text):
        path = self.source / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def run_tool(self, *arguments):
        """The exit status and what was printed."""
        output = io.StringIO()
        command = ["catalogue.py", "--source", str(self.source), *arguments]
        with mock.patch.object(sys, "argv", command), contextlib.redirect_stdout(output), \
                contextlib.redirect_stderr(output):
            status = catalogue.main()
        return status, output.getvalue()

    def lists(self):
        status, output = self.run_tool("--out", str(self.out))
        self.assertEqual((status, output), (0, ""))
        return {path.stem: plistlib.loads(path.read_bytes()) for path in self.out.glob("*.plist")}

    def test_makes_the_three_lists(self):
        lists = self.lists()
        self.assertEqual(lists["recipes"], [{
            "dishID": "sal01", "nameRU": "Яйца с помидором", "nameENG": "Eggs with tomato", "dietPeriod": "1, 2, 3",
            "recipeRU": "На 2 порции. " + " ".join(line.strip() for line in DISH.split("\n")[8:13]),
            "recipeENG": "Serves 2. " + " ".join(line.strip() for line in DISH.split("\n")[14:19]),
            "catRU": "Салаты", "catENG": "Salads",
            "ingredientsRU": ["Яйцо - 1½ шт.", "Помидор - 100 г", "Соль - по вкусу"],
            "ingredientsENG": ["Egg - 1½ eggs", "Tomato - 100 g", "Salt - to taste"]}])
        self.assertEqual([entry["name"] for entry in lists["ingredients_ru"]][:2], ["Яйцо", "Помидор"])
        self.assertEqual(lists["ingredients_en"][6], {"name": "Sugar", "Дополнительное поле": 1, "Периоды": "3"})
        for russian, english in zip(lists["ingredients_ru"], lists["ingredients_en"]):
            self.assertEqual({**russian, "name": ""}, {**english, "name": ""})

    def test_the_order_is_that_of_the_categories(self):
        for name, title in (("8-sauces/sau01.txt", "1"), ("2-soups/sou02.txt", "12"), ("2-soups/sou01.txt", "123")):
            self.write(name, DISH.replace("Яйца с помидором", title).replace("Eggs with tomato", title[::-1]))
        self.assertEqual([dish["dishID"] for dish in self.lists()["recipes"]], ["sal01", "sou01", "sou02", "sau01"])

    def test_phases_are_those_that_all_products_share(self):
        for ingredients, phases in (("egg 1 pcs\n  salt", "0, 1, 2, 3"), ("egg 1 pcs\n  apple 5 g", "2, 3"),
                                    ("tomato 1 pcs\n  sugar 5 g", "3")):
            self.write("0-salads/sal01.txt", DISH.replace("egg 1.5 pcs\n  tomato 100 g\n  salt", ingredients))
            self.assertEqual(self.lists()["recipes"][0]["dietPeriod"], phases, ingredients)

    def test_plural_forms(self):
        russian = {"1": 0, "2": 1, "4": 1, "5": 2, "11": 2, "12": 2, "14": 2, "21": 0, "22": 1, "25": 2, "100": 2,
                   "101": 0, "111": 2, "0.5": 1, "1.5": 1}
        for number, form in russian.items():
            self.assertEqual(catalogue.russian_form(number), form, number)
        for quantity, texts in (("1 clove", ("1 зубчик", "1 clove")), ("3 clove", ("3 зубчика", "3 cloves")),
                                ("6 clove", ("6 зубчиков", "6 cloves")), ("0.5 clove", ("½ зубчика", "½ clove")),
                                ("0.3 clove", ("0,3 зубчика", "0.3 clove")), ("2.75 tbsp", ("2¾ ст. л.", "2¾ tbsp")),
                                ("1.5 g", ("1,5 г", "1.5 g")), ("1 pcs", ("1 шт.", "1 egg"))):
            self.write("0-salads/sal01.txt", DISH.replace("egg 1.5 pcs", f"egg {quantity}"))
            dish = self.lists()["recipes"][0]
            self.assertEqual((dish["ingredientsRU"][0], dish["ingredientsENG"][0]),
                             tuple(f"{name} - {text}" for name, text in zip(("Яйцо", "Egg"), texts)))
        for serves, words in ((1, "На 1 порцию."), (3, "На 3 порции."), (12, "На 12 порций.")):
            self.write("0-salads/sal01.txt", DISH.replace("serves: 2", f"serves: {serves}"))
            self.assertTrue(self.lists()["recipes"][0]["recipeRU"].startswith(words))

    def test_a_note_stays_off_the_shopping_list(self):
        for line, texts in (("water", ["- Вода", "- Water"]), ("water 200 g", ["- Вода - 200 г", "- Water - 200 g"])):
            self.write("0-salads/sal01.txt", DISH.replace("  salt\n", f"  {line}\n"))
            dish = self.lists()["recipes"][0]
            self.assertEqual([dish["ingredientsRU"][2], dish["ingredientsENG"][2]], texts)

    def test_the_limits_of_a_day(self):
        bran, tolerated = "tablespoons of bran a serving", "portions of tolerated products a serving"
        for lines, reason in (("egg 1 pcs\n  oat-bran 3 tbsp", None), ("egg 1 pcs\n  oat-bran 3.1 tbsp", bran),
                              ("tomato 1 pcs\n  oat-bran 4 tbsp", None), ("tomato 1 pcs\n  oat-bran 60 g", bran),
                              ("egg 1 pcs\n  oat-bran 2 clove", bran), ("cocoa 2 tbsp\n  cornstarch 40 g", None),
                              ("cocoa 2 tbsp\n  cornstarch 3 tbsp", tolerated)):
            with self.subTest(lines):
                self.write("0-salads/sal01.txt", DISH.replace("egg 1.5 pcs\n  tomato 100 g", lines))
                status, output = self.run_tool("--check")
                self.assertEqual(status, 1 if reason else 0)
                self.assertIn(reason or "", output)

    def test_one_faulty_dish_for_every_rule(self):
        faults = [
            # what is replaced, by what, the line of the fault, the reason
            ("tomato 100 g", "tomatoe 100 g", 6, "unknown product"),
            ("tomato 100 g", "tomato", 6, "no quantity"),
            ("tomato 100 g", "tomato 100", 6, "an ingredient is a key"),
            ("tomato 100 g", "tomato 100 g ripe", 6, "an ingredient is a key"),
            ("tomato 100 g", "tomato 1,5 g", 6, "malformed number"),
            ("tomato 100 g", "tomato 0 g", 6, "malformed number"),
            ("tomato 100 g", "tomato 1.50 g", 6, "malformed number"),
            ("tomato 100 g", "apple 1 pcs", 6, "apple is not in pieces"),
            ("tomato 100 g", "tomato 100 gr", 6, "unknown unit"),
            ("tomato 100 g", "tomato 2001 g", 6, "quantity too large"),
            ("tomato 100 g", "egg 1 pcs", 6, "duplicate product egg"),
            ("  egg 1.5 pcs\n  tomato 100 g\n", "", 4, "no product"),
            ("tomato 100 g", "cocoa 1 g\n  cornstarch 1 g\n  milk-powder 1 g", 4, "more than 2 tolerated products"),
            ("serves: 2", "serves: 0", 3, "number of servings"),
            ("serves: 2", "serves: 25", 3, "number of servings"),
            ("serves: 2", "serves: two", 3, "number of servings"),
            ("serves: 2\n", "", 1, "missing field serves"),
            ("serves: 2", "serves: 2\nserves: 3", 4, "duplicate field serves"),
            ("serves: 2", "servings: 2\nserves: 2", 3, "unknown field servings"),
            ("ingredients:", "ingredients: egg", 4, "text behind the colon"),
            ("nameRU: Яйца с помидором", "nameRU: яйца с помидором", 1, "no upper-case first letter"),
            ("nameRU: Яйца с помидором", "nameRU: Яйца с пoмидором", 1, "letters of the other language"),
            ("nameRU: Яйца с помидором", "nameRU: Яйца с с помидором", 1, "doubled word"),
            ("nameENG: Eggs with tomato", "nameENG: Eggs with томат", 2, "letters of the other language"),
            ("nameENG: Eggs with tomato", "nameENG: Eggs with tomato.", 2, "trailing punctuation"),
            ("Запечь яйца", "Запечь  яйца", 8, "double blank"),
            ("Запечь яйца", "Запeчь яйца", 8, "letters of the other language"),
            ("Подать сразу к столу.", "Подать сразу к столу", 8, "no full stop at the end"),
            ("Слегка посолить.", "слегка посолить.", 8, "no upper-case letter after a full stop"),
            ("Слегка посолить.", "Слегка посолить!", 8, "a sentence ends with a full stop only"),
            ("Слегка посолить.", "Добавить 1 ст. ложку соли.", 8, "abbreviation"),
            ("Слегка посолить.", "Посолить (слегка.", 8, "unbalanced brackets"),
            ("180 °C за", "180°C за", 8, "no blank before °C"),
            ("180 °C за", "180 °С за", 8, "° is followed by a Latin C"),
            ("180 °C for", "190 °C for", 14, "other numbers than in Russian"),
            ("Season with salt.", "Season , then eat salt.", 14, "blank before punctuation"),
            ("Season with salt.", "Take salt. Season it. Taste it.", 14, "5 Russian and 7 English sentences"),
            ("Pour the water.\n  Serve at once.", "Serve.", 14, "5 Russian and 4 English sentences|a sentence of one"),
            ("  Разлить воду.\n  Подать сразу к столу.\n", "", 8, "3 sentences, not 4 to 11"),
            ("Разлить воду.", "Разлить воду" + " и ещё воду" * 20 + ".", 8, "a sentence of one word or more"),
            ("Разлить воду.", "Разлить 20.", 8, "number without a unit"),
            ("Разлить воду.", "Разлить 20 и выпить.", 8, "number without a unit"),
            ("Разлить воду.", "Нагреть до 180.", 8, "number without a unit"),
            ("Разлить воду.", "Разлить 1.5 литра.", 8, "decimal point"),
            ("Разлить воду.", "Разлить 10-12 порций.", 8, "dash or quote of a typewriter"),
            ("Разлить воду.", "Разлить сырое молоко.", 8, "unsafe"),
            ("Разлить воду.", "Это исцеляет всех.", 8, "medical claim"),
            ("Разлить воду.", "Нарезать тремя кусками.", 8, "things are cut"),
            ("Разлить воду.", "Взбить белок.", 8, "an uncooked foam"),
            ("Pour the water.", "Serve it rare.", 14, "unsafe"),
            ("Pour the water.", "It burns fat.", 14, "medical claim"),
            ("Pour the water.", "Pour 1,5 litres.", 14, "decimal comma"),
            ("Pour the water.", "Pour the puree.", 14, "accent missing"),
            ("Pour the water.", "TO" "DO the water.", 14, "leftover"),
            ("Bake the eggs with the tomato, apple", "Bake the tomato, apple", 14, "egg is not in the text"),
            ("Bake the eggs with the tomato, apple or sugar at 180 °C", "Mix eggs, tomato", 14, "is not heated: egg"),
            ("tomato 100 g", "duck 100 g", 8, "does not say when it is cooked through: duck"),
        ]
        for before, after, line, reason in faults:
            with self.subTest(after):
                self.assertIn(before, DISH)
                self.write("0-salads/sal01.txt", DISH.replace(before, after))
                status, output = self.run_tool("--check")
                self.assertEqual(status, 1)
                self.assertRegex(output, rf"(?m)sal01\.txt:{line}: {reason}")

    def test_faults_between_files(self):
        faults = [
            ("0-salads/sal02.txt", DISH, r"sal02\.txt:1: the name of sal01, too"),
            ("0-salads/sal1.txt", DISH, r"sal1\.txt:1: a file here is named"),
            ("2-soups/sal03.txt", DISH, r"sal03\.txt:1: a file here is named"),
            ("9-others/oth01.txt", DISH, r"9-others:1: does not belong"),
            ("free.txt", FREE + "egg | taste | Яичко | Little egg\n", r"free\.txt:3: duplicate key egg"),
            ("free.txt", FREE + "pepper | taste | Соль | Pepper\n", r"free\.txt:3: duplicate name: Соль"),
            ("products.txt", PRODUCTS + "bread | 4 | 23 | Хлеб | Bread\n", r"products\.txt:11: unknown kind or phases"),
            ("products.txt", PRODUCTS + "bread | 0 | 02 | Хлеб | Bread\n", r"products\.txt:11: unknown kind or phases"),
            ("products.txt", PRODUCTS + "Bread | 0 | 23 | Хлеб | Bread\n", r"products\.txt:11: malformed key"),
            ("products.txt", PRODUCTS + "bread | 0 | 23 | Хлеб\n", r"products\.txt:11: 5 filled columns expected"),
            ("products.txt", PRODUCTS + "bread | 0 | 23 | Хлеб - ржаной | Bread\n", r"products\.txt:11: dash or quote"),
            ("free.txt", FREE + "pepper | often | Перец | Pepper\n", r"free\.txt:3: unknown use: often"),
            ("units.txt", UNITS + "l | л | л | л | l\n", r"units\.txt:5: 6 filled columns expected"),
            ("pieces.txt", PIECES + "pear | pear | pears\n", r"pieces\.txt:3: unknown product pear"),
            ("tolerated.txt", TOLERATED + "egg | 1 | g\n", r"tolerated\.txt:4: a tolerated product"),
            ("tolerated.txt", "cocoa | 1 | tbsp\n", r"tolerated\.txt:1: missing product cornstarch"),
            ("0-salads/sal02.txt", DISH.replace("Яйца с", "Омлет с").replace("Eggs with", "Omelette with")
             .replace("egg 1.5 pcs", "egg 1.5 clove"), r"sal02\.txt:5: egg is measured by clove here and by pcs in"),
        ]
        for name, text, reason in faults:
            with self.subTest(reason):
                path = self.source / name
                old = path.read_text(encoding="utf-8") if path.exists() else None
                self.write(name, text)
                status, output = self.run_tool("--check")
                self.assertEqual(status, 1)
                self.assertRegex(output, reason)
                if old is None:
                    path.unlink()
                    if path.parent.name == "9-others":
                        path.parent.rmdir()
                else:
                    self.write(name, old)

    def test_faulty_sources_become_no_list(self):
        self.write("0-salads/sal01.txt", DISH.replace("tomato 100 g", "tomato"))
        status, output = self.run_tool("--out", str(self.out))
        self.assertEqual(status, 1)
        self.assertIn("no quantity", output)
        self.assertFalse(self.out.exists())

    def test_an_unreadable_file_is_a_fault(self):
        (self.source / "0-salads/sal02.txt").write_bytes(b"nameRU: \xff\n")
        status, output = self.run_tool("--check")
        self.assertEqual(status, 1)
        self.assertRegex(output, r"sal02\.txt:1: cannot be read")


if __name__ == "__main__":
    unittest.main()
