"""Tests of tools/content_lint.py: small resources that are fine, and the same with one fault a rule.

    content_lint_test.py FOLDER_OF_THE_TOOLS
"""

import plistlib
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

sys.path.insert(0, sys.argv.pop(1) if len(sys.argv) > 1 else str(Path(__file__).parents[2] / "tools"))
import content_lint  # noqa: E402

TABLES = {
    "ru": '/* common */\n"Вода" = "Вода";\n"left" = "Осталось %ld";\n"meat_1" = "Сыр";\n"a\\"b" = "Ок";\n',
    "en": '// common\n"Вода" = "Water";\n"left" = "%ld left";\n"meat_1" = "Cheese";\n"a\\"b" = "OK";\n',
}
NAMES = """"about html" = "about_{0}"; "phases html" = "phases_{0}";
"tips plist" = "tips_{0}"; "tips_sufix" = "_{0}";
"""
SOURCE = '''#include "not/this.h"
// localized("nor this") 'don't
/* localized("nor "
   that) */
const char *plain = "Вода"; auto data = "Периоды";
auto a = localized(QStringLiteral("left")) + u"two"_qs + tr("meat_%ld") + icon("add.png") + icon("meat_%ld.png");
auto b = localized(flag ? QStringLiteral("about html") : other(QStringLiteral("phases html"), 1'000));
auto c = locolized(QStringLiteral("tips "
                                  "plist"));
char d = '"'; auto e = localized("a\\"b"); auto f = R"(raw "text")" + "tips_sufix";
'''
PAGE = """<!DOCTYPE html>
<html lang="{0}"><head><meta charset="utf-8"/><meta name="viewport"/><title>{1}</title><link href="../pages/style.css"/>
</head><body><h1>{1}</h1><p>{2}</p></body></html>
"""
TEXTS = {"ru": ("Совет", "При беременности, диабете и болезни почек спросите врача."),
         "en": ("Tip", "In pregnancy, diabetes and kidney trouble ask a doctor.")}
SMALL = {"MIN_PAGE": 20, "MIN_TIPS": 1, "NUMBERED_PICTURES": {"meat_{}": [1]}}


