#!/usr/bin/env python3
"""Changes the program in one small place, builds it, and runs the tests of the changed folder; then the next place.

A change that no test notices shows behaviour that no test holds. ./test --mutate runs this script.
"""

import argparse
import collections
import hashlib
import os
import random
import re
import shutil
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
UNCHANGED = Path(__file__).with_name("unchanged.txt")

# Where the places are, and the folder of tests that has to notice. The first entry that fits counts.
TESTS_OF = (
    ("SenderModuleDialog/chart/", "tests/chart"),
    ("SenderModuleDialog/geometry/", "tests/geometry"),
    ("SenderModuleDialog/colour/", "tests/colour"),
    ("SenderModuleDialog/edid/", "tests/edid"),
    ("SenderModuleDialog/output/", "tests/output"),
    ("SenderModuleDialog/addressing/", "tests/addressing"),
    ("SenderModuleDialog/", "tests/frame"),
    ("simulator/", "tests/simulator"),
)
# What else looks at every dialog: asked when the folder's own tests notice nothing.
SECOND_OPINION = "tests/gui"
# Tests that take minutes, need rights of their own, or judge the tree instead of the program.
LEFT_OUT = "long|surface|network"
# Tests that take long and notice little that others do not: asked when the others notice nothing.
SLOW = "KilledSave|DamagedProject"
LONGEST_TEST = 45  # seconds; a test that hangs has noticed
LEAST_NOTICED = 0.95

KINDS = (
    ("comparison", re.compile(r" (<=|>=|==|!=|<|>) "),
     {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}),
    ("sign", re.compile(r" ([+*/-]) "), {"+": "-", "-": "+", "*": "/", "/": "*"}),
    ("logic", re.compile(r" (&&|\|\|) "), {"&&": "||", "||": "&&"}),
    ("truth", re.compile(r"\b(true|false)\b"), {"true": "false", "false": "true"}),
    ("assignment", re.compile(r" ([+-]=) "), {"+=": "-=", "-=": "+="}),
)
NUMBER = re.compile(r"(?<![\w.\"'])(\d+\.\d+F?|0x[0-9A-Fa-f]+|\d+)(?![\w.'])")
CALL = re.compile(r"^\s*[A-Za-z_][\w:.]*(?:->\w+|\.\w+)*\([^;{}]*\);$")
CONDITION = re.compile(r"\bif \((.+)\)( \{)?$")
ARGUMENTS = re.compile(r"(\w+)\(([\w.]+), ([\w.]+)\)")

Mutant = collections.namedtuple("Mutant", "path line kind before after")


def code_of(line):
    """The line with texts and comments blanked, so that nothing is changed in them; none for lines without code."""
    stripped = line.strip()
    if stripped.startswith(("//", "#", "*", "template", "static_assert", "using ", "namespace", "class ", "struct ")):
        return ""
    line = re.sub(r'"(?:[^"\\]|\\.)*"', lambda m: "~" * len(m.group()), line)
    line = re.sub(r"'(?:[^'\\]|\\.)*'", lambda m: "~" * len(m.group()), line)
    return re.sub(r"//.*", lambda m: "~" * len(m.group()), line)


def with_change(line, begin, end, text):
    return line[:begin] + text + line[end:]


def other_number(text):
    if text.startswith("0x"):
        return hex(int(text, 16) + 1)
    if "." in text:
        suffix = "F" if text.endswith("F") else ""
        value = float(text.rstrip("F"))
        return repr(value * 1.5 if value else 1.0) + suffix
    return str(int(text) + 1)


def mutants_of_line(path, number, line):
    """Every small change of a line."""
    code = code_of(line)
    if not code.strip():
        return
    for kind, pattern, others in KINDS:
        for match in pattern.finditer(code):
            yield Mutant(path, number, kind, line, with_change(line, *match.span(1), others[match.group(1)]))
    for match in NUMBER.finditer(code):
        yield Mutant(path, number, "constant", line, with_change(line, *match.span(1), other_number(match.group(1))))
    if CALL.match(code):
        indent = line[:len(line) - len(line.lstrip())]
        yield Mutant(path, number, "call left out", line, indent + ";")
    match = CONDITION.search(code)
    if match and " = " not in match.group(1):
        yield Mutant(path, number, "condition", line,
                     with_change(line, *match.span(1), f"!({line[match.start(1):match.end(1)]})"))
    for match in ARGUMENTS.finditer(code):
        if match.group(2) != match.group(3):
            swapped = f"{match.group(1)}({match.group(3)}, {match.group(2)})"
            yield Mutant(path, number, "arguments swapped", line, with_change(line, *match.span(), swapped))


