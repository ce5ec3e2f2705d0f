"""Finds every place where the code can be changed, and chooses among them."""

import hashlib
import json
from dataclasses import asdict, dataclass
from fnmatch import fnmatch

from mutation import finder, known

# How much a folder counts in the choice: rules more than plumbing.
WEIGHTS = {"map": 2.5, "source": 2.0, "json": 2.0, "files": 2.0, "files/posix": 2.0, "text": 2.0, "ui": 1.7, "ui/grid": 1.7}

# The files of ui/ that decide something; the others lay out and paint.
WINDOW_FILES = [
    "ui/ByteSwapHelp.cpp", "ui/CommandTable.cpp", "ui/MainFrame.cpp", "ui/MainFrameDialogs.cpp", "ui/MainFrameEditing.cpp",
    "ui/MainFrameMenus.cpp", "ui/MainFrameView.cpp", "ui/RegisterEditor.cpp", "ui/RescueKeeper.cpp",
    "ui/SettingsDialog.cpp", "ui/SourceBrowser.cpp", "ui/grid/CellText.cpp", "ui/grid/GridCellStyles.cpp",
    "ui/grid/GridScrolling.cpp", "ui/grid/GridSelection.cpp", "ui/grid/MapGridTable.cpp", "ui/grid/RowCellRenderer.cpp",
    "ui/grid/TagGridTable.cpp", "ui/grid/VirtualGridTable.cpp",
]


@dataclass
class Mutant:
    """One change of the text between two offsets of a file."""

    file: str
    function: str
    kind: str
    line: int
    last_line: int
    start: int
    end: int
    before: str
    after: str
    body: str  # a digest of the function's text
    number: int = 0
    ordinal: int = 1

    def name(self):
        again = f" #{self.ordinal}" if self.ordinal > 1 else ""
        return known.normal(f"{self.file} | {self.function} | {self.kind} | {self.before} -> {self.after}{again}")

    def described(self):
        return f"{self.file}:{self.line} {self.kind} {known.normal(self.before)} -> {known.normal(self.after)}"

    def identity(self):
        """Stays the same as long as the function does."""
        return hashlib.sha256(f"{self.name()} {self.body}".encode()).hexdigest()[:20]

    def folder(self):
        return self.file.rpartition("/")[0]


def source_files(root):
    files = [str(path.relative_to(root)) for folder in WEIGHTS if not folder.startswith("ui")
             for path in sorted((root / folder).glob("*.cpp")) if not path.stem.endswith("Windows")]
    return files + [file for file in WINDOW_FILES if (root / file).exists()]


def collect(root, tree, pattern=None):
    """All places of the files that match, numbered so that a number depends on its own file only."""
    cache_file = tree.folder / "candidates.json"
    cache = json.loads(cache_file.read_text()) if cache_file.exists() else {}
    finder_text = (root / "scripts/mutation/finder.py").read_bytes()
    # A file keeps its numbers when others come: what has not changed is not built again.
    order = cache.setdefault("order", [])
    found = []
    for file in source_files(root):
        if file not in order:
            order.append(file)
        if pattern and not fnmatch(file, pattern):
            continue
        text = tree.remembered(file)
        digest = hashlib.sha256(text + finder_text).hexdigest()
        if cache.get(file, {}).get("digest") != digest:
            places = finder.places(root, file, text.decode("latin-1"), tree.compiler_arguments(file))
            cache[file] = {"digest": digest, "places": [asdict(Mutant(**place)) for place in places]}
        found += numbered(cache[file]["places"], order.index(file))
    cache_file.write_text(json.dumps(cache))
    return found


def numbered(places, index):
    seen = {}
    mutants = [Mutant(**place) for place in places]
    for position, mutant in enumerate(mutants):
        mutant.number = 1 + index * 4000 + position
        name = mutant.name()
        seen[name] = seen.get(name, 0) + 1
        mutant.ordinal = seen[name]
    return mutants


def warn_of_unknown(found):
    """A name in the checked-in lists that fits nothing any more: its function has changed."""
    names = {mutant.name() for mutant in found}
    for name in sorted((known.always() | set(known.equivalent())) - names):
        print(f"no longer there: {name}", flush=True)


def chosen(found, count, seed, dropped):
    """`count` of them: first those that are always tried, then in turn over files, in each over kinds."""
    usable = [mutant for mutant in found if mutant.identity() not in dropped]
    always = known.always()
    picked = [mutant for mutant in usable if mutant.name() in always]
    taken = {mutant.number for mutant in picked}
    piles = {}
    for mutant in usable:
        if mutant.number not in taken:
            piles.setdefault(mutant.file, {}).setdefault(mutant.kind, []).append(mutant)
    for kinds in piles.values():
        for pile in kinds.values():
            pile.sort(key=lambda mutant: hashlib.sha256(f"{seed} {mutant.name()}".encode()).digest(), reverse=True)
    share = {file: WEIGHTS[file.rpartition("/")[0]] * sum(map(len, kinds.values())) ** 0.5 for file, kinds in piles.items()}
    drawn = {file: 0 for file in piles}
    drawn_kinds = {}
    while len(picked) < count and piles:
        file = min(piles, key=lambda name: ((drawn[name] + 1) / share[name], name))
        kinds = piles[file]
        kind = min(kinds, key=lambda name: (drawn_kinds.get((file, name), 0), len(kinds[name]) == 0, name))
        picked.append(kinds[kind].pop())
        drawn[file] += 1
        drawn_kinds[file, kind] = drawn_kinds.get((file, kind), 0) + 1
        if not kinds[kind]:
            del kinds[kind]
        if not kinds:
            del piles[file]
    return sorted(picked, key=lambda mutant: (mutant.file, mutant.start))
