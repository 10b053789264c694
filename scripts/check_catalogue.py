#!/usr/bin/env python3
"""Checks that the texts that users read and the catalogues in translations/ are the same: every text in src/ that is
marked with tr or translatable, or told to a widget as its caption, has one entry, every entry is used, and every
translation is there and begins and ends with the blanks of its source."""

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
# The captions of a set of options: name(options, {"one", "two"}) or name(options, {{"one", 'o'}, {"two", 't'}}).
NAMES = re.compile(rf"\bname\(\s*\w+\s*,\s*\{{(.*?)\}}\s*\)\s*;", re.DOTALL)
COMMENT = re.compile(rf"({LITERAL})|//[^\n]*|/\*.*?\*/", re.DOTALL)
ESCAPES = {"n": "\n", "t": "\t"}


def text_of(literals: str) -> str:
    whole = "".join(literal[1:-1] for literal in re.findall(LITERAL, literals))
    return re.sub(r"\\(.)", lambda escape: ESCAPES.get(escape[1], escape[1]), whole)


def texts_in(source: str):
    code = COMMENT.sub(lambda found: found[1] or " ", source)
    for pattern in (MARKED, CAPTION):
        yield from (text_of(found[1]) for found in pattern.finditer(code))
    for found in NAMES.finditer(code):
        yield from (text_of(literal) for literal in re.findall(LITERAL, found[1]))


def texts_of(root: pathlib.Path) -> dict:
    """Each text and the first file that has it."""
    texts = {}
    for path in sorted(root.rglob("*")):
        if path.suffix in {".h", ".cpp"}:
            for text in texts_in(path.read_text(encoding="utf-8")):
                texts.setdefault(text, path)
    return texts


def edges(text: str):
    body = text.strip()
    start = text.find(body)
    return text[:start], text[start + len(body):]


def faults_of(catalogue: pathlib.Path, texts: dict):
    entries = {}
    contexts = xml.parse(catalogue).getroot().findall("context")
    if [context.findtext("name") for context in contexts] != ["mirolen"]:
        yield "there has to be one context, mirolen"
    for message in (message for context in contexts for message in context.findall("message")):
        source, translation = message.findtext("source"), message.find("translation")
        text = "" if translation is None else translation.text or ""
        if source in entries:
            yield f"{source!r} stands there twice"
        entries[source] = text
        if source not in texts:
            yield f"{source!r} is used nowhere"
        if not text.strip() or translation.get("type"):
            yield f"{source!r} is not translated"
        elif edges(text) != edges(source):
            yield f"{source!r} begins or ends with other blanks than {text!r}"
    yield from (f"{text!r} of {path} is missing" for text, path in texts.items() if text and text not in entries)


def main() -> int:
    root = pathlib.Path(__file__).resolve().parent.parent
    texts = texts_of(root / "src")
    catalogues = sorted((root / "translations").glob("*.ts"))
    found = [f"{path.name}: {fault}" for path in catalogues for fault in faults_of(path, texts)]
    if not catalogues:
        found.append("there is no catalogue")
    print("\n".join(found) if found else f"catalogues: {len(texts)} texts in {len(catalogues)} language")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
