#!/usr/bin/env python3
"""Shows what the tests notice: makes small mistakes in the calculations, one at a time, and runs the tests.

All mutants are compiled at once, into a copy of the tree; HALVANE_MUTANT chooses one while a test program runs.
A mutant is killed if a test fails, crashes or needs far more time than without it. explained.txt says of the others why
no test notices them.

    tools/mutants/mutants.py build/mutants            # makes the copy, builds it, tries each mutant; goes on after a stop
    tools/mutants/mutants.py build/mutants --report   # lists what is known so far
"""

import argparse
import json
import os
import random
import re
import resource
import shlex
import shutil
import subprocess
import sys
import time
from multiprocessing.pool import ThreadPool
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
# The folders that are changed, and the test programs that are to notice it, the quick ones first.
PROGRAMS = {
    'runtime': ['runtime', 'knowledge', 'model', 'store'],
    'store': ['store', 'knowledge', 'model', 'records'],
    'model': ['model', 'knowledge'],
    'foods': ['knowledge', 'foods'],
    'analysis': ['knowledge', 'analysis'],
    'intake': ['knowledge', 'intake'],
    'recipes': ['knowledge', 'recipes'],
}
SEED = 1


class Tree:
    """The copy of the sources, with all mutants in it."""

    def __init__(self, folder, builder, subjects):
        self.folder = folder
        self.subjects = subjects
        self.programs = sorted({name for subject in subjects for name in PROGRAMS[subject]})
        self.source = folder / 'tree'
        self.build = self.source / 'build' / 'dev'
        self.list = folder / 'mutants.json'
        self.builder = builder

    def make(self):
        if not self.list.exists():
            self.make_sources()
        self.make_programs()

    def make_sources(self):
        self.copy()
        subprocess.run(['cmake', '--preset', 'dev'], cwd=self.source, check=True, stdout=subprocess.DEVNULL)
        found = self.find()
        self.rewrite(found)
        self.drop_what_fails(found)
        self.list.write_text(json.dumps([
            self.described(file, *one) for file, mutants in found.items() for one in mutants]))

    @staticmethod
    def described(file, number, mutant):
        code = (ROOT / file).read_text().splitlines()[mutant.line - 1].strip()
        return {'id': number, 'file': file, 'line': mutant.line, 'code': code,
                'text': mutant.text, 'change': mutant.change}

    def copy(self):
        files = subprocess.run(['git', 'ls-files'], cwd=ROOT, capture_output=True, text=True, check=True).stdout
        for name in files.splitlines():
            target = self.source / name
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(ROOT / name, target)
        shutil.copy2(Path(__file__).with_name('Mutants.h'), self.source / 'src')

    def run(self, command, **how):
        return subprocess.run(self.builder + command, cwd=self.source, **how)

    def find(self):
        from places import Places  # needs libclang, a run does not
        found, number = {}, 0
        for entry in self.entries():
            wanted = [word for word in shlex.split(entry['command']) if word[:2] in ('-D', '-I', '-s')]
            mutants = Places(entry['file'], [*self.with_system(entry['command']), *wanted]).find()
            found[str(Path(entry['file']).relative_to(self.source))] = list(enumerate(mutants, number))
            number += len(mutants)
        return found

    def entries(self):
        """How the sources that are changed are compiled."""
        for entry in json.loads((self.build / 'compile_commands.json').read_text()):
            parts = Path(entry['file']).relative_to(self.source).parts
            if parts[0] == 'src' and len(parts) == 3 and parts[1] in self.subjects:
                yield entry

    @staticmethod
    def with_system(command):
        words = shlex.split(command)
        return [word for i, word in enumerate(words) if word == '-isystem' or words[i - 1] == '-isystem']

    def rewrite(self, found):
        from places import rewritten
        for file, mutants in found.items():
            head = b'#include "Mutants.h"\n#line 1\n'
            (self.source / file).write_bytes(head + rewritten((ROOT / file).read_bytes(), mutants))

    def drop_what_fails(self, found):
        """Takes out the mutants of lines that the compiler refuses, file by file, until it takes the file."""
        for entry in self.entries():
            file = str(Path(entry['file']).relative_to(self.source))
            while wrong := self.refused(entry, file):
                kept = [one for one in found[file] if wrong.isdisjoint(self.lines_of(one[1]))]
                if len(kept) == len(found[file]):
                    sys.exit(f'{file} does not compile, and no mutant is in the lines {sorted(wrong)}')
                found[file] = kept
                self.rewrite({file: kept})

    @staticmethod
    def refused(entry, file):
        """The lines of the file that the compiler names in its errors."""
        words = [word for word in shlex.split(entry['command']) if not word.endswith('ccache')]
        command = [*words[:words.index('-o')], *words[words.index('-o') + 2:], '-fsyntax-only']
        tried = subprocess.run(command, cwd=entry['directory'], capture_output=True, text=True)
        lines = set(map(int, re.findall(re.escape(file) + r':(\d+):', tried.stderr)))
        if tried.returncode != 0 and not lines:
            sys.exit(tried.stderr)
        return lines if tried.returncode != 0 else set()

    @staticmethod
    def lines_of(mutant):
        return range(mutant.line, mutant.last_line + 1)

    def make_programs(self):
        targets = [f'test_{name}' for name in self.programs]
        self.run(['cmake', '--build', str(self.build), '--target', *targets], check=True)

    def mutants(self):
        return json.loads(self.list.read_text())