def all_mutants():
    listed = subprocess.run(["git", "ls-files", "SenderModuleDialog/**.cpp", "simulator/**.cpp"],
                            cwd=ROOT, capture_output=True, text=True, check=True).stdout.split()
    for path in listed:
        for number, line in enumerate((ROOT / path).read_text(encoding="utf-8").splitlines()):
            yield from mutants_of_line(path, number, line)


def identity(mutant):
    """What a mutant is known by, also when lines move."""
    text = "\t".join((mutant.path, mutant.kind, mutant.before.strip(), mutant.after.strip()))
    return hashlib.sha256(text.encode()).hexdigest()[:12]


def known_as_unchanged():
    """The changes that change nothing: path, line before and line after, with the reason behind them."""
    known = set()
    for line in UNCHANGED.read_text(encoding="utf-8").splitlines():
        if line.strip() and not line.startswith("#"):
            path, before, after, reason = (part.strip() for part in line.split("\t"))
            if not reason:
                raise SystemExit(f"{UNCHANGED.name}: no reason is given for {path}: {after}")
            known.add((path, before, after))
    return known


class Workshop:
    """A copy of the tree with a build of its own."""

    def __init__(self, folder):
        self.tree = folder / "tree"
        self.build = folder / "build"

    def prepare(self, folders):
        """Copies the tree, builds it unchanged and makes sure that its tests pass: else every change is noticed."""
        self._copy_tree()
        launcher = ["-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"] if shutil.which("ccache") else []
        linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold", "-DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=mold"] \
            if shutil.which("mold") else []
        self._must(["cmake", "-S", self.tree, "-B", self.build, "-G", "Ninja", "-Wno-dev", "-DCMAKE_BUILD_TYPE=None",
                    "-DCMAKE_CXX_FLAGS=-O1 -w", "-DSENDER_BUILD_TESTS=ON", "-DSENDER_BUILD_BENCHMARKS=OFF",
                    *launcher, *linker])
        for folder in folders:
            self._must(["ninja", "-C", self.build, f"{folder}/all"])
            if not self.tests_pass(folder):
                sys.stderr.write((self.build / folder / "Testing/Temporary/LastTestsFailed.log").read_text())
                raise SystemExit(f"mutate: the tests of {folder} fail before anything is changed")

    def _copy_tree(self):
        """Only files that differ are written, so that the build starts from what it has."""
        listed = subprocess.run(["git", "ls-files"], cwd=ROOT, capture_output=True, text=True, check=True).stdout
        for path in listed.splitlines():
            source, target = ROOT / path, self.tree / path
            if not target.exists() or target.read_bytes() != source.read_bytes():
                target.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(source, target)

    @staticmethod
    def _must(command):
        result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        if result.returncode != 0:
            sys.stderr.buffer.write(result.stdout[-4000:])
            raise SystemExit(f"mutate: {command[0]} failed")

    def builds(self, folder):
        return subprocess.run(["ninja", "-C", self.build, f"{folder}/all"], stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL, check=False).returncode == 0

    def tests_pass(self, folder, *choice):
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8", CTEST_PARALLEL_LEVEL="2")
        return subprocess.run(["ctest", "--test-dir", self.build / folder, "--stop-on-failure", "--label-exclude",
                               LEFT_OUT, "--timeout", str(LONGEST_TEST), *choice], env=environment,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False).returncode == 0

    def judge(self, mutant):
        """noticed, survived, or not built when the compiler refuses the change."""
        file = self.tree / mutant.path
        original = file.read_text(encoding="utf-8")
        lines = original.split("\n")
        lines[mutant.line] = mutant.after
        file.write_text("\n".join(lines), encoding="utf-8")
        try:
            return self._verdict(folder_of(mutant))
        finally:
            file.write_text(original, encoding="utf-8")

    def _verdict(self, folder):
        if not self.builds(folder):
            return "not built"
        passed = (self.tests_pass(folder, "--exclude-regex", SLOW) and self.tests_pass(folder, "--tests-regex", SLOW) and
                  self.builds(SECOND_OPINION) and self.tests_pass(SECOND_OPINION))
        return "survived" if passed else "noticed"