class ContentLint(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = Path(folder.name)
        for name, value in SMALL.items():
            patch = mock.patch.object(content_lint, name, value)
            patch.start()
            self.addCleanup(patch.stop)
        for language, (title, text) in TEXTS.items():
            lproj = f"resources/{language}.lproj/"
            self.write(lproj + "Localizable.strings", TABLES[language] + NAMES.format(language))
            for page in ("about", "phases", "sov1"):
                self.write(f"{lproj}{page}_{language}.html", PAGE.format(language, title, text))
            self.write(f"{lproj}tips_{language}.plist", plistlib.dumps([title]).decode())
        for name in ("resources/pages/style.css", "resources/images/add.svg", "resources/images/meat_1.svg"):
            self.write(name, "")
        self.write("src/app/Some.cpp", SOURCE)

    def write(self, name, text):
        path = self.root / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def faults(self):
        lint = content_lint.Lint(self.root)
        for check in (lint.check_tables, lint.check_keys, lint.check_pictures, lint.check_pages):
            check()
        return "\n".join(lint.faults), "\n".join(lint.notes)

    def test_finds_the_texts_that_the_compiler_reads(self):
        found = [literal.place.split(":")[1] + "! "[not literal.localized] + literal.text
                 for literal in content_lint.literals(SOURCE, "Some.cpp")]
        self.assertEqual(found, ["5 Вода", "5 Периоды", "6!left", "6 two", "6 meat_%ld", "6 add.png", "6 meat_%ld.png",
                                 "7!about html", "7!phases html", "8!tips plist", '10!a"b', '10 raw "text"',
                                 "10 tips_sufix"])
        qml = content_lint.literals("Text { text: 'it\\'s' + localized(\"key\") }", "A.qml")
        self.assertEqual([(literal.text, literal.localized) for literal in qml], [("it's", False), ("key", True)])

    def test_keys_to_come_are_listed_until_they_are_used(self):
        self.assertEqual(self.faults(), ("", ""))
        for language in TEXTS:
            path = self.root / f"resources/{language}.lproj/Localizable.strings"
            path.write_text(path.read_text(encoding="utf-8") + '"soon\\n" = "1";\n', encoding="utf-8")
        self.assertIn("nothing uses: soon", self.faults()[0])
        self.write("tests/content/keys-to-come.txt", "# comment\nsoon\\n\nleft\n")
        faults, notes = self.faults()
        self.assertEqual(faults, "")
        self.assertIn("1 keys are used by now", notes)
        self.write("tests/content/keys-to-come.txt", "soon\\n\ngone\n")
        self.assertIn("in no table: gone", self.faults()[0])

    def test_one_fault_for_every_rule(self):
        strings, source = "resources/ru.lproj/Localizable.strings", "src/app/Some.cpp"
        about, tip = "resources/en.lproj/about_en.html", "resources/en.lproj/sov1_en.html"
        for name, before, after, reason in (
                (strings, '"meat_1" = "Сыр";\n', "", "in one language only: meat_1"),
                (strings, '"Сыр";', '"Сыр"', "is no entry"),
                (strings, '"Сыр";', '"Сыр"; "meat_1" = "Сыр";', "twice: meat_1"),
                (strings, '"Сыр"', '" "', "empty, or blanks"),
                (strings, '"Сыр"', '"Сыр "', "empty, or blanks"),
                (strings, '"Сыр"', '"Cheese"', "letters of another language"),
                (strings, "Осталось %ld", "Осталось %@", "other places for values: left"),
                (source, 'localized("a', 'localized("c', "no text for c"),
                (source, '"Вода"', '"Воды"', "no text for Воды"),
                (source, '"meat_%ld"', '"milk_%ld"', "nothing uses: meat_1"),
                (source, '"add.png"', '"adds.png"', "no picture adds.png"),
                (source, '"meat_%ld.png"', '"milk_%ld.png"', "no picture milk"),
                ("resources/images/meat_1.svg", None, None, "no picture meat_1"),
                ("resources/images/add.svg", None, None, "no picture add.png"),
                (tip, None, None, "sov1_en.html: cannot be read"),
                (tip, "</p>", "", "cannot be read"),
                (tip, 'lang="en"', 'lang="ru"', "another lang"),
                (tip, "viewport", "view", "no viewport"),
                (tip, "utf-8", "utf-16", "no viewport or charset"),
                (tip, "style.css", "stile.css", "no style sheet"),
                (tip, "<p>", "<p><img/>", "active elements"),
                (tip, "<p>", "<p>www.example", "a link outside"),
                (tip, TEXTS["en"][1], "", "too little to read"),
                (tip, "<p>", "<p>и ", "letters of another language"),
                (tip, "ask a doctor", "ask ask a doctor", "doubled word"),
                (tip, "<h1>Tip", "<h1>Tips", "another title"),
                (tip, "<p>", "<p><b/>", "other pages or elements"),
                (about, "kidney", "heart", "who should ask a doctor"),
                ("resources/en.lproj/tips_en.plist", "<string>Tip", "<string>Tip  x", "without needless blanks"),
                ("resources/en.lproj/tips_en.plist", "<array>", "", "cannot be read"),
                ("resources/en.lproj/tips_en.plist", "</array>", "<string>Tip</string></array>", "a title twice"),
                ("resources/en.lproj/left.html", "", "x", "is named nowhere")):
            with self.subTest(reason, file=name):
                path = self.root / name
                existed = path.exists()
                old = path.read_text(encoding="utf-8") if existed else ""
                self.assertIn(before or "", old)
                if after is None:
                    path.unlink()
                else:
                    self.write(name, old.replace(before, after) if before else after)
                found = self.faults()[0]
                if existed:
                    self.write(name, old)
                else:
                    path.unlink()
                self.assertIn(reason, found)


if __name__ == "__main__":
    unittest.main()
