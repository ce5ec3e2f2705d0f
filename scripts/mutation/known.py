"""The two checked-in lists of changes, by file, function and text: line numbers would be wrong after the next edit."""

from pathlib import Path

FOLDER = Path(__file__).resolve().parent


def normal(line):
    return " ".join(line.split())


def always():
    """Changes that are tried in every run, because they have slipped through once."""
    lines = (FOLDER / "always.txt").read_text().splitlines()
    return {normal(line) for line in lines if line.strip() and not line.startswith("#")}


def equivalent():
    """Changes that change nothing, with the reason: a line for the change, then indented lines."""
    reasons = {}
    name = None
    for line in (FOLDER / "equivalent.txt").read_text().splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        if line[0].isspace():
            reasons[name] = normal(f"{reasons[name]} {line}")
        else:
            name = normal(line)
            reasons[name] = ""
    return reasons
