#!/usr/bin/env python3
"""Tell the QML tools about the classes of headers that know nothing of QML.

Usage: metatypes.py MOC SOURCE-FOLDER OUT.json [--values CLASS ...] --headers HEADER ...

Collects what moc says of the headers, and completes it for the tools of Qt 6.4: they look a base class up by its full name,
where moc writes it as the source does; and a class that QML knows for its enumerations only (--values) has to be a namespace.
"""

import argparse
import json
import pathlib
import subprocess
import sys
import tempfile


def collect(moc, include, headers):
    """What moc says of each header that declares something."""
    files = []
    with tempfile.TemporaryDirectory() as folder:
        for header in headers:
            output = pathlib.Path(folder) / (pathlib.Path(header).stem + ".cpp")
            subprocess.run([moc, "-I", include, "--output-json", "-o", output, header], check=True, stderr=subprocess.DEVNULL)
            told = output.with_suffix(".cpp.json")
            if told.exists() and told.stat().st_size > 0:
                files.append(json.loads(told.read_text(encoding="utf-8")))
    return files


def complete(files, values):
    classes = [each for entry in files for each in entry.get("classes", [])]
    for each in classes:
        scope = each["qualifiedClassName"].rpartition("::")[0]
        for base in each.get("superClasses", []):
            # A class of ours, of this library or another; Qt's begin with its letter and stand in no namespace.
            if scope and "::" not in base["name"] and not base["name"].startswith("Q"):
                base["name"] = f"{scope}::{base['name']}"
        if each["qualifiedClassName"] in values:
            each.pop("gadget", None)
            each["namespace"] = True


def main():
    parser = argparse.ArgumentParser(usage=__doc__)
    parser.add_argument("moc")
    parser.add_argument("include")
    parser.add_argument("out", type=pathlib.Path)
    parser.add_argument("--values", nargs="*", default=[])
    parser.add_argument("--headers", nargs="+", required=True)
    arguments = parser.parse_args()
    files = collect(arguments.moc, arguments.include, arguments.headers)
    complete(files, set(arguments.values))
    arguments.out.write_text(json.dumps(files, indent=1), encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main())
