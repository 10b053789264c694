#!/usr/bin/env python3
"""Checks that the texts that users read and the catalogues in translations/ are the same: every text in src/ that is
marked with tr or translatable, or told to a widget as its caption, and every text in examples/ that is marked with tr
or text has one entry in its context, every entry is used, and every translation is there, has the places of its source
and begins and ends with its blanks."""

import pathlib
import re
import sys
import xml.etree.ElementTree as xml

LITERAL = r'"(?:[^"\\\n]|\\.)*"'
LITERALS = rf"{LITERAL}(?:\s+{LITERAL})*"
MARKED = re.compile(rf"\b(?:tr|translatable)\(\s*({LITERALS})\s*\)")
# A widget, page or form that is made with a caption: Label name{&group, "caption"}, Form(toolkit, "caption").
CAPTION = re.compile(
    rf"\b(?:Frame|Label|Button|OptionButton|CheckBox|Form|PropertyPage|ViewPage|ViewOptions|SurfaceOptions)"
    rf"(?:\s+\w+)?\s*[({{]\s*[\w&*.]+\s*,\s*({LITERALS})\s*[)}}]")
# The captions of a set of options: name(options, {"one", "two"}).
NAMES = re.compile(rf"\bname\(\s*\w+\s*,\s*\{{(.*?)\}}\s*\)\s*;", re.DOTALL)
IN_EXAMPLES = re.compile(rf"\b(?:tr|text)\(\s*({LITERALS})\s*\)")
PLACE = re.compile(r"%\d")
COMMENT = re.compile(rf"({LITERAL})|//[^\n]*|/\*.*?\*/", re.DOTALL)
ESCAPES = {"n": "\n", "t": "\t"}


def text_of(literals: str) -> str:
    whole = "".join(literal[1:-1] for literal in re.findall(LITERAL, literals))
    return re.sub(r"\\(.)", lambda escape: ESCAPES.get(escape[1], escape[1]), whole)


def texts_in(code: str):
    for pattern in (MARKED, CAPTION):
        yield from (text_of(found[1]) for found in pattern.finditer(code))
    for found in NAMES.finditer(code):
        yield from (text_of(literal) for literal in re.findall(LITERAL, found[1]))


def sources_in(root: pathlib.Path):
    for path in sorted(root.rglob("*")):
        if path.suffix in {".h", ".cpp"}:
            yield path, COMMENT.sub(lambda found: found[1] or " ", path.read_text(encoding="utf-8"))


def texts_of(root: pathlib.Path) -> dict:
    """The first file of each context and text."""
    texts = {}
    for path, code in sources_in(root / "src"):
        for text in texts_in(code):
            texts.setdefault(("mirolen", text), path)
    for path, code in sources_in(root / "examples"):
        for found in IN_EXAMPLES.finditer(code):
            texts.setdefault(("examples", text_of(found[1])), path)
    return texts


def edges(text: str):
    body = text.strip()
    start = text.find(body)
    return text[:start], text[start + len(body):]


def faults_of(catalogue: pathlib.Path, texts: dict):
    entries = set()
    for context in xml.parse(catalogue).getroot().findall("context"):
        for message in context.findall("message"):
            source, translation = message.findtext("source"), message.find("translation")
            text = "" if translation is None else translation.text or ""
            key = context.findtext("name"), source
            if key in entries:
                yield f"{key} stands there twice"
            entries.add(key)
            if key not in texts:
                yield f"{key} is used nowhere"
            if not text.strip() or translation.get("type"):
                yield f"{key} is not translated"
            elif edges(text) != edges(source):
                yield f"{key} begins or ends with other blanks than {text!r}"
            elif sorted(PLACE.findall(text)) != sorted(PLACE.findall(source)):
                yield f"{key} has other places than {text!r}"
    yield from (f"{key} of {path} is missing" for key, path in texts.items() if key[1] and key not in entries)


def main() -> int:
    root = pathlib.Path(__file__).resolve().parent.parent
    texts = texts_of(root)
    catalogues = sorted((root / "translations").glob("*.ts"))
    found = [f"{path.name}: {fault}" for path in catalogues for fault in faults_of(path, texts)]
    if not catalogues:
        found.append("there is no catalogue")
    print("\n".join(found) if found else f"catalogues: {len(texts)} texts in {len(catalogues)} language")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
