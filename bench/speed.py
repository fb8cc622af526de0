#!/usr/bin/env python3
"""Makes a table of what halvane_bench has measured, or compares two measurements.

  speed.py table FILE      the table of docs/speed.md, as Markdown
  speed.py compare OLD NEW names what got slower by more than a tenth; the exit code is then 1

The files are those of `halvane_bench --json=FILE`.
"""
import json
import sys

MORE = 1.1  # by more than a tenth


def read(path):
    with open(path, encoding="utf-8") as file:
        return json.load(file)


def ratio(row):
    return row["ours"] / row["limit"] if row.get("limit") else None


def shown(number):
    return "" if number is None else f"{number:.3g}" if number < 100 else f"{number:.0f}"


def table(measured):
    yield "| work | unit | ours | limit | ratio |"
    yield "|---|---|---:|---:|---:|"
    for row in measured["rows"]:
        figures = [shown(row["ours"]), shown(row.get("limit")), shown(ratio(row))]
        yield "| " + " | ".join([row["work"], row["unit"], *figures]) + " |"


def is_slower(old, new):
    """A busy machine slows the limit down, too: then the ratio stays as it was."""
    if new["ours"] <= old["ours"] * MORE:
        return False
    return ratio(old) is None or ratio(new) is None or ratio(new) > ratio(old) * MORE


def compare(old, new):
    before = {row["work"]: row for row in old["rows"]}
    for row in new["rows"]:
        known = before.pop(row["work"], None)
        if known and is_slower(known, row):
            yield f"slower: {row['work']}: {shown(known['ours'])} -> {shown(row['ours'])} {row['unit']}"
    for work in before:
        yield f"no longer measured: {work}"


def main(arguments):
    if len(arguments) == 2 and arguments[0] == "table":
        print("\n".join(table(read(arguments[1]))))
        return 0
    if len(arguments) == 3 and arguments[0] == "compare":
        old, new = read(arguments[1]), read(arguments[2])
        if old["machine"] != new["machine"]:
            print("The two were measured on different machines: only ratios can be compared.")
        lines = list(compare(old, new))
        print("\n".join(lines) if lines else "Nothing got slower by more than a tenth.")
        return 1 if lines else 0
    print(__doc__.strip(), file=sys.stderr)
    return 2


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
