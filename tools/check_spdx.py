#!/usr/bin/env python3
# SPDX-License-Identifier: BSD-3-Clause
"""Checks that every source file of the project names its licence.

A source file is a C or C++ source or header, a Python, CMake or shell
script (by extension, or by a #! line naming sh, bash or python), a linker
version script (.map), the pkg-config template (.pc.in) or the API table
(.api). Its first comment must begin with the line

    SPDX-License-Identifier: BSD-3-Clause

after the comment marker (//, /*, # ), on the first line of the file or,
in a script, on the line after #!.

The files are those git tracks in the source tree; without git (an
unpacked archive) every file below it except build folders.

Usage: check_spdx.py SOURCE_DIR
Exit status 1 when a source file lacks the line; each one is printed.
"""
import os
import re
import subprocess
import sys

LINE = 'SPDX-License-Identifier: BSD-3-Clause'
SOURCE_SUFFIXES = ('.c', '.cc', '.cpp', '.h', '.hpp', '.py', '.cmake', '.cmake.in', '.sh', '.map', '.pc.in',
                   '.api')
SOURCE_NAMES = ('CMakeLists.txt',)
SCRIPT = re.compile(r'^#!.*\b(sh|bash|python3?)\b')
FIRST_LINE = re.compile(r'^(//|/\*|#) ' + re.escape(LINE) + r'( \*/)?$')


def tracked_files(root):
    try:
        out = subprocess.run(['git', '-C', root, 'ls-files', '-z'], check=True, capture_output=True, text=True)
        return [f for f in out.stdout.split('\0') if f]
    except (OSError, subprocess.CalledProcessError):
        files = []
        for folder, dirs, names in os.walk(root):
            dirs[:] = [d for d in dirs if not d.startswith(('build', '.'))]
            files += [os.path.relpath(os.path.join(folder, n), root) for n in names]
        return files


def is_source(path, first_line):
    name = os.path.basename(path)
    return name.endswith(SOURCE_SUFFIXES) or name in SOURCE_NAMES or bool(SCRIPT.match(first_line))


def check(root):
    missing, count = [], 0
    for rel in sorted(tracked_files(root)):
        path = os.path.join(root, rel)
        if not os.path.isfile(path):
            continue
        try:
            with open(path, encoding='utf-8') as f:
                lines = [f.readline().rstrip('\n') for _ in range(2)]
        except UnicodeDecodeError:
            continue
        if not is_source(rel, lines[0]):
            continue
        count += 1
        at = 1 if lines[0].startswith('#!') else 0
        if not FIRST_LINE.match(lines[at]):
            missing.append(rel)
    return count, missing


def main():
    if len(sys.argv) != 2:
        print(__doc__)
        return 2
    count, missing = check(sys.argv[1])
    for rel in missing:
        print('%s: the first comment does not begin with "%s"' % (rel, LINE))
    print('%d source files checked, %d without the licence line' % (count, len(missing)))
    return 1 if missing or count == 0 else 0


if __name__ == '__main__':
    sys.exit(main())
