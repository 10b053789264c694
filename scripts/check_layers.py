#!/usr/bin/env python3
"""Checks that every include goes down: a layer includes only itself, the layers below it and, in the heart, the
standard library and what the compiler brings along."""

import pathlib
import re
import sys

OF_THE_COMPILER = {"emmintrin.h"}
USES = {
    "core": set(),
    "automation": {"core"},
    "render": {"core"},
    "widgets": {"core", "render"},
    "dialogs": {"core", "automation", "render", "widgets"},
    "print": {"core", "render", "widgets"},
    "controls": {"core", "automation", "render", "widgets", "dialogs", "print"},
    "qt": {"core", "automation", "render", "widgets", "dialogs", "print", "controls"},
}
BINDINGS = {"qt"}
INCLUDE = re.compile(r'^\s*#\s*include\s+([<"])([^>"]+)[>"]')


def faults(path: pathlib.Path, layer: str):
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        found = INCLUDE.match(line)
        if not found:
            continue
        bracket, target = found.groups()
        if bracket == "<":
            standard = "/" not in target and not target.endswith(".h")
            if layer not in BINDINGS and not standard and target not in OF_THE_COMPILER:
                yield f"{path}:{number}: the heart includes <{target}>"
            continue
        parts = target.split("/")
        if parts[0] != "mirolen" or len(parts) < 3:
            if layer not in BINDINGS or "/" in target:
                yield f"{path}:{number}: include \"mirolen/layer/header\", not \"{target}\""
        elif parts[1] != layer and parts[1] not in USES[layer]:
            yield f"{path}:{number}: {layer} may not include {parts[1]}"


def main() -> int:
    root = pathlib.Path(__file__).resolve().parent.parent / "src" / "mirolen"
    found = []
    for folder in sorted(entry for entry in root.iterdir() if entry.is_dir()):
        if folder.name not in USES:
            found.append(f"{folder}: a layer without a place in {pathlib.Path(__file__).name}")
            continue
        for path in sorted(folder.rglob("*")):
            if path.suffix in {".h", ".cpp"}:
                found.extend(faults(path, folder.name))
    print("\n".join(found) if found else "layers: every include goes down")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
