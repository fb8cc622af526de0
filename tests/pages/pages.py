"""Reads the commands that pages tell people to type."""
import html
import re
from pathlib import Path
from typing import NamedTuple

PROGRAMS = ("halvane-data", "halvane-exchange", "exchange_bench")


class Command(NamedTuple):
    page: str
    text: str


def without_comment(line: str) -> str:
    return re.sub(r"\s+#.*$", "", line).strip()


def blocks(text: str) -> list[str]:
    """The lines of all code blocks without a language: those hold commands."""
    lines, inside = [], None
    for line in text.splitlines():
        fence = re.match(r"^(`{3,})(\w*)$", line)
        if fence and inside is None:
            inside = fence
        elif fence and fence[1] == inside[1]:
            inside = None
        elif inside is not None and not inside[2]:
            lines.append(without_comment(line))
    return [line for line in lines if line]


def spoken(text: str) -> list[str]:
    """The commands that stand within a sentence or a table."""
    outside = re.sub(r"^(`{3,}).*?^\1$", "", text, flags=re.M | re.S)
    found = [re.sub(r"\s+", " ", code) for code in re.findall(r"`([^`]+)`", outside)]
    begin = re.compile(r"(?:\S+=\S+ )*(?:sudo |\./\w+\.sh|(?:cmake|ctest|createdb|pg_restore|pg_dump|sqlite3|apt|"
                       r"apt-get|dpkg|systemctl|build/\S+|tools/\S+|tests/\S+\.sh|" + "|".join(PROGRAMS) + r") )")
    return [code for code in found if begin.match(code + " ") and (" " in code or code.startswith("./"))]


def of_markdown(page: str, text: str) -> list[Command]:
    return [Command(page, line) for line in blocks(text) + spoken(text)]


def of_help(page: str, text: str) -> list[Command]:
    """In a table whose second column says what to type behind halvane-data, and within a sentence."""
    found = []
    for table in re.findall(r"<table>(.*?)</table>", text, re.S):
        if "Type <code>halvane-data</code>" in table:
            cells = re.findall(r"<td>[^\n]*</td><td>([^\n]*)</td></tr>", table)
            found += ["halvane-data " + code for cell in cells for code in re.findall(r"<code>([^-][^<]*)</code>", cell)]
    found += [code for code in re.findall(r"<code>([^<]+)</code>", text)
              if " " in code and code.split()[0] in PROGRAMS + ("sudo",)]
    return [Command(page, html.unescape(code)) for code in found]


def all_commands(source: Path) -> list[Command]:
    found = []
    for page in [source / "README.md", source / "CONTRIBUTING.md", *sorted(source.glob("docs/*.md"))]:
        found += of_markdown(str(page.relative_to(source)), page.read_text())
    for page in sorted(source.glob("data/help/*.html")):
        found += of_help(str(page.relative_to(source)), page.read_text())
    return list(dict.fromkeys(found))
