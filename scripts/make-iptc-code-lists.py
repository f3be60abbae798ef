#!/usr/bin/env python3
"""Builds the "scene" and "subjectcode" code lists (code -> name, XML property lists) from the
IPTC NewsCodes tables: CODE<TAB>NAME lines.

    scripts/make-iptc-code-lists.py DATA_FOLDER resources/iptc
"""
import plistlib
import sys
from pathlib import Path

LISTS = {"scene": "iptc-scene-codes.tsv", "subjectcode": "iptc-subject-codes.tsv"}


def read_codes(path):
    codes = {}
    for line in path.read_text(encoding="utf-8").splitlines():
        if line:
            code, name = line.split("\t", 1)
            codes[code] = name
    return codes


def main(source, target):
    for name, table in LISTS.items():
        codes = read_codes(Path(source) / table)
        with open(Path(target) / f"{name}.plist", "wb") as output:
            plistlib.dump(codes, output, fmt=plistlib.FMT_XML, sort_keys=True)


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2])
