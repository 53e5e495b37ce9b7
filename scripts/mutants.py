"""Builds and tests random one-token mutants of module/ and utils/: mutants.py N SEED, started by mutation.sh."""
import os
import pathlib
import random
import re
import resource
import shutil
import signal
import subprocess
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from typing import NamedTuple

ROOT = pathlib.Path.cwd()
SCRATCH = ROOT / "build" / "mutation"
JOBS = int(os.environ.get("MUTATION_JOBS") or os.cpu_count() or 1)

# Quickest first; the sweeps take longer than all others together.
PROGRAMS = ["utils_tests", "storage_tests", "platform_tests", "contract_tests", "dispatcher_tests", "threads_tests",
            "module_tests", "simulation_tests", "unloading_tests", "dialog_tests", "host_tests", "sweep_tests"]
# The program most likely to notice a change in a folder runs before the others.
NEAREST = {"module/storage/": "storage_tests", "module/raid/": "module_tests", "utils/dispatcher/": "dispatcher_tests",
           "utils/dialogs/": "dialog_tests"}
TIME_LIMIT = 60  # seconds for one program, at least
MEMORY_LIMIT = 4 << 30  # a mutant may allocate in an endless loop

TOKEN = re.compile(r"""
    (?P<skipped> //[^\n]* | /\*.*?\*/ | ^[ \t]*\#(?:\\\n|[^\n])*  # comments and directives
      | \bstatic_assert\b[^;]*;
      | \b(?:u8|[uUL])?R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"
      | (?:\b(?:u8|[uUL]))?"(?:\\.|[^"\\\n])*" | (?:\b(?:u8|[uUL]))?'(?:\\.|[^'\\\n])+' )
    | (?P<number> (?<![.\w])(?:0[xX][0-9a-fA-F']+ | [0-9][0-9']*) (?![0-9.eE']) ) (?P<suffix>[uUlLzZ]*\b)
    | (?P<word> \w+ )
    | (?P<operator> <=> | <<= | >>= | -> | \+\+ | -- | && | \|\| | [-+*/%&|^<>=!]= | << | >> | [-+*/%&|^<>=!] )
    """, re.VERBOSE | re.DOTALL | re.MULTILINE)

# Formatted code has blanks around binary operators, but not around template brackets, references and signs.
BINARY = {"<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"], "==": ["!="], "!=": ["=="],
          "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "&": ["|"], "|": ["&"], "<<": [">>"], ">>": ["<<"],
          "+=": ["-="], "-=": ["+="], "*=": ["/="], "/=": ["*="], "|=": ["&="], "&=": ["|="],
          "<<=": [">>="], ">>=": ["<<="]}
UNARY = {"!": [""], "++": ["--"], "--": ["++"]}
WORDS = {"true": ["false"], "false": ["true"], "continue": ["break"], "break": ["continue"]}


class Mutant(NamedTuple):
    path: str  # from the root of the tree
    start: int
    end: int
    change: str

    def describe(self, text):
        line_start = text.rfind("\n", 0, self.start) + 1
        line = text[line_start:text.index("\n", self.start)]
        place = f"{self.path}:{text.count(chr(10), 0, self.start) + 1}:{self.start - line_start + 1}"
        old = text[self.start:self.end]
        return f"{place}: {old} -> {self.change or 'nothing'}\n    {line.strip()}"


def changes(token, text):
    """The replacements for one token."""
    if token["number"]:
        digits = token["number"].replace("'", "")
        value = int(digits, 16 if digits[:2] in ("0x", "0X") else 10)
        form = f"#0{len(digits)}x" if digits[:2] in ("0x", "0X") else "d"
        return [format(other, form) + token["suffix"] for other in (value + 1, value - 1) if other >= 0]
    if token["word"]:
        return WORDS.get(token["word"], [])
    symbol = token["operator"]
    if symbol in BINARY and text[token.start() - 1].isspace() and text[token.end()].isspace():
        return BINARY[symbol]
    return UNARY.get(symbol, [])


