#!/usr/bin/env python3
# SPDX-License-Identifier: BSD-3-Clause
"""Checks of the built libraries that no unit test can make from inside.

  exports   QSPSY8 QSPCORE TABLE   the dynamic symbols are exactly the table's
                                   implemented rows (and the support library's
                                   six functions)
  deps      QSPSY8 QSPCORE         sonames, needed libraries, run paths and imported
                                   symbols
  no-avx    LIB...                 no VEX/EVEX instruction, no ymm/zmm/mask register
  jumps     QSPSY8                 every entry point is one jump to its validating
                                   function (after widening 16-bit by-value arguments)
Exit status 0 when the check holds; otherwise every violation is printed.
"""
import os
import re
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import qspapi  # noqa: E402

CORE_EXPORTS = {'qspMalloc', 'qspMalloc_L', 'qspFree', 'ownGetFeature',
                'qspSetFlushToZero', 'qspSetDenormAreZeros'}
# What each library may import: libqspsy8 only the stack-protector routine
# from libc and the support library's functions; the support library the
# C library's allocator as well.
ALLOWED_IMPORTS = {
    'qspsy8': {'__stack_chk_fail'} | CORE_EXPORTS,
    'qspcore': {'__stack_chk_fail', 'posix_memalign', 'free'},
}
ALLOWED_NEEDED = {'qspsy8': {'libqspcore.so.12', 'libc.so.6'}, 'qspcore': {'libc.so.6'}}
SONAMES = {'qspsy8': 'libqspsy8.so.12', 'qspcore': 'libqspcore.so.12'}
# libqspsy8 finds the support library in its own folder; the support library
# needs nothing but libc.
RUN_PATHS = {'qspsy8': ['$ORIGIN'], 'qspcore': []}


def run(*cmd):
    return subprocess.run(cmd, check=True, capture_output=True, text=True).stdout


def dynamic_symbols(lib, undefined):
    flag = '--undefined-only' if undefined else '--defined-only'
    names = set()
    for line in run('nm', '-D', flag, lib).splitlines():
        name = line.split()[-1].split('@')[0]
        names.add(name)
    return names


def check_exports(qspsy8, qspcore, table):
    rows = qspapi.exports(qspapi.load(table))
    done = {e.name for e in rows if e.implemented}
    planned = {e.name for e in rows if not e.implemented}
    got = dynamic_symbols(qspsy8, False)
    errors = ['exported but not in the table: %s' % n for n in sorted(got - done - planned)]
    errors += ['exported but marked not implemented: %s' % n for n in sorted(got & planned)]
    errors += ['implemented in the table but not exported: %s' % n for n in sorted(done - got)]
    core = dynamic_symbols(qspcore, False)
    errors += ['support library exports %s' % n for n in sorted(core - CORE_EXPORTS)]
    errors += ['support library lacks %s' % n for n in sorted(CORE_EXPORTS - core)]
    print('%d exports checked against %d implemented rows' % (len(got), len(done)))
    return errors


def check_deps(qspsy8, qspcore):
    errors = []
    for kind, lib in (('qspsy8', qspsy8), ('qspcore', qspcore)):
        dyn = run('readelf', '-d', lib)
        needed = set(re.findall(r'\(NEEDED\)\s+Shared library: \[(.*?)\]', dyn))
        soname = re.findall(r'\(SONAME\)\s+Library soname: \[(.*?)\]', dyn)
        if soname != [SONAMES[kind]]:
            errors.append('%s: soname %s, expected %s' % (lib, soname, SONAMES[kind]))
        errors += ['%s needs %s' % (lib, n) for n in sorted(needed - ALLOWED_NEEDED[kind])]
        paths = re.findall(r'\((?:RPATH|RUNPATH)\)\s+Library (?:rpath|runpath): \[(.*?)\]', dyn)
        if paths != RUN_PATHS[kind]:
            errors.append('%s: run path %s, expected %s' % (lib, paths, RUN_PATHS[kind]))
        imports = dynamic_symbols(lib, True)
        errors += ['%s imports %s' % (lib, n) for n in sorted(imports - ALLOWED_IMPORTS[kind])]
        print('%s: needs %s; imports %s' % (os.path.basename(lib), sorted(needed), sorted(imports)))
    return errors


AVX_REGISTER = re.compile(r'%(ymm|zmm|k[0-7]\b)')


def check_no_avx(libs):
    errors = []
    for lib in libs:
        count, before = 0, len(errors)
        for line in run('objdump', '-d', '--no-show-raw-insn', lib).splitlines():
            parts = line.split('\t')
            if len(parts) < 2 or not re.match(r'^\s*[0-9a-f]+:$', parts[0]):
                continue
            insn = parts[1].strip()
            count += 1
            mnemonic = insn.split()[0] if insn else ''
            # objdump names every VEX and EVEX encoded instruction with a 'v'.
            vex = mnemonic.startswith('v') and mnemonic not in ('verr', 'verw')
            if vex or AVX_REGISTER.search(insn):
                errors.append('%s: %s' % (os.path.basename(lib), line.strip()))
        print('%s: %d instructions, %d VEX/EVEX' % (os.path.basename(lib), count, len(errors) - before))
    return errors


def check_jumps(qspsy8):
    errors, count = [], 0
    text = run('objdump', '-d', '--no-show-raw-insn', qspsy8)
    functions = re.findall(r'^[0-9a-f]+ <(qsps\w+)>:\n((?:\s+[0-9a-f]+:\t.*\n)+)', text, re.M)
    for name, block in functions:
        insns = [l.split('\t', 1)[1].strip() for l in block.splitlines() if '\t' in l]
        insns = [i for i in insns if not i.startswith(('nop', 'xchg   %ax,%ax', 'cs nop', 'data16'))]
        # Widening: sign or zero extension in registers, and for a 16-bit
        # argument passed on the stack (the seventh and later) its widened
        # value stored back into the argument slot.
        widen = [i for i in insns[:-1]
                 if re.match(r'^mov[sz][bw]l\s', i) or re.match(r'^mov\s+%e\w+,0x[0-9a-f]+\(%rsp\)$', i)]
        last = insns[-1] if insns else ''
        count += 1
        if len(widen) != len(insns) - 1 or not re.match(r'^jmp\s+[0-9a-f]+ <_ZN2y8\d+%s' % name, last):
            errors.append('%s is not a single jump: %s' % (name, '; '.join(insns)))
    print('%d entry points checked' % count)
    return errors


def main(argv):
    if len(argv) < 2:
        print(__doc__)
        return 2
    what, args = argv[1], argv[2:]
    errors = {'exports': lambda: check_exports(*args), 'deps': lambda: check_deps(*args),
              'no-avx': lambda: check_no_avx(args), 'jumps': lambda: check_jumps(*args)}[what]()
    for e in errors:
        print('FAIL', e)
    return 1 if errors else 0


if __name__ == '__main__':
    sys.exit(main(sys.argv))
