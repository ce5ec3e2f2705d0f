"""Tries each change on the tests that reach it."""

import hashlib
import json
import os
import re
import resource
import shutil
import signal
import subprocess
import threading
import time
from concurrent.futures import ThreadPoolExecutor

from mutation import known
from mutation.tree import program_of

# The quickest tests first, in batches of this many seconds: most changes are noticed at once.
BATCH_SECONDS = {"core_tests": [0.3, 5.0], "ui_tests": [3.0, 15.0]}
START_SECONDS = 10
MEMORY = 6 << 30
FILE_SIZE = 1 << 30


class Trial:
    def __init__(self, root, tree, again):
        self.root = root
        self.tree = tree
        self.again = again
        self.cache_file = tree.folder / "results.json"
        self.cache = json.loads(self.cache_file.read_text()) if self.cache_file.exists() else {}
        self.lock = threading.Lock()
        self.tests = {}  # program -> [(name, seconds, numbers reached)], the quickest first
        self.digests = {}

    def run(self, mutants):
        """The result of each number: killed, survived, unreached or equivalent, with what there is to say about it."""
        programs = sorted({program_of(mutant) for mutant in mutants})
        for program in programs:
            self.digests[program] = self.digest_of_tests(program)
        reasons = known.equivalent()
        results = {}
        waiting = []
        for mutant in mutants:
            cached = self.cached(mutant)
            if mutant.name() in reasons:
                results[mutant.number] = ("equivalent", reasons[mutant.name()])
            elif cached:
                results[mutant.number] = tuple(cached[:2])
            else:
                waiting.append(mutant)
        print(f"{len(waiting)} to try, {len(mutants) - len(waiting)} known", flush=True)
        for program in sorted({program_of(mutant) for mutant in waiting}):
            self.tests[program] = self.recorded(program)
        with ThreadPoolExecutor(2) as workers:
            for mutant, result in zip(waiting, workers.map(self.tried, waiting)):
                results[mutant.number] = result
        return results

    def digest_of_tests(self, program):
        folder = self.root / "tests" / program.removesuffix("_tests")
        digest = hashlib.sha256()
        for file in sorted(folder.iterdir()):
            digest.update(file.read_bytes())
        return digest.hexdigest()[:16]

    def cached(self, mutant):
        """A change that slipped through is tried again when there are other tests."""
        result = self.cache.get(mutant.identity())
        if result is None or result[0] == "killed":
            return result
        return result if result[2] == self.digests[program_of(mutant)] and not self.again else None

    def keep(self, mutant, result):
        with self.lock:
            self.cache[mutant.identity()] = [*result, self.digests[program_of(mutant)]]
            fresh = self.cache_file.with_suffix(".new")
            fresh.write_text(json.dumps(self.cache))
            fresh.replace(self.cache_file)
        print(f"{result[0]:9} {mutant.described()}{'  by ' + result[1] if result[1] else ''}", flush=True)

    def recorded(self, program):
        """Runs all tests without a change; those that fail even so are left out."""
        record = self.tree.folder / f"{program}.reached"
        record.unlink(missing_ok=True)
        print(f"{program}: which test reaches what", flush=True)
        self.run_tests(program, "*", 3600, {"MUTATION_RECORD": str(record)}, fail_fast=False)
        tests = []
        for line in record.read_text().splitlines():
            name, outcome, milliseconds, *numbers = line.split()
            if outcome == "passed":
                tests.append((name, int(milliseconds) / 1000, set(map(int, numbers))))
            else:
                print(f"  left out, {outcome} without any change: {name}", flush=True)
        print(f"{program}: {len(tests)} tests, {sum(test[1] for test in tests):.0f} s", flush=True)
        return sorted(tests, key=lambda test: test[1])

    def tried(self, mutant):
        result = self.outcome(mutant)
        self.keep(mutant, result)
        return result

    def outcome(self, mutant):
        program = program_of(mutant)
        reaching = [test for test in self.tests[program] if mutant.number in test[2]]
        if not reaching:
            return ("unreached", "")
        for batch in batches(reaching, BATCH_SECONDS[program]):
            seconds = sum(test[1] for test in batch)
            names = ":".join(test[0] for test in batch)
            killer = self.noticed_by(program, names, seconds, mutant)
            # Windows under load may fail by themselves: the test has to fail twice.
            if killer and program == "ui_tests" and killer in names.split(":"):
                killer = self.noticed_by(program, killer, seconds, mutant)
            if killer:
                return ("killed", killer)
        return ("survived", "")

    def noticed_by(self, program, names, seconds, mutant):
        """The test that failed; empty when none did."""
        status, output = self.run_tests(program, names, 10 * seconds + START_SECONDS, {"MUTANT": str(mutant.number)})
        if status == 0:
            return ""
        # After a failure the tests that are left out are named as well; after a crash the last one named is the one.
        failed = re.findall(r"^\[  FAILED  \] ([^\s,]+)", output, flags=re.M)
        started = re.findall(r"^\[ RUN      \] (\S+)", output, flags=re.M)
        return failed[0] if failed else started[-1] if started else "the start of the tests"

    def run_tests(self, program, names, limit, environment, fail_fast=True):
        """In a folder of their own, because a change may well write or delete in the wrong place."""
        home = self.tree.folder / "scratch" / str(threading.get_ident())
        shutil.rmtree(home, ignore_errors=True)
        home.mkdir(parents=True)
        places = {"HOME": str(home), "TMPDIR": str(home), "XDG_STATE_HOME": str(home / "state"), "GTEST_FILTER": names}
        options = ["--gtest_fail_fast"] if fail_fast else []
        display = [str(self.root / "tests/with-display")] if program == "ui_tests" else []
        binary = self.tree.binaries / "tests" / program.removesuffix("_tests") / program
        with open(home.with_suffix(".log"), "w+", errors="replace") as log:
            process = subprocess.Popen(["nice", *display, str(binary), *options], cwd=home, stdout=log, stderr=log,
                                       stdin=subprocess.DEVNULL, env={**os.environ, **places, **environment},
                                       start_new_session=True, preexec_fn=limited)
            status = ended(process, limit)
            log.seek(0)
            return status, log.read()


def limited():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


def ended(process, limit):
    """The exit status; of what takes too long, everything that it started is ended."""
    try:
        return process.wait(limit)
    except subprocess.TimeoutExpired:
        # The display's script takes down what it started when it is asked to.
        process.send_signal(signal.SIGTERM)
        time.sleep(1)
        os.killpg(process.pid, signal.SIGKILL)
        process.wait()
        return -1


def batches(tests, limits):
    """Splits tests, the quickest first, where their time passes each of the limits."""
    batch, seconds, limits = [], 0.0, list(limits)
    for test in tests:
        if limits and batch and seconds + test[1] > limits[0]:
            yield batch
            batch, seconds = [], 0.0
            limits.pop(0)
        batch.append(test)
        seconds += test[1]
    if batch:
        yield batch
