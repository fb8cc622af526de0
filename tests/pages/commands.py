"""Runs every command that a page tells people to type, or says why it cannot be run here.

Each command finds the first rule whose pattern it matches. Each page has a person of its own, who has a diary and uses a
program that is installed for all people of a machine. The commands of a page follow one another; those of the help are
a choice, so each of them finds everything as it was.
"""
import argparse
import json
import os
import re
import shlex
import shutil
import subprocess
import sys
import tempfile
import zipfile
from datetime import date, timedelta
from pathlib import Path

from pages import Command, all_commands

# What a test must not do, and why.
NOT_RUN = [
    (r"sudo (apt|systemctl|cp|systemd-sysusers|cmake --install)\b", "changes the system; clean_root.sh does it in one of its own"),
    (r"sudo -u halvane-exchange$", "goes before other commands"),
    (r"apt-get download|dpkg -x$", "needs the network"),
    (r"(createdb|pg_dump|pg_restore)\b", "needs a PostgreSQL; the tests of the exchange run it"),
    (r"sqlite3 exchange\.db", "the tests of the exchange run it"),
    (r"halvane-data (restore|recipes export|backup)$", "names a command without what follows it"),
    (r"halvane-data why 16096$", "stands in a sentence; the page shows the whole command too"),
    (r"tools/make_databases --build$", "names a step of the build"),
]


# What ends with 1 as it should: something is left for the person to decide or to know.
ENDS_WITH_1 = [
    (r"halvane-data foods import FOLDER$", "one food of the small release has no amounts"),
    (r"halvane-data recipes import soup\.json( --dry-run)?$", "shows what to choose; nobody is there to be asked"),
]


class Ground:
    """A place to run commands in."""

    def __init__(self, args, folder: Path):
        self.source, self.build, self.cmake = args.source, args.build, args.cmake
        self.folder = folder
        self.people = 0

    def install(self) -> None:
        """The built programs, laid out as the package lays them out."""
        share = self.folder / "share/halvane"
        share.mkdir(parents=True)
        (self.folder / "bin").mkdir()
        shutil.copy(self.build / "src/halvane-data", self.folder / "bin")
        for name in ("foods.tsv", "reference-intakes.tsv", "tips.txt", "food-sources.json"):
            (share / name).symlink_to(self.source / "data" / name)
        for name in ("delivery.id", "fonts"):
            (share / name).symlink_to(self.build / "delivered" / name)
        (self.folder / "bin/halvane-exchange").symlink_to(self.build / "exchange/halvane-exchange")

    def person(self) -> "Person":
        self.people += 1
        return Person(self, self.folder / f"person{self.people}")


