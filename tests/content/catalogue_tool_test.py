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
"""
FREE = "salt | Соль | Salt\n"
UNITS = """g | г | г | г | g | g
pcs | шт. | шт. | шт. | pc | pcs
clove | зубчик | зубчика | зубчиков | clove | cloves
"""
DISH = """nameRU: Яйца с помидором
nameENG: Eggs with tomato
serves: 2
ingredients:
  egg 1.5 pcs
  tomato 100 g
  salt
recipeRU:
  Запечь всё при 180 °C за 20 минут.
  Посолить.
recipeENG:
  Bake everything at 180 °C for 20 minutes.
  Season with salt.
"""


class Catalogue(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.source = Path(folder.name) / "catalogue"
        self.out = Path(folder.name) / "out"
        for name, text in (("products.txt", PRODUCTS), ("free.txt", FREE), ("units.txt", UNITS)):
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
            "recipeRU": "На 2 порции. Запечь всё при 180 °C за 20 минут. Посолить.",
            "recipeENG": "Serves 2. Bake everything at 180 °C for 20 minutes. Season with salt.",
            "catRU": "Салаты", "catENG": "Salads",
            "ingredientsRU": ["Яйцо - 1,5 шт.", "Помидор - 100 г", "Соль - по вкусу"],
            "ingredientsENG": ["Egg - 1.5 pcs", "Tomato - 100 g", "Salt - to taste"]}])
        self.assertEqual([entry["name"] for entry in lists["ingredients_ru"]][:2], ["Яйцо", "Помидор"])
        self.assertEqual(lists["ingredients_en"][6], {"name": "Sugar", "Дополнительное поле": 1, "Периоды": "3"})
        for russian, english in zip(lists["ingredients_ru"], lists["ingredients_en"]):
            self.assertEqual({**russian, "name": ""}, {**english, "name": ""})

    def test_the_order_is_that_of_the_categories(self):
        for name, title in (("8-sauces/sau01.txt", "соус"), ("2-soups/sou02.txt", "суп"), ("2-soups/sou01.txt", "щи")):
            self.write(name, DISH.replace("с помидором", title).replace("with tomato", Path(name).stem))
        self.assertEqual([dish["dishID"] for dish in self.lists()["recipes"]], ["sal01", "sou01", "sou02", "sau01"])

    def test_phases_are_those_that_all_products_share(self):
        for ingredients, phases in (("egg 1 pcs\n  salt", "0, 1, 2, 3"), ("egg 1 pcs\n  apple 1 pcs", "2, 3"),
                                    ("tomato 1 pcs\n  sugar 5 g", "3")):
            self.write("0-salads/sal01.txt", DISH.replace("egg 1.5 pcs\n  tomato 100 g\n  salt", ingredients))
            self.assertEqual(self.lists()["recipes"][0]["dietPeriod"], phases, ingredients)

    def test_plural_forms(self):
        russian = {"1": 0, "2": 1, "4": 1, "5": 2, "11": 2, "12": 2, "14": 2, "21": 0, "22": 1, "25": 2, "100": 2,
                   "101": 0, "111": 2, "0.5": 1, "1.5": 1}
        for number, form in russian.items():
            self.assertEqual(catalogue.russian_form(number), form, number)
        for quantity, texts in (("1", ("1 зубчик", "1 clove")), ("3", ("3 зубчика", "3 cloves")),
                                ("6", ("6 зубчиков", "6 cloves")), ("0.5", ("0,5 зубчика", "0.5 cloves"))):
            self.write("0-salads/sal01.txt", DISH.replace("egg 1.5 pcs", f"egg {quantity} clove"))
            dish = self.lists()["recipes"][0]
            self.assertEqual((dish["ingredientsRU"][0], dish["ingredientsENG"][0]),
                             tuple(f"{name} - {text}" for name, text in zip(("Яйцо", "Egg"), texts)))
        for serves, words in ((1, "На 1 порцию."), (3, "На 3 порции."), (12, "На 12 порций.")):
            self.write("0-salads/sal01.txt", DISH.replace("serves: 2", f"serves: {serves}"))
            self.assertTrue(self.lists()["recipes"][0]["recipeRU"].startswith(words))

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
            ("Запечь всё при", "Запечь  всё при", 8, "double blank"),
            ("Запечь всё при", "Запeчь всё при", 8, "letters of the other language"),
            ("Посолить.", "Посолить", 8, "no full stop at the end"),
            ("Посолить.", "посолить.", 8, "no upper-case letter after a full stop"),
            ("Посолить.", "Посолить!", 8, "a sentence ends with a full stop only"),
            ("Посолить.", "Добавить 1 ст. ложку соли.", 8, "abbreviation"),
            ("Посолить.", "Посолить (слегка.", 8, "unbalanced brackets"),
            ("180 °C за", "180°C за", 8, "no blank before °C"),
            ("180 °C за", "180 °С за", 8, "° is followed by a Latin C"),
            ("180 °C for", "190 °C for", 11, "temperatures of the two languages differ"),
            ("Season with salt.", "Season , then eat.", 11, "blank before punctuation"),
            ("Season with salt.", "A. Bb. Cc. Dd. Ee.", 11, "2 Russian and 6 English sentences"),
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
            ("free.txt", FREE + "egg | Яичко | Little egg\n", r"free\.txt:2: duplicate key egg"),
            ("free.txt", FREE + "pepper | Соль | Pepper\n", r"free\.txt:2: duplicate name: Соль"),
            ("products.txt", PRODUCTS + "bread | 4 | 23 | Хлеб | Bread\n", r"products\.txt:9: unknown kind or phases"),
            ("products.txt", PRODUCTS + "bread | 0 | 02 | Хлеб | Bread\n", r"products\.txt:9: unknown kind or phases"),
            ("products.txt", PRODUCTS + "Bread | 0 | 23 | Хлеб | Bread\n", r"products\.txt:9: malformed key"),
            ("products.txt", PRODUCTS + "bread | 0 | 23 | Хлеб\n", r"products\.txt:9: 5 filled columns expected"),
            ("products.txt", PRODUCTS + "bread | 0 | 23 | Хлеб - ржаной | Bread\n", r"products\.txt:9: hyphen between"),
            ("units.txt", UNITS + "l | л | л | л | l\n", r"units\.txt:4: 6 filled columns expected"),
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