def folder_of(mutant):
    return next(tests for prefix, tests in TESTS_OF if mutant.path.startswith(prefix))


def read_results(file):
    """What earlier runs found, by identity."""
    if not file.exists():
        return {}
    rows = (line.split("\t") for line in file.read_text(encoding="utf-8").splitlines())
    return {row[0]: row[1] for row in rows}


def chosen(count, seed):
    """The places in the order of the seed, spread over all files by how much code they have."""
    mutants = list(all_mutants())
    random.Random(seed).shuffle(mutants)
    return mutants if count == 0 else mutants[:count * 2]


def report(verdicts, survivors):
    by_folder = collections.defaultdict(collections.Counter)
    for mutant, verdict in verdicts:
        by_folder[folder_of(mutant)][verdict] += 1
    print(f"\n{'tests':24}{'noticed':>9}{'survived':>10}{'unchanged':>11}")
    for folder, counts in sorted(by_folder.items()):
        print(f"{folder:24}{counts['noticed']:9}{counts['survived']:10}{counts['unchanged']:11}")
    total = collections.Counter(verdict for _, verdict in verdicts)
    judged = total["noticed"] + total["survived"]
    share = total["noticed"] / judged if judged else 1.0
    for mutant in survivors:
        print(f"\nsurvived: {mutant.path}:{mutant.line + 1} ({mutant.kind})\n"
              f"  - {mutant.before.strip()}\n  + {mutant.after.strip()}")
    print(f"\n{len(verdicts)} changes: {total['noticed']} of {judged} noticed ({100 * share:.1f} per cent), "
          f"{total['unchanged']} change nothing")
    return share >= LEAST_NOTICED


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--count", type=int, default=400, help="how many changes to judge; 0 for all there are")
    parser.add_argument("--seed", type=int, default=1, help="chooses the places")
    parser.add_argument("--folder", type=Path, default=ROOT / "build/mutate", help="where to work")
    parser.add_argument("--only", default="", help="only places whose path contains this text")
    arguments = parser.parse_args()

    unchanged = known_as_unchanged()
    candidates = [mutant for mutant in chosen(0 if arguments.only else arguments.count, arguments.seed)
                  if arguments.only in mutant.path]
    workshop = Workshop(arguments.folder)
    arguments.folder.mkdir(parents=True, exist_ok=True)
    workshop.prepare(sorted({folder_of(mutant) for mutant in candidates} | {SECOND_OPINION}))
    results_file = arguments.folder / "mutants.tsv"
    results = read_results(results_file)
    verdicts, survivors = [], []
    for mutant in candidates:
        if arguments.count and len(verdicts) == arguments.count:
            break
        verdict = results.get(identity(mutant))
        if (mutant.path, mutant.before.strip(), mutant.after.strip()) in unchanged:
            verdict = "unchanged"
        # A survivor of an earlier run may be noticed by a test that is new.
        elif verdict not in ("noticed", "not built"):
            begin = time.monotonic()
            verdict = workshop.judge(mutant)
            with results_file.open("a", encoding="utf-8") as file:
                file.write("\t".join((identity(mutant), verdict, mutant.path, str(mutant.line + 1), mutant.kind,
                                      mutant.before.strip(), mutant.after.strip(),
                                      f"{time.monotonic() - begin:.1f}")) + "\n")
            print(f"{len(verdicts) + 1:5} {verdict:10} {mutant.path}:{mutant.line + 1} {mutant.kind}", flush=True)
        if verdict == "not built":
            continue
        verdicts.append((mutant, verdict))
        if verdict == "survived":
            survivors.append(mutant)
    return 0 if report(verdicts, survivors) else 1


if __name__ == "__main__":
    sys.exit(main())