class Person:
    """Somebody who follows a page from its first command to its last."""

    def __init__(self, ground: Ground, home: Path):
        self.ground, self.home = ground, home
        home.mkdir()
        self.environment = dict(os.environ, HOME=str(home), XDG_DATA_HOME=str(home / "data"),
                                XDG_CONFIG_HOME=str(home / "config"), PATH=f"{ground.folder}/bin:{os.environ['PATH']}",
                                HALVANE_EXCHANGE_DATABASE=str(home / "exchange.db"))
        self.make_files()
        for text in ("import start.json", "weigh 150", "backup", "export my-records.json"):
            self.run("halvane-data " + text)
        self.kept = home.with_suffix(".kept")
        shutil.copytree(home, self.kept, symlinks=True)

    def start_anew(self) -> None:
        shutil.rmtree(self.home)
        shutil.copytree(self.kept, self.home, symlinks=True)

    def run(self, text: str) -> None:
        done = subprocess.run(["bash", "-c", text], cwd=self.home, env=self.environment, text=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if done.returncode != any(re.match(pattern, text) for pattern, _ in ENDS_WITH_1):
            raise AssertionError(f"ended with {done.returncode}:\n{done.stdout}")

    def make_files(self) -> None:
        """The files that the pages speak of."""
        (self.home / "start.json").write_text(records())
        with zipfile.ZipFile(self.home / "export.zip", "w") as archive:
            archive.writestr("servings.csv", cronometer_servings())
            archive.writestr("biometrics.csv", "Day,Time,Group,Metric,Unit,Amount\n")
        document = (self.ground.source / "docs/import-map.md").read_text()
        table, = re.findall(r"```csv\n(.*?)```", document, re.S)
        the_map, = re.findall(r"```toml\n(.*?)```", document, re.S)
        for name in ("diary.csv", "FILE.csv"):
            (self.home / name).write_text(table)
        for name in ("map.toml", "MAP.toml"):
            (self.home / name).write_text(the_map)
        (self.home / "soup.json").write_text(json.dumps({
            "@context": "https://schema.org", "@type": "Recipe", "name": "Butter soup", "recipeYield": "2",
            "recipeIngredient": ["1 tbsp Butter, salted"], "recipeInstructions": "Stir."}))
        shutil.copytree(self.ground.source / "tests/tools/release", self.home / "FOLDER")


def records() -> str:
    """A person with a diary and a recipe, in the documented format."""
    log = {"profile": 1, "meal": "Breakfast", "food": "Butter, salted", "serving": "1 pat", "foodKey": 16096,
           "quantity": 1, "amounts": [36]}
    return json.dumps({"format": "halvane-records", "version": 1, "nutrients": [{"name": "Calories", "unit": "kcal"}],
                       "profiles": [{"key": 1, "name": "Anna", "gender": 0, "age": 40, "height": 66, "targets": [2000]}],
                       "log": [dict(log, date=day) for day in ["2026-03-02", "2026-03-03", *near_today()]],
                       "weights": [{"profile": 1, "date": "2026-03-02", "weight": 150.5}]})


def near_today() -> list[str]:
    """Also where midnight passes meanwhile, there is a yesterday."""
    return [str(date.today() + timedelta(days=days)) for days in (-1, 0, 1)]


def cronometer_servings() -> str:
    return ("Day,Group,Food Name,Amount,Energy (kcal)\n"
            "2026-03-02,Breakfast,Oats,40.00 g,150\n")


def run_for_person(ground, person, text):
    person.run(re.sub(r"\bCOMMAND\b", "log", text))


def run_for_operator(ground, person, text):
    """On a database that a server has made."""
    server = subprocess.Popen(["halvane-exchange", "--port", "0"], env=person.environment, cwd=person.home, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    with server:
        for line in server.stdout:
            if '"event":"started"' in line:
                server.terminate()
    person.run(text)


def script(ground, _, text):
    path = ground.source / text
    assert os.access(path, os.X_OK), f"{path} cannot be run"
    subprocess.run(["bash", "-n", path], check=True)


def presets(ground, kind):
    listed = json.loads((ground.source / "CMakePresets.json").read_text())[kind]
    return {preset["name"] for preset in listed if not preset.get("hidden")}


def cmake_part(ground, part):
    words = shlex.split(part)
    kind = {"cmake": "buildPresets" if "--build" in words else "configurePresets", "ctest": "testPresets"}[words[0]]
    if "--preset" in words:
        assert words[words.index("--preset") + 1] in presets(ground, kind), f"no such preset: {part}"
    for folder in re.findall(r"build/(\w+)", part):
        assert folder == "exchange" or folder in presets(ground, "configurePresets"), f"no such build folder: {part}"
    if "--target" in words:
        targets = subprocess.run([ground.cmake, "--build", ground.build, "--target", "help"], check=True, text=True,
                                 stdout=subprocess.PIPE).stdout
        assert re.search(rf"^{re.escape(words[-1])}: ", targets, re.M), f"no such target: {part}"
    if "-R" in words:
        names = subprocess.run(["ctest", "--test-dir", ground.build, "-N", "-R", words[words.index("-R") + 1]],
                               check=True, text=True, stdout=subprocess.PIPE).stdout
        assert not names.endswith("Total Tests: 0\n"), f"no such test: {part}"
    if "--config" in words:
        assert (ground.build / Path(words[words.index("--config") + 1]).name).is_file(), part


def builds(ground, _, text):
    """A build is not made again, but its presets, targets and folders are there."""
    for part in text.split("&&"):
        if not part.strip().startswith("sudo"):
            cmake_part(ground, part.strip())


def packs(ground, _, text):
    words = shlex.split(text)
    assert (ground.build / Path(words[words.index("--config") + 1]).name).is_file()


def makes_folder(ground, person, text):
    """The same for the folder of this build."""
    person.run(text.replace("build/release", str(ground.build)).replace("~/halvane", "halvane"))
    assert (person.home / "halvane/halvane").is_file()


def test_program(ground, _, text):
    """Its tests that the command chooses are there."""
    program, chosen = re.search(r"(build/\w+/\S+) --gtest_filter='([^']+)'", text).groups()
    path = re.sub(r"^build/\w+", str(ground.build), program)
    if Path(path).exists():
        names = subprocess.run([path, "--gtest_list_tests", f"--gtest_filter={chosen}"], check=True, text=True,
                               stdout=subprocess.PIPE).stdout
        assert re.search(r"^  \S", names, re.M), f"chooses no test: {text}"
    else:
        built(ground, None, text)


def built(ground, _, text):
    """A program that runs long, or that only another preset makes, is a target of the build."""
    program = re.search(r"build/\w+/(\S+)|^(\w+_bench)", text)
    name = Path(program[1] or program[2]).name
    made = ground.source.glob("**/CMakeLists.txt")
    assert any(re.sub("^(fuzz|test)_", "", name) in listed.read_text() for listed in made if "build" not in listed.parts), name


def catalogue(ground, person, text):
    """With the small release of the tests, into a folder of the test."""
    words = shlex.split(text)[3:]
    release = str(ground.source / "tests/tools/release")
    person.run(shlex.join([str(ground.build / "tools/make_catalogue"), release, "a release",
                           *(Path(word).name for word in words)]))


def lists_options(ground, _, text):
    """Each option of the tool's call is in its help. Those who only run the tests need no such tool."""
    words = shlex.split(text)
    path = ground.source / words[0]
    program = [str(path)] if path.exists() else [words[0]]
    if not path.exists() and not shutil.which(words[0]):
        return f"not run: {words[0]} is not installed here"
    said = subprocess.run([*program, "--help"], check=True, text=True, stdout=subprocess.PIPE).stdout
    for option in re.findall(r" (--[a-z-]+)", text):
        assert option in said, f"{words[0]} has no {option}"


def is_there(ground, _, text):
    assert os.access(ground.source / text.split()[0], os.X_OK)


RULES = [
    (r"halvane-data ", run_for_person),
    (r"halvane-exchange ", run_for_operator),
    (r"\./\w+\.sh$", script),
    (r"cmake --install build/release", makes_folder),
    (r"cpack ", packs),
    (r"(cmake|ctest) ", builds),
    (r"build/dev/tools/make_catalogue ", catalogue),
    (r".*--gtest_filter=", test_program),
    (r"(\w+=\S+ )*build/\w+/|exchange_bench", built),
    (r"gcovr |tools/", lists_options),
    (r"tests/\S+\.sh ", is_there),
]


def run(ground: Ground, person: Person, command: Command) -> str:
    for pattern, reason in NOT_RUN:
        if re.match(pattern, command.text):
            return f"not run: {reason}"
    for pattern, rule in RULES:
        if re.match(pattern, command.text):
            try:
                return rule(ground, person, command.text) or "passed"
            except (AssertionError, OSError, subprocess.CalledProcessError) as failure:
                return f"FAILED: {failure}"
    return "FAILED: no rule says how this is run"


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--source", type=Path, required=True)
    parser.add_argument("--build", type=Path, required=True)
    parser.add_argument("--cmake", required=True)
    args = parser.parse_args()
    failed = 0
    with tempfile.TemporaryDirectory() as folder:
        ground = Ground(args, Path(folder))
        ground.install()
        people = {}
        for command in all_commands(args.source):
            if command.page not in people:
                people[command.page] = ground.person()
            elif command.page.startswith("data/help/"):
                people[command.page].start_anew()
            outcome = run(ground, people[command.page], command)
            failed += outcome.startswith("FAILED")
            print(f"{command.page}: {command.text}\n    {outcome}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
