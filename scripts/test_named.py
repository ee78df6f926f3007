#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Builds the test programs that hold the named cases and runs only those cases: what `./test NAME` does.

A name is looked for, whatever its case, as a whole suite, source file or test program; if there is none, as a part of
"Suite.Case" or of a source file's name. `*` stands for anything. What stands behind "--" goes to the test programs.
With --gdb before the names each program starts in the debugger instead, stopped before its first line.
The environment of a run is the one that ctest has, so it is told once, in cmake/Targets.cmake.
"""
import difflib
import json
import os
import re
import subprocess
import sys
from collections import defaultdict, namedtuple

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
BUILD = os.path.join(ROOT, "build", "dev")
MANY_CASES = 30  # more than these are run without a line for each that passes
CASE = re.compile(r"^\s*(TEST|TEST_F|TEST_P|TYPED_TEST|TYPED_TEST_P)\(\s*(\w+),\s*(\w+)\s*\)", re.M)

Case = namedtuple("Case", "program path suite name pattern")


def gtest_pattern(kind, suite, name):
    """The filter that fits the case as GoogleTest prints it, with the parts it adds for parameters and types."""
    if kind == "TEST_P":
        return f"*{suite}.{name}/*"
    if kind.startswith("TYPED_TEST"):
        return f"*{suite}/*.{name}"
    return f"{suite}.{name}"


def all_tests():
    """What ctest knows of each test program by its name; its command only once it is built."""
    text = subprocess.run(["ctest", "--test-dir", BUILD, "--show-only=json-v1"], capture_output=True, text=True,
                          check=True).stdout
    return {test["name"]: test for test in json.loads(text)["tests"]}


def all_cases(programs):
    """Every case in a source of one of the test programs."""
    with open(os.path.join(BUILD, "compile_commands.json"), encoding="utf-8") as file:
        commands = json.load(file)
    cases = []
    for command in commands:
        found = re.search(r" -o \S*CMakeFiles/([^/]+)\.dir/", command["command"])
        if not found or found.group(1) not in programs or not os.path.exists(command["file"]):
            continue
        with open(command["file"], encoding="utf-8") as file:
            text = file.read()
        path = os.path.relpath(command["file"], ROOT)
        for kind, suite, name in CASE.findall(text):
            cases.append(Case(found.group(1), path, suite, name, gtest_pattern(kind, suite, name)))
    return cases


def stem(case):
    return os.path.splitext(os.path.basename(case.path))[0]


def bare(name):
    """A name as GoogleTest prints it, without the parts that stand for instantiation and parameter."""
    printed = re.fullmatch(r"(?:\w+/)?(\w+)(?:/\w+)?\.(\w+)(?:/\w+)?", name)
    return f"{printed.group(1)}.{printed.group(2)}" if printed and printed.group(2) != "cpp" else name


def matching(name, cases):
    """The cases that the name means: a whole suite, file or program of this name first, else any part of one."""
    wanted = re.compile(".*".join(re.escape(part) for part in bare(name).split("*")), re.I)
    whole = [case for case in cases if any(
        wanted.fullmatch(text) for text in (case.suite, stem(case), stem(case) + ".cpp", case.path,
                                            case.program, f"{case.suite}.{case.name}"))]
    return whole or [case for case in cases if any(
        wanted.search(text) for text in (f"{case.suite}.{case.name}", case.path))]


def near_names(name, cases):
    """Up to five names that look like the one that is unknown."""
    known = {}
    for case in cases:
        for text in (case.suite, stem(case), case.program, case.name, f"{case.suite}.{case.name}"):
            known.setdefault(text.lower(), f"{case.suite}.{case.name}" if text == case.name else text)
    close = difflib.get_close_matches(name.lower(), known, n=5, cutoff=0.6)
    return list(dict.fromkeys(known[text] for text in close))


def build(programs):
    """Builds the programs as `./test` does, with its progress and its way to tell failures; with none, only configures."""
    targets = programs or ["build.ninja"]
    return subprocess.run(["bash", "-c", '. scripts/prepare.sh && build_preset dev --target "$@"', "build", *targets],
                          cwd=ROOT).returncode == 0


def run(test, cases, options, debugger):
    """Runs the cases of one program; the number that ran, or None when one failed or none was found to run."""
    properties = {item["name"]: item["value"] for item in test.get("properties", [])}
    environment = dict(os.environ, **dict(line.split("=", 1) for line in properties.get("ENVIRONMENT", [])))
    folder = properties.get("WORKING_DIRECTORY", BUILD)
    command = test["command"] + ["--gtest_filter=" + ":".join(dict.fromkeys(case.pattern for case in cases))]
    listed = subprocess.run(command + ["--gtest_list_tests"], env=environment, cwd=folder, capture_output=True, text=True)
    count = sum(line.startswith("  ") for line in listed.stdout.splitlines())
    if count == 0:
        print(f"test: {test['name']} has none of these cases", file=sys.stderr)
        return None
    print(f"{test['name']}: {count} {'case' if count == 1 else 'cases'}", flush=True)
    brief = ["--gtest_brief=1"] if count > MANY_CASES else []
    done = subprocess.run(debugger + command + brief + options, env=environment, cwd=folder)
    if done.returncode < 0:
        print(f"test: {test['name']} was ended by signal {-done.returncode}", file=sys.stderr)
    return count if done.returncode == 0 else None


def main(arguments):
    if arguments[:1] in (["--help"], ["-h"]):
        print(__doc__.strip())
        return 0
    names, options, debugger = arguments, [], []
    if names[:1] == ["--gdb"]:
        names = arguments = names[1:]
        debugger = ["gdb", "-q", "--args"]
    if "--" in arguments:
        cut = arguments.index("--")
        names, options = arguments[:cut], arguments[cut + 1:]
    if not names or not build([]):
        return 2
    tests = all_tests()
    cases = all_cases(tests)
    wanted = defaultdict(list)
    for name in names:
        found = matching(name, cases)
        if not found:
            near = near_names(name, cases)
            print(f"test: no case, suite, file or program is named like {name}" +
                  (f"; near are {', '.join(near)}" if near else ""), file=sys.stderr)
            return 2
        for case in found:
            wanted[case.program].append(case)
    if not build(sorted(wanted)):
        print("test: the build failed", file=sys.stderr)
        return 1
    tests = all_tests()
    counts = [run(tests[program], found, options, debugger) for program, found in sorted(wanted.items())]
    if None in counts:
        print("test: tests failed", file=sys.stderr)
        return 1
    if not debugger:
        print(f"{sum(counts)} passed, 0 failed")
    return 0


if __name__ == "__main__":
    try:
        sys.exit(main(sys.argv[1:]))
    except KeyboardInterrupt:
        sys.exit(130)
