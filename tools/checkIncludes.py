#!/usr/bin/env python3
"""Checks the includes of src/ against the table of folders in CONTRIBUTING.md.

    tools/checkIncludes.py [ROOT]

The last column of a row "src/FOLDER" says what the folder may include besides itself: "Qt only", names
of folders, or "all above", perhaps "but" some. A row names only folders above it, so the folders cannot
form a cycle. Besides, nothing that kivzp_core (src/CMakeLists.txt) compiles may reach a header of a
widget: one whose source is compiled into kivzp_gui, or one of a folder without a source in kivzp_core.
Prints "file:line: what" for every fault and exits with 1 if there is one.
"""
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent)
src = root / "src"
faults = []


def fault(path, line, what):
    faults.append(f"{path.relative_to(root)}:{line}: {what}")


def words(text):
    return [word for word in re.split(r",\s*|\s+and\s+", text.strip()) if word]


def read_table(page):
    """The folders of src, each with what it may include; the rows' faults are noted."""
    allowed = {}
    for line, text in enumerate(page.read_text(encoding="utf-8").splitlines(), 1):
        row = re.match(r"\| *`src/([^`/]+)` *\|.*\|([^|]*)\|\s*$", text)
        if not row:
            continue
        folder, says = row[1], row[2].strip()
        everything = re.fullmatch(r"all above(?: but (.*))?", says)
        named = words(everything[1] or "") if everything else [] if says == "Qt only" else words(says)
        for name in named:
            if name not in allowed:
                fault(page, line, f"{folder} names {name}, which is no folder above it")
        allowed[folder] = (set(allowed) - set(named) if everything else set(named)) | {folder}
        if not (src / folder).is_dir():
            fault(page, line, f"there is no src/{folder}")
    return allowed


def includes(path):
    for line, text in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        found = re.match(r'\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', text)
        if found:
            yield line, found[1] or found[2], bool(found[1])


def sources(target, build):
    found = re.search(r"add_library\(" + target + r"\s+STATIC([^)]*)\)", build)
    if not found:
        sys.exit(f"src/CMakeLists.txt has no library {target}")
    return found[1].split()


def stem(name):
    return name.rsplit(".", 1)[0]


def check_folders(files, allowed):
    for path in files:
        folder = path.relative_to(src).parts[0]
        if folder not in allowed:
            continue
        for line, name, quoted in includes(path):
            other = name.split("/")[0]
            if not quoted and not (src / name).is_file():
                continue  # Qt's or the system's
            if not (src / name).is_file():
                fault(path, line, f"there is no src/{name}")
            elif other in allowed and other not in allowed[folder]:
                fault(path, line, f"{folder} may not include {other}")


def check_core(build):
    core, gui = sources("kivzp_core", build), {stem(name) for name in sources("kivzp_gui", build)}
    without_widgets = {name.split("/")[0] for name in core}
    seen, waiting = set(core), list(core)
    while waiting:
        path = src / waiting.pop()
        for line, name, _ in includes(path) if path.is_file() else ():
            if not (src / name).is_file():
                continue
            if stem(name) in gui or name.split("/")[0] not in without_widgets:
                fault(path, line, f"kivzp_core may not include {name}, a header of widgets")
            elif name not in seen:
                seen.add(name)
                waiting.append(name)


def main():
    table = read_table(root / "CONTRIBUTING.md")
    if not table:
        sys.exit("CONTRIBUTING.md has no table of folders")
    for entry in sorted(src.iterdir()):
        if entry.name not in table and entry.name != "CMakeLists.txt":
            fault(entry, 1, "not in the table of folders in CONTRIBUTING.md")
    check_folders(sorted(p for p in src.rglob("*") if p.suffix in (".cpp", ".h")), table)
    check_core((src / "CMakeLists.txt").read_text(encoding="utf-8"))

    print("\n".join(faults), end="\n" if faults else "")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
