"""Sets the program's figures beside the calculation's, and tells where they differ.

    python3 compare.py --dump BUILD/tests/figures_dump --reference data/reference-intakes.tsv

Each run prints its seed, the number of figures, and the first differences. It ends with 1 if there
is any.
"""

import argparse
import collections
import itertools
import random
import subprocess
import sys
import tempfile

import amounts
import targets
from cases import Cases
from expected import Calculation
from pie_picture import ANY
from shown_log import Screens

SHOWN_DIFFERENCES = 20


def options():
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--dump", required=True, help="the program that prints the figures")
    parser.add_argument("--reference", required=True, help="the table of reference intakes")
    parser.add_argument("--seed", type=int, default=random.randrange(10**9))
    parser.add_argument("--persons", type=int, default=1000, help="and texts, numbers and days")
    parser.add_argument("--logs", type=int, default=100)
    return parser.parse_args()


def same(expected, printed):
    """Equal as texts; where the calculation cannot tell a pixel, any will do."""
    if expected == printed:
        return True
    return ANY in expected and len(expected) == len(printed) and all(
        e in (ANY, p) for e, p in zip(expected, printed))


class Differences:
    """Counts what was compared and what differed."""

    def __init__(self):
        self.figures, self.count = 0, 0
        self.by_kind = collections.Counter()

    def compare(self, case, expected, printed):
        self.figures += expected.count("\t")
        for place, (e, p) in enumerate(itertools.zip_longest(expected.split("\t"),
                                                             printed.split("\t"))):
            if e is None or p is None or not same(e, p):
                self.report(case, expected.split("\t")[0], place, e, p)

    def report(self, case, kind, place, expected, printed):
        self.count += 1
        self.by_kind[kind] += 1
        if self.count <= SHOWN_DIFFERENCES:
            print(f"{kind}, field {place}: expected {expected!r}, printed {printed!r}\n"
                  f"    case: {case[:300]}")


def write_cases(arguments, path):
    """The lines of the run, one after the other."""
    with open(path, "w", encoding="utf-8") as file:
        for case in Cases(arguments.seed).lines(arguments.persons, arguments.logs):
            file.write(case + "\n")


def read_lines(stream):
    return (printed.rstrip("\n") for printed in stream)


def compare(arguments, path, printed):
    """Walks the cases and both answers together."""
    _, version = next(printed).split("\t")
    amounts.Store.version = int(version)
    _, _, panel_width, label_width = next(printed).split("\t")
    calculation = Calculation(targets.read_reference(arguments.reference),
                              Screens(float(panel_width), float(label_width)))
    differences = Differences()
    with open(path, encoding="utf-8") as file:
        for case in read_lines(file):
            for expected in calculation.answer(case):
                differences.compare(case, expected, next(printed, "nothing"))
    for left in printed:
        differences.compare("(after the last case)", "", left)
    return differences


def main():
    arguments = options()
    print(f"seed {arguments.seed}, {arguments.persons} persons, {arguments.logs} logs", flush=True)
    with tempfile.TemporaryDirectory() as folder:
        path = folder + "/cases.tsv"
        write_cases(arguments, path)
        with subprocess.Popen([arguments.dump, path], stdout=subprocess.PIPE,
                              encoding="utf-8") as program:
            differences = compare(arguments, path, read_lines(program.stdout))
    print(f"{differences.figures} figures, {differences.count} differences",
          dict(differences.by_kind) or "")
    return 1 if differences.count or program.returncode else 0


if __name__ == "__main__":
    sys.exit(main())
