"""The copy of the tree that holds the changes, and its build."""

import json
import re
import shlex
import shutil
import subprocess

from mutation import schemata

TARGETS = ["core_tests", "ui_tests"]

# Switched changes leave code that warns, so only what holds them is built without warnings; everything else is built as
# in a usual debug build and comes out of the compiler's cache. The tests that make up maps by chance are optimised: they
# take most of the time.
EXTRA_BUILD = """
target_sources(mapcore PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/mutation/Switch.cpp")
target_compile_options(mapcore PRIVATE -w -O1)
target_compile_options(mapui PRIVATE -w)
target_sources(core_tests PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/mutation/Recorder.cpp")
target_sources(ui_tests PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/mutation/Recorder.cpp")
file(GLOB chance_tests tests/core/*PropertyTest.cpp tests/core/LiteralModel.cpp)
set_source_files_properties(${chance_tests} TARGET_DIRECTORY core_tests PROPERTIES COMPILE_OPTIONS -O2)
"""


def write_if_new(path, data):
    """What has not changed keeps its time, and is not built again."""
    if not path.exists() or path.read_bytes() != data:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(data)


class Tree:
    def __init__(self, root):
        self.root = root
        self.folder = root / "build" / "mutation"
        self.copy = self.folder / "tree"
        self.binaries = self.copy / "build" / "dev"
        self.commands = None
        self.texts = {}
        self.dropped_file = self.folder / "dropped.txt"
        self.folder.mkdir(parents=True, exist_ok=True)
        self.dropped = set(self.dropped_file.read_text().split()) if self.dropped_file.exists() else set()

    def prepare(self):
        """Copies the tree as it is and configures it."""
        self.synchronise({})
        linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold"] if shutil.which("mold") else []
        subprocess.run(["cmake", "--preset", "dev", "-DTOLVANE_BUILD_GUIDE=OFF", *linker], cwd=self.copy, check=True,
                       stdout=subprocess.DEVNULL)
        entries = json.loads((self.binaries / "compile_commands.json").read_text())
        self.commands = {entry["file"]: entry["command"] for entry in entries}

    def synchronise(self, changed):
        """@param changed  what takes the place of a file's own text; files that were changed before keep the old changes"""
        listed = subprocess.run(["git", "ls-files", "-co", "--exclude-standard"], cwd=self.root, check=True,
                                capture_output=True, text=True).stdout.splitlines()
        for file in listed:
            source = self.root / file
            if file.startswith("scripts/mutation/") and file.endswith((".h", ".cpp")):
                write_if_new(self.copy / "mutation" / source.name, source.read_bytes())
            elif source.is_file() and not source.is_symlink():
                if changed or not self.holds_changes(file):
                    data = changed.get(file) or self.texts.get(file) or source.read_bytes()
                    write_if_new(self.copy / file, data + (EXTRA_BUILD.encode() if file == "CMakeLists.txt" else b""))
                    shutil.copymode(source, self.copy / file)

    def holds_changes(self, file):
        copied = self.copy / file
        return file.endswith(".cpp") and copied.exists() and copied.read_bytes().startswith(b'#include "mutation/')

    def compiler_arguments(self, file):
        """Those that matter for understanding a file."""
        words = shlex.split(self.commands[str(self.copy / file)])
        kept = [word for word in words if word.startswith(("-I", "-D", "-std"))]
        systems = [["-isystem", words[position + 1]] for position, word in enumerate(words) if word == "-isystem"]
        return kept + [word for pair in systems for word in pair]

    def remembered(self, file):
        """A file's bytes as they were when first asked for: somebody may go on editing while this runs."""
        if file not in self.texts:
            self.texts[file] = (self.root / file).read_bytes()
        return self.texts[file]

    def build(self, found, choose):
        """Builds the chosen changes; those that do not compile are dropped and others chosen in their place."""
        while True:
            mutants = choose(self.dropped)
            self.synchronise(self.rewritten(mutants))
            targets = [target for target in TARGETS if any(program_of(mutant) == target for mutant in mutants)]
            built = subprocess.run(["nice", "cmake", "--build", "--preset", "dev", "-j2", "--target", *targets, "--", "-k", "0"],
                                   cwd=self.copy, capture_output=True, text=True)
            if built.returncode == 0:
                return mutants
            bad = self.complained_about(built.stdout + built.stderr, mutants)
            if not bad:
                raise SystemExit("mutate: the changed tree does not build\n" + built.stdout[-4000:])
            print(f"{len(bad)} do not compile and are dropped", flush=True)
            self.dropped |= {mutant.identity() for mutant in bad}
            self.dropped_file.write_text("\n".join(sorted(self.dropped)))

    def rewritten(self, mutants):
        texts = {}
        for file in {mutant.file for mutant in mutants}:
            text = self.remembered(file).decode("latin-1")
            here = [mutant for mutant in mutants if mutant.file == file]
            texts[file] = schemata.rewritten(text, here).encode("latin-1")
        return texts

    def complained_about(self, output, mutants):
        lines = {(match[1], int(match[2])) for match in re.finditer(r"([\w/]+\.cpp):(\d+):\d+: (?:fatal )?error", output)}
        return [mutant for mutant in mutants for file, line in lines
                if file.endswith(mutant.file) and mutant.line <= line - 1 <= mutant.last_line]


def program_of(mutant):
    return "ui_tests" if mutant.file.startswith("ui/") else "core_tests"
