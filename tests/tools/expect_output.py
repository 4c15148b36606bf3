#!/usr/bin/env python3
# SPDX-License-Identifier: BSD-3-Clause
"""Runs a program and checks its standard output.

Usage: expect_output.py PROGRAM [--expect REGEX]...
The program must exit with status 0 and every REGEX must match somewhere in
its output (re.MULTILINE, so ^ and $ anchor at lines). The output is printed
either way, so a failure shows what the program said.
"""
import re
import subprocess
import sys


def main():
    args = sys.argv[1:]
    if not args or args[0].startswith('--'):
        print(__doc__)
        return 2
    program, patterns = args[0], []
    rest = args[1:]
    while rest:
        if rest[0] != '--expect' or len(rest) < 2:
            print(__doc__)
            return 2
        patterns.append(rest[1])
        rest = rest[2:]
    run = subprocess.run([program], capture_output=True, text=True)
    sys.stdout.write(run.stdout)
    sys.stdout.write(run.stderr)
    ok = run.returncode == 0
    if not ok:
        print('error: exit status %d' % run.returncode)
    for p in patterns:
        if not re.search(p, run.stdout, re.M):
            print('error: no line matches %r' % p)
            ok = False
    return 0 if ok else 1


if __name__ == '__main__':
    sys.exit(main())