def mutants_of(path, text):
    for token in TOKEN.finditer(text):
        if not token["skipped"]:
            for change in changes(token, text):
                yield Mutant(path, token.start(), token.end(), change)


class Processes:
    """Runs programs in process groups of their own, so that a time-out or Ctrl-C ends their children too."""

    def __init__(self):
        self.running = set()
        self.lock = threading.Lock()
        self.stopped = False

    def run(self, command, folder, limit=None, **environment):
        """The exit code, None after a time-out, and the output."""
        with self.lock:
            if self.stopped:
                raise KeyboardInterrupt
            process = subprocess.Popen(command, cwd=folder, env={**os.environ, **environment}, start_new_session=True,
                                       stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                       text=True, errors="replace")
            self.running.add(process)
        try:
            output, _ = process.communicate(timeout=limit)
            code = process.returncode
        except subprocess.TimeoutExpired:
            self.signal(process, signal.SIGKILL)
            output, _ = process.communicate()
            code = None
        with self.lock:
            self.running.discard(process)
            if self.stopped:
                raise KeyboardInterrupt
        return code, output

    def stop(self):
        with self.lock:
            self.stopped = True
            running = list(self.running)
        for process in running:
            self.signal(process, signal.SIGTERM)  # ninja passes it on to the compilers, which are not in its group
        for process in running:
            try:
                process.wait(timeout=5)
            except subprocess.TimeoutExpired:
                self.signal(process, signal.SIGKILL)

    @staticmethod
    def signal(process, number):
        try:
            os.killpg(process.pid, number)
        except ProcessLookupError:
            pass  # it has just ended


processes = Processes()


