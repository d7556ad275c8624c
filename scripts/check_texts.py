#!/usr/bin/env python3
"""Holds the texts of the user interface against each other: every id of res/text_ids.h has exactly one text in each
language, with the same placeholders as in English; no two ids share a number; the dialog templates name texts that
are there."""
import collections
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
LANGUAGES = 'english german spanish french italian japanese swedish'.split()
SHARED = 'untranslated'
PLACEHOLDER = re.compile(r'%[0-9.+\-# !l]*[A-Za-z%]')

faults = []


def ids():
    """The number of each name. Text and name are looked at together, as the resource compiler does."""
    pairs = re.findall(r'^#define (QZ_TEXT_\w+) (\d+)', (ROOT / 'res/text_ids.h').read_text(encoding='utf-8'), re.M)
    names = collections.defaultdict(list)
    for name, number in pairs:
        names[int(number)].append(name)
    faults.extend(f'res/text_ids.h: {" and ".join(each)} share the number {number}'
                  for number, each in names.items() if len(each) > 1)
    return {name: int(number) for name, number in pairs}


def texts(language, known):
    """The texts of one file by name."""
    path = f'res/texts/{language}.rc'
    found = {}
    for name, text in re.findall(r'^ +(\w+),? "((?:[^"]|"")*)"', (ROOT / path).read_text(encoding='utf-8'), re.M):
        if name not in known:
            faults.append(f'{path}: {name} is not in res/text_ids.h')
        if name in found:
            faults.append(f'{path}: {name} is there twice')
        found[name] = text
    return found


def check_languages(known):
    shared = texts(SHARED, known)
    english = texts('english', known)
    for language in LANGUAGES:
        found = texts(language, known)
        for name in known:
            if (name in found) == (name in shared):
                faults.append(f'res/texts/{language}.rc: {name} is {"shared" if name in shared else "missing"}')
            elif name in found and sorted(PLACEHOLDER.findall(found[name])) != sorted(PLACEHOLDER.findall(english.get(name, ''))):
                faults.append(f'res/texts/{language}.rc: {name} has other placeholders than in English')


def check_templates(known):
    numbers = set(known.values())
    for path in sorted((ROOT / 'res/dialogs').glob('*.rc')):
        script = re.sub(r'//.*', '', path.read_text(encoding='utf-8'))
        for number in re.findall(r'"@(\d+)"', script):
            if int(number) not in numbers:
                faults.append(f'res/dialogs/{path.name}: there is no text {number}')


known_ids = ids()
check_languages(known_ids)
check_templates(known_ids)
print('\n'.join(faults), end='\n' if faults else '')
sys.exit(bool(faults))
