#!/usr/bin/env python3
"""Every relative link of the documents in a folder leads somewhere, and every block of code that names its file, in a
first line such as "// examples/host/main.cpp", stands there word for word. Where the folder has the sources, too, they
and docs/contract.md agree: the files that an entry names cite its number ("// contract 7"), and no others do."""
import pathlib
import re
import sys


def links(text):
    prose = re.sub(r"^```.*?^```", "", text, flags=re.M | re.S)
    for target in re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`\n]*`", "", prose)):
        if not re.match(r"[a-z]+:|#", target):
            yield target.split("#")[0]


def quotations(text):
    return re.findall(r"^```cpp\n// (\S+/\S+\.\w+)\n(.*?)^```", text, flags=re.M | re.S)


def entries(contract):
    """Number and files of each entry."""
    for number, text in re.findall(r"^\*\*C(\d+)\.(.*?)(?=\n\n|\Z)", contract, flags=re.M | re.S):
        yield int(number), set(re.findall(r"`(\w+/\w+\.(?:h|cpp))`", text))


def citations(source):
    for numbers in re.findall(r"//.*\bcontract (\d+(?:, \d+)*)", source):
        yield from map(int, numbers.split(", "))


def contract_faults(root):
    places = {}
    for number, files in entries((root / "docs/contract.md").read_text(encoding="utf-8")):
        if number in places:
            yield f"docs/contract.md: C{number} stands twice"
        if not files:
            yield f"docs/contract.md: C{number} names no file"
        places[number] = files

    sources = root / "src/mirolen"
    told = {(file, number) for number, files in places.items() for file in files}
    cited = set()
    for source in sorted([*sources.rglob("*.h"), *sources.rglob("*.cpp")]):
        file = source.relative_to(sources).as_posix()
        cited |= {(file, number) for number in citations(source.read_text(encoding="utf-8"))}
    for file, number in sorted(told - cited):
        yield f"docs/contract.md: C{number} stands in {file}, which does not cite it"
    for file, number in sorted(cited - told):
        yield f"src/mirolen/{file}: contract {number} does not say that it stands here"


def faults(root):
    for document in sorted(root.rglob("*.md")):
        text = document.read_text(encoding="utf-8")
        for target in links(text):
            if not (document.parent / target).exists():
                yield f"{document.relative_to(root)}: no {target}"
        for name, code in quotations(text):
            if code not in (root / name).read_text(encoding="utf-8"):
                yield f"{document.relative_to(root)}: not what {name} says:\n{code}"
    if (root / "src").exists():
        yield from contract_faults(root)


if __name__ == "__main__":
    documents = pathlib.Path(sys.argv[1])
    if not (documents / "README.md").exists():
        sys.exit(f"no documents in {documents}")
    sys.exit("\n".join(faults(documents)) or 0)