class Program:
    """A test program, how long it takes and which mutants it comes by."""

    def __init__(self, tree, name):
        self.path = tree.build / 'tests' / f'test_{name}'
        self.reached_file = tree.folder / f'{name}.reached'
        self.time_file = tree.folder / f'{name}.seconds'

    def measure(self):
        if not self.time_file.exists():
            self.reached_file.unlink(missing_ok=True)
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            if not self.passes(None, '*', 3600):
                sys.exit(f'{self.path.name} fails without a mutant')
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            self.time_file.write_text(str(after.ru_utime - before.ru_utime + after.ru_stime - before.ru_stime))
        self.seconds = float(self.time_file.read_text())
        self.reached = set(map(int, self.reached_file.read_text().split()))

    def kills(self, mutant, which):
        return not self.passes(mutant, which, int(5 * self.seconds) + 5)

    def passes(self, mutant, which, most_seconds):
        """The limit is processor time, so that a busy machine does not matter; a test that waits for ever is ended."""
        environment = os.environ | {'QT_QPA_PLATFORM': 'offscreen', 'LC_ALL': 'C.UTF-8'}
        if mutant is None:
            environment['HALVANE_MUTANTS_REACHED'] = str(self.reached_file)
        else:
            environment['HALVANE_MUTANT'] = str(mutant)
        command = [self.path, '--gtest_brief=1', '--gtest_fail_fast', '--gtest_filter=' + which]
        limit = lambda: resource.setrlimit(resource.RLIMIT_CPU, (most_seconds, most_seconds))
        try:
            return subprocess.run(command, env=environment, preexec_fn=limit, stdout=subprocess.DEVNULL,
                                  stderr=subprocess.DEVNULL, timeout=20 * most_seconds + 60).returncode == 0
        except subprocess.TimeoutExpired:
            return False


def killer(mutant, programs):
    """The test program that notices the mutant; None if no test does. The tests of its own file come first."""
    stem = Path(mutant['file']).stem
    able = [programs[name] for name in PROGRAMS[mutant['file'].split('/')[1]]]
    able = [program for program in able if mutant['id'] in program.reached]
    for which in (f'*{stem}*', '*'):
        for program in able:
            if program.kills(mutant['id'], which):
                return program.path.name
    return None


def try_all(tree, results, jobs):
    programs = {name: Program(tree, name) for name in tree.programs}
    for program in programs.values():
        program.measure()
    known = {result['id'] for result in read(results)}
    mutants = tree.mutants()
    random.Random(SEED).shuffle(mutants)  # so that a run that is stopped has seen a fair share
    left = [mutant for mutant in mutants if mutant['id'] not in known]
    with ThreadPool(jobs) as pool, results.open('a') as file:
        for mutant in pool.imap_unordered(lambda one: tried(one, programs), left):
            print(json.dumps(mutant), file=file, flush=True)


def tried(mutant, programs):
    started = time.monotonic()
    return mutant | {'killer': killer(mutant, programs),
                     'reached': any(mutant['id'] in program.reached for program in programs.values()),
                     'seconds': round(time.monotonic() - started, 1)}


def read(results):
    return [json.loads(line) for line in results.read_text().splitlines()] if results.exists() else []


def explained():
    """The reason of each mutant that explained.txt lists, by its file and line of code: numbers change."""
    reasons, reason, file = {}, '', ''
    for line in Path(__file__).with_name('explained.txt').read_text().splitlines():
        if line.startswith('# '):
            reason = line[2:]
        elif line.startswith('src/'):
            file = line
        elif line.strip():
            reasons[file, line.strip()] = reason
    return reasons


def report(tree, results):
    tried, reasons = read(results), explained()
    for one in tried:
        place = one['file'], ' | '.join((one['code'], one['text'], one['change']))
        one['reason'] = None if one['killer'] else reasons.get(place)
    for one in sorted(tried, key=lambda one: (one['file'], one['line'])):
        if not one['killer'] and not one['reason']:
            how = '' if one['reached'] else ' (no test comes by)'
            print(f"{one['file']}:{one['line']}: {one['text']}: {one['change']}{how}")
    for folder in tree.subjects:
        print(f'{folder}: ' + counted([one for one in tried if one['file'].startswith(f'src/{folder}/')]))
    print(f'{counted(tried)}, {len(tree.mutants())} mutants in all')


def counted(tried):
    killed, known = (sum(bool(one[what]) for one in tried) for what in ('killer', 'reason'))
    return f'{killed} of {len(tried)} killed, {known} explained'


def main():
    options = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    options.add_argument('folder', type=Path, help='holds the copy and the results')
    options.add_argument('--only', nargs='+', choices=PROGRAMS, default=list(PROGRAMS), help='folders of src/')
    options.add_argument('--report', action='store_true', help='list what is known so far')
    options.add_argument('--make', action='store_true', help='only make and build the copy')
    options.add_argument('--builder', default='', help='a command that is put before each build')
    options.add_argument('--jobs', type=int, default=1, help='how many mutants are tried at the same time')
    chosen = options.parse_args()
    chosen.folder.mkdir(parents=True, exist_ok=True)
    tree = Tree(chosen.folder.resolve(), shlex.split(chosen.builder), chosen.only)
    results = tree.folder / 'results.jsonl'
    if not chosen.report:
        tree.make()
        if not chosen.make:
            try_all(tree, results, chosen.jobs)
    report(tree, results)


if __name__ == '__main__':
    main()
