#!/usr/bin/env python3
"""Shows what the tests notice: makes small mistakes in the calculations, one at a time, and runs the tests.

All mutants are compiled at once, into a copy of the tree; HALVANE_MUTANT chooses one while a test program runs.
A mutant is killed if a test fails, crashes or needs far more time than without it. explained.txt names mutants that no
test can notice and says why; they are not tried.

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
QUICK = 0.5  # seconds of processor time


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
        self.run(['ninja', '-C', str(self.build), *self.headers()], check=True)
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

    def headers(self):
        """The precompiled headers of the sources: with them the compiler refuses a mutant far sooner."""
        return {f'{Path(word).relative_to(self.build)}.gch' for entry in self.entries()
                for word in shlex.split(entry['command']) if word.endswith('/cmake_pch.hxx')}

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
    """A test program: of each of its suites, how long it takes and which mutants it comes by."""

    def __init__(self, tree, name):
        self.path = tree.build / 'tests' / f'test_{name}'
        self.reached_file = tree.folder / f'{name}.reached'
        self.suites_file = tree.folder / f'{name}.suites.json'

    def measure(self):
        if not self.suites_file.exists():
            self.suites_file.write_text(json.dumps({suite: self.measured(suite) for suite in self.names()}))
        self.suites = json.loads(self.suites_file.read_text())
        self.reached = {suite: set(one['reached']) for suite, one in self.suites.items()}

    def names(self):
        listed = self.run(None, 3600, '--gtest_list_tests', stdout=subprocess.PIPE).stdout
        return [line.split()[0].rstrip('.') for line in listed.splitlines() if line[:1].strip() and '.' in line]

    def measured(self, suite):
        self.reached_file.unlink(missing_ok=True)
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        if not self.passes(None, [suite], 3600):
            sys.exit(f'{self.path.name} fails without a mutant: {suite}')
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        reached = self.reached_file.read_text().split() if self.reached_file.exists() else []
        return {'seconds': after.ru_utime - before.ru_utime + after.ru_stime - before.ru_stime,
                'reached': sorted(set(map(int, reached)))}

    def that_reach(self, mutant):
        return [suite for suite, reached in self.reached.items() if mutant in reached]

    def is_quick(self, suite):
        return self.suites[suite]['seconds'] < QUICK

    def kills(self, mutant, suites):
        return not self.passes(mutant, suites, 5 + int(5 * sum(self.suites[suite]['seconds'] for suite in suites)))

    def passes(self, mutant, suites, most_seconds):
        which = '--gtest_filter=' + ':'.join(f'{suite}.*' for suite in suites)
        try:
            return self.run(mutant, most_seconds, '--gtest_brief=1', '--gtest_fail_fast', which).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def run(self, mutant, most_seconds, *options, stdout=subprocess.DEVNULL):
        """The limit is processor time, so that a busy machine does not matter; a test that waits for ever is ended."""
        environment = os.environ | {'QT_QPA_PLATFORM': 'offscreen', 'LC_ALL': 'C.UTF-8'}
        if mutant is None:
            environment['HALVANE_MUTANTS_REACHED'] = str(self.reached_file)
        else:
            environment['HALVANE_MUTANT'] = str(mutant)
        limit = lambda: resource.setrlimit(resource.RLIMIT_CPU, (most_seconds, most_seconds))
        return subprocess.run([self.path, *options], env=environment, preexec_fn=limit, stdout=stdout,
                              stderr=subprocess.DEVNULL, text=True, timeout=20 * most_seconds + 60)


def batches(mutant, programs):
    """The suites that come by the mutant: those of its own file, then the quick ones, then the others."""
    stem = Path(mutant['file']).stem
    able = [(programs[name], suite) for name in PROGRAMS[mutant['file'].split('/')[1]]
            for suite in programs[name].that_reach(mutant['id'])]
    place = [0 if stem in suite else 1 if program.is_quick(suite) else 2 for program, suite in able]
    for which in range(3):
        batch = {}
        for (program, suite), at in zip(able, place):
            if at == which:
                batch.setdefault(program, []).append(suite)
        yield from batch.items()


def killer(mutant, programs):
    """The test program that notices the mutant; None if no test does."""
    return next((program.path.name for program, suites in batches(mutant, programs)
                 if program.kills(mutant['id'], suites)), None)


def try_all(tree, results, jobs):
    programs = {name: Program(tree, name) for name in tree.programs}
    for program in programs.values():
        program.measure()
    known, reasons = {result['id'] for result in read(results)}, explained()
    mutants = tree.mutants()
    random.Random(SEED).shuffle(mutants)  # so that a run that is stopped has seen a fair share
    left = [mutant for mutant in mutants if mutant['id'] not in known and key(mutant) not in reasons]
    with ThreadPool(jobs) as pool, results.open('a') as file:
        for mutant in pool.imap_unordered(lambda one: tried(one, programs), left):
            print(json.dumps(mutant), file=file, flush=True)


def tried(mutant, programs):
    started = time.monotonic()
    return mutant | {'killer': killer(mutant, programs),
                     'reached': any(program.that_reach(mutant['id']) for program in programs.values()),
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


def key(mutant):
    return mutant['file'], ' | '.join((mutant['code'], mutant['text'], mutant['change']))


def report(tree, results):
    tried, reasons = {result['id']: result for result in read(results)}, explained()
    mutants = [tried.get(mutant['id'], mutant) | {'reason': reasons.get(key(mutant))} for mutant in tree.mutants()]
    for one in sorted(mutants, key=lambda one: (one['file'], one['line'])):
        if 'killer' in one and not one['killer'] and not one['reason']:
            how = '' if one['reached'] else ' (no test comes by)'
            print(f"{one['file']}:{one['line']}: {one['text']}: {one['change']}{how}")
    for folder in tree.subjects:
        print(f'{folder}: ' + counted([one for one in mutants if one['file'].startswith(f'src/{folder}/')]))
    print(f'all: {counted(mutants)}')


def counted(mutants):
    killed, known = (sum(bool(one.get(what)) for one in mutants) for what in ('killer', 'reason'))
    tried = sum('killer' in one for one in mutants)
    return f'{len(mutants)} mutants, {tried} tried, {killed} killed, {known} explained'


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
