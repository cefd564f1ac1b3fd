#!/usr/bin/env python3
"""Adds up the results of one run of ./test: report.py RESULTS-FOLDER

The folder holds checks.tsv (outcome, name and reason, with tabs between them) and one JUnit file of ctest for each
configuration. A test program that ran under ctest as one test is counted by its cases, read from its output.
"""

import pathlib
import re
import sys
import xml.etree.ElementTree as xml

CASE = re.compile(r"^\[ +(OK|FAILED|SKIPPED) +\] (\S+?),?(?: where .*)? \(\d+ ms\)")
RUN = re.compile(r"^\[ RUN +\] ")


def cases(output):
    """(outcome, name, reason) of each GoogleTest case in a program's output."""
    said = []
    for line in output.replace("\r", "").splitlines():
        if RUN.match(line):
            said = []
        elif match := CASE.match(line):
            outcome = {"OK": "passed", "FAILED": "failed", "SKIPPED": "skipped"}[match[1]]
            reason = " ".join(text.strip() for text in said if not text.rstrip().endswith(": Skipped")).strip()
            yield outcome, match[2], reason
        else:
            said.append(line)


def results(junit):
    """(outcome, name, reason) of every test in a JUnit file."""
    for test in xml.parse(junit).getroot().iter("testcase"):
        name = f"{junit.stem}: {test.get('name')}"
        output = test.findtext("system-out") or ""
        found = list(cases(output))
        for outcome, case, reason in found:
            yield outcome, name if case == test.get("name") else f"{name}: {case}", reason
        outcomes = {outcome for outcome, _, _ in found}
        if test.get("status") == "fail" and "failed" not in outcomes:
            yield "failed", name, "the program failed outside its cases"
        elif not found and test.get("status") == "run":
            yield "passed", name, ""
        elif not found:
            said = output.strip().splitlines()
            yield "skipped", name, said[-1].removeprefix("skipped: ") if said else "no reason given"


def main():
    folder = pathlib.Path(sys.argv[1])
    everything = []
    for line in (folder / "checks.tsv").read_text().splitlines():
        everything.append(tuple(line.split("\t")))
    for junit in sorted(folder.glob("*.xml")):
        everything += results(junit)

    counts = {outcome: sum(1 for entry in everything if entry[0] == outcome)
              for outcome in ("passed", "failed", "skipped")}
    for outcome, name, reason in everything:
        if outcome != "passed":
            print(f"{outcome}: {name}" + (f" ({reason})" if reason and outcome == "skipped" else ""))
    print(", ".join(f"{count} {outcome}" for outcome, count in counts.items()))
    return 1 if counts["failed"] or not counts["passed"] else 0


if __name__ == "__main__":
    sys.exit(main())