class Worker:
    """A copy of the tree with a build of its own."""

    def __init__(self, number):
        self.tree = SCRATCH / str(number)
        self.build = self.tree / "build" / "dev"
        # Unchanged files come from the compiler cache when a mutant is undone; mutants stay out of it.
        self.environment = {"CCACHE_BASEDIR": str(self.tree), "CCACHE_NOHASHDIR": "1"}
        files = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                               check=True, capture_output=True, text=True).stdout.split("\0")
        for name in filter(os.path.isfile, files):
            (self.tree / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(name, self.tree / name)
        linker = "-fuse-ld=gold" if shutil.which("ld.gold") else ""
        self.checked(["cmake", "--preset", "dev", "-DCMAKE_BUILD_TYPE=", "-DCMAKE_CXX_FLAGS=-O0 -g0 -w",
                      "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST",
                      *(f"-DCMAKE_{kind}_LINKER_FLAGS={linker}" for kind in ("EXE", "SHARED", "MODULE"))], self.tree)
        self.checked(["ninja", *PROGRAMS], self.build)
        self.sources = {program: self.sources_of(program) for program in PROGRAMS}
        self.limits = dict.fromkeys(PROGRAMS, None)

    def checked(self, command, folder):
        code, output = processes.run(command, folder, **self.environment)
        if code != 0:
            sys.exit(f"{' '.join(command)} failed:\n{output[-4000:]}")
        return output

    def sources_of(self, program):
        """The files of the tree from which a program and the libraries it loads are built."""
        inputs = set(self.checked(["ninja", "-t", "inputs", program], self.build).split("\n"))
        found = set(inputs)
        target = ""
        for line in self.checked(["ninja", "-t", "deps"], self.build).split("\n"):
            if line and not line.startswith(" "):
                target = line.split(": ")[0]
            elif target in inputs:
                found.add(line.strip())
        return {os.path.relpath(self.build / name, self.tree) for name in found if name}

    def runs(self, program):
        """The command lines of a program and their variables."""
        test = [f"bin/{program}", "--gtest_brief=1", "--gtest_fail_fast"]
        yield test, {}
        if program == "dialog_tests":
            # A process has one screen for its whole life.
            for screen in sorted(self.build.glob("tests/dialogs/screen_*.json")):
                yield ([*test, "--gtest_filter=*.NoLineOfTheTextIsCut"],
                       {"QT_QPA_PLATFORM": f"offscreen:configfile={screen}", "QT_ENABLE_HIGHDPI_SCALING": "0"})

    def passes(self, program):
        return all(processes.run(command, self.build, self.limits[program], **variables)[0] == 0
                   for command, variables in self.runs(program))

    def check_unchanged(self):
        """Runs all programs on the unchanged tree and takes their time limits from it."""
        for program in PROGRAMS:
            start = time.monotonic()
            if not self.passes(program):
                sys.exit(f"{program} fails without any change")
            self.limits[program] = max(TIME_LIMIT, 5 * (time.monotonic() - start))

    def judge(self, mutant, text):
        """The program that notices the mutant, "" if none does; None if the mutant does not compile."""
        nearest = next((program for folder, program in NEAREST.items() if mutant.path.startswith(folder)), "")
        file = self.tree / mutant.path
        file.write_text(text[:mutant.start] + mutant.change + text[mutant.end:])
        try:
            for program in sorted(PROGRAMS, key=lambda name: name != nearest):
                if mutant.path in self.sources[program]:
                    if processes.run(["ninja", "-j1", program], self.build, CCACHE_READONLY="1",
                                     **self.environment)[0] != 0:
                        return None
                    if not self.passes(program):
                        return program
            return ""
        finally:
            file.write_text(text)


def main(count, seed):
    workers = [Worker(number) for number in range(JOBS)]  # one after the other: the second gets its build from the cache
    workers[0].check_unchanged()
    for worker in workers:
        worker.limits = workers[0].limits
    built = sorted(name for name in set().union(*workers[0].sources.values())
                   if name.startswith(("module/", "utils/")) and name.endswith((".cpp", ".h")))
    texts = {name: (workers[0].tree / name).read_text() for name in built}
    drawn = [mutant for name in built for mutant in mutants_of(name, texts[name])]
    print(f"{len(drawn)} possible mutants in {len(built)} files, seed {seed}", flush=True)
    random.Random(seed).shuffle(drawn)
    remaining = iter(drawn)
    lock = threading.Lock()
    judged = killed = 0

    def one_compiled():
        # Each call draws until a mutant compiles, so the mutants counted depend on the seed only.
        nonlocal judged, killed
        with lock:
            worker = workers.pop()
        try:
            verdict = None
            while verdict is None:
                with lock:
                    mutant = next(remaining, None)
                if mutant is None:
                    return
                verdict = worker.judge(mutant, texts[mutant.path])
            with lock:
                judged += 1
                killed += bool(verdict)
                if not verdict:
                    print(f"survived: {mutant.describe(texts[mutant.path])}", flush=True)
                if judged % 10 == 0:
                    print(f"{judged} of {count}: {killed} killed", flush=True)
        finally:
            with lock:
                workers.append(worker)

    pool = ThreadPoolExecutor(JOBS)
    try:
        for call in [pool.submit(one_compiled) for _ in range(count)]:
            call.result()
    finally:
        processes.stop()
        pool.shutdown(cancel_futures=True)
        print(f"killed {killed} of {judged} mutants" + (f" ({100 * killed / judged:.1f} %)" if judged else ""))


def interrupt(*_):
    raise KeyboardInterrupt


if __name__ == "__main__":
    signal.signal(signal.SIGINT, interrupt)
    signal.signal(signal.SIGTERM, interrupt)
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY_LIMIT, MEMORY_LIMIT))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    shutil.rmtree(SCRATCH, ignore_errors=True)
    try:
        main(int(sys.argv[1]), int(sys.argv[2]))
    except KeyboardInterrupt:
        processes.stop()
        sys.exit(130)
    finally:
        shutil.rmtree(SCRATCH, ignore_errors=True)
