#!/usr/bin/env python3
"""Every relative link of the documents in a folder leads somewhere, and every block of code that names its file, in a
first line such as "// examples/host/main.cpp", stands there word for word."""
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


def faults(root):
    for document in sorted(root.rglob("*.md")):
        text = document.read_text(encoding="utf-8")
        for target in links(text):
            if not (document.parent / target).exists():
                yield f"{document.relative_to(root)}: no {target}"
        for name, code in quotations(text):
            if code not in (root / name).read_text(encoding="utf-8"):
                yield f"{document.relative_to(root)}: not what {name} says:\n{code}"


if __name__ == "__main__":
    documents = pathlib.Path(sys.argv[1])
    if not (documents / "README.md").exists():
        sys.exit(f"no documents in {documents}")
    sys.exit("\n".join(faults(documents)) or 0)
