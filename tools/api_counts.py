#!/usr/bin/env python3
# SPDX-License-Identifier: BSD-3-Clause
"""Counts the exports of the API table by suffix and by type code.

How a name is counted. The name is cut at its underscores after the prefix
"qsps"; the first piece is the operation stem (with any precision written
into it, as the 64f of IIR64f or the 32f of FIRSRInit32f, which is part of
the stem and not a type code). Of the remaining pieces:

  - a piece made only of type codes (digits followed by u, s or f, with an
    optional c for complex) is the name's type piece, and it is counted as
    one code, as written: qspsAdd_32f counts for 32f, qspsConvert_16s32f for
    16s32f (not for 16s nor for 32f), qspsNorm_L2_32fc64f for 32fc64f. So
    the figure of 32f is the number of names that work on 32f vectors alone;
  - a piece equal to I, L, Sfs or ISfs is a suffix and counts for that
    suffix: qspsFlip_32f_I_L carries I and L, qspsMulC_32s_ISfs_L carries
    ISfs and L. ISfs is its own suffix (it is not also counted as I or as
    Sfs), and longer pieces that merely contain these letters (IP, PSfs,
    IPSfs) and the mode words (L1, L2, L2Sqr, ...) are not suffixes;
  - every other piece is a mode word (CToC, LTVal, BiQuad, ...).

It also writes the two pages generated from the table: the families page
(--markdown, docs/api.md) and the section of the README that says which
families exist and which are planned (--readme, README.md; the text between
the lines README_BEGIN and README_END below is replaced). One command
brings both up to date after rows change:

    python3 tools/api_counts.py api/qsps.api --markdown docs/api.md --readme README.md

With --check the files are compared instead of written.

Usage: api_counts.py TABLE [--expect-total N] [--markdown OUT] [--readme FILE] [--check]
Exit status 1 when a name repeats, a name does not start with qsps, the
total differs from --expect-total, or (--check) a page is not current.
"""
import argparse
import collections
import os
import re
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import qspapi  # noqa: E402

TYPE_PIECE = re.compile(r'^(?:\d+[usf]c?)+$')
SUFFIXES = ('I', 'L', 'Sfs', 'ISfs')
PRECISION_IN_STEM = re.compile(r'(?:\d+[usf]c?)+$')


def pieces(name):
    """Stem, type pieces, suffixes and mode words of a name."""
    parts = name[len('qsps'):].split('_')
    codes, suffixes, modes = [], [], []
    for p in parts[1:]:
        if TYPE_PIECE.match(p):
            if p not in codes:
                codes.append(p)
        elif p in SUFFIXES:
            suffixes.append(p)
        else:
            modes.append(p)
    return parts[0], codes, suffixes, modes


def count(exports):
    by_suffix = collections.Counter()
    by_type = collections.Counter()
    for e in exports:
        _, codes, suffixes, _ = pieces(e.name)
        by_suffix.update(set(suffixes))
        by_type.update(codes)
    return by_suffix, by_type


def markdown(families, by_suffix, by_type, total):
    out = []
    w = out.append
    w('# The functions of libqspsy8')
    w('')
    w('This page is generated from the API table `api/qsps.api` by')
    w('`tools/api_counts.py --markdown`; edit the table, not this page.')
    w('The table holds every export with its full C signature and the')
    w('documentation of its family; `include/qsps.h` declares the exports that')
    w('are implemented (`+` rows) and nothing else.')
    w('')
    w('## Reading a name')
    w('')
    w('Every name is `qsps` + operation + `_` + type codes + suffixes, each')
    w('further piece separated by `_`:')
    w('')
    w('- **Operation** in upper camel case: `Add`, `MulC` (C: one operand is a')
    w('  constant), `SubCRev` (Rev: the constant is the left operand), `FFTFwd`,')
    w('  `WinHann`. Size queries end in `GetSize`, `GetStateSize` or')
    w('  `GetBufferSize`, initialisers of records in `Init`. A precision written')
    w('  into the operation (`IIR64f_32s`, `FIRSRInit32f_32fc`) names the')
    w('  arithmetic or the record, the type code after it the data.')
    w('- **Mode words** between operation and types choose a variant:')
    w('  `LT`, `GT`, `LTVal`, `GTVal`, `LTAbs`, `GTAbs`, `LTInv`, `LTValGTVal`,')
    w('  `LTAbsVal` (Threshold), `Inf`, `L1`, `L2`, `L2Sqr` (norms), `Round`')
    w('  (takes a rounding mode), `CToC`, `RToPack`, `RToPerm`, `RToCCS`,')
    w('  `PackToR`, `PermToR`, `CCSToR` (transforms), `BiQuad`, `DF1` (IIR),')
    w('  `Direct` (no transform record) and a few more named in their family.')
    w('- **Type codes**: `8u 8s 16u 16s 32u 32s 64u 64s` integers (u unsigned,')
    w('  s signed), `16f 32f 64f` IEEE floats, a trailing `c` for a complex')
    w('  pair (real part first), `24u 24s` packed three-byte integers, `1u` bit')
    w('  strings. With two or three codes the sources come first and the')
    w('  destination last: `Convert_16s32f` reads 16s and writes 32f,')
    w('  `Norm_L2_32fc64f` reads 32fc and returns 64f.')
    w('- **Suffixes**, in this order: `I` in place (one pointer `pSrcDst` is both')
    w('  source and destination), `Sfs` integer result scaled by')
    w('  2^-scaleFactor, rounded to nearest even and saturated (`scaleFactor` is')
    w('  the last argument), `ISfs` both, `L` 64-bit lengths (`Qsp64s len`).')
    w('  A few IIR members carry `P` (several channels) in `_P`, `_IP`, `_PSfs`,')
    w('  `_IPSfs`.')
    w('')
    w('Arguments always come in this order: sources, destination, length, mode')
    w('arguments, scale factor; records and work buffers after the data.')
    w('')
    w('To find a function: take the operation (the part of the name between')
    w('`qsps` and the first `_`), find the family that lists it below, then')
    w('pick the row in `api/qsps.api` (the family\'s block there says the formula,')
    w('operand order and scaling) whose type codes and suffixes match your data.')
    w('The source of a family lives in `src/<folder>/`, in a file named after')
    w('the family.')
    w('')
    w('## Families')
    w('')
    w('Which rows are implemented is marked in the table itself (`+`).')
    w('')
    w('| Family | Folder | Functions | Operations in it |')
    w('|---|---|---:|---|')
    for fam in families:
        stems = []
        for e in fam.exports:
            stem, _, _, modes = pieces(e.name)
            stem = PRECISION_IN_STEM.sub('', stem)
            op = '_'.join([stem] + modes[:1]) if fam.name == 'Div_Round' else stem
            if op not in stems:
                stems.append(op)
        w('| %s | %s | %d | %s |' % (fam.name, fam.folder, len(fam.exports),
                                     ', '.join('`%s`' % x for x in stems)))
    w('| **all %d families** | | **%d** | |' % (len(families), total))
    w('')
    w('## Counts')
    w('')
    w('Counted as `tools/api_counts.py` states in its description: a name counts')
    w('once for each suffix piece it carries (ISfs is not also I or Sfs) and')
    w('once for its type piece, taken whole (`16s32f` is its own entry, not')
    w('also `16s` and `32f`).')
    w('')
    w('| Suffix | Names |')
    w('|---|---:|')
    for s in SUFFIXES:
        w('| `%s` | %d |' % (s, by_suffix[s]))
    w('')
    w('| Type piece | Names |')
    w('|---|---:|')
    for code, n in sorted(by_type.items(), key=lambda kv: (-kv[1], kv[0])):
        w('| `%s` | %d |' % (code, n))
    w('')
    return '\n'.join(out)


README_BEGIN = '<!-- families: generated from api/qsps.api by tools/api_counts.py; do not edit -->'
README_END = '<!-- end of the generated families -->'
REGENERATE = 'python3 tools/api_counts.py api/qsps.api --markdown docs/api.md --readme README.md'


def readme_section(families, total):
    """The README's list of families by source folder, available and planned."""
    done = sum(e.implemented for fam in families for e in fam.exports)
    folders = []
    for fam in families:
        if fam.folder not in folders:
            folders.append(fam.folder)
    out = [README_BEGIN, '']
    w = out.append
    if done == total:
        w('All %s functions of the interface are implemented and exported. A' % format(total, ','))
        w('family shows its count of functions. After rows of `api/qsps.api`')
        w('change, one command regenerates this list and `docs/api.md`:')
    else:
        w('%s of the %s functions of the interface are implemented and exported;' % (
            format(done, ','), format(total, ',')))
        w('the others are planned: they are listed in the API table and not yet in')
        w('the library or its header. A family shows its count of functions, and')
        w('"d of n" while only some of them exist; a folder with no available')
        w('family exports nothing yet. After rows of `api/qsps.api` change, one')
        w('command regenerates this list and `docs/api.md`:')
    w('')
    w('```sh')
    w(REGENERATE)
    w('```')
    w('')
    w('| Folder | Available | Planned |')
    w('|---|---|---|')
    for folder in folders:
        available, planned = [], []
        for fam in (f for f in families if f.folder == folder):
            n = len(fam.exports)
            d = sum(e.implemented for e in fam.exports)
            if d == n:
                available.append('%s (%d)' % (fam.name, n))
            elif d:
                available.append('%s (%d of %d)' % (fam.name, d, n))
            else:
                planned.append('%s (%d)' % (fam.name, n))
        w('| `src/%s` | %s | %s |' % (folder, ', '.join(available), ', '.join(planned)))
    w('')
    w(README_END)
    return '\n'.join(out)


def with_readme_section(text, section):
    begin, end = text.find(README_BEGIN), text.find(README_END)
    if begin < 0 or end < begin:
        raise SyntaxError('the README lacks the lines "%s" and "%s"' % (README_BEGIN, README_END))
    return text[:begin] + section + text[end + len(README_END):]


def update(path, text, check):
    """Writes text to path, or with check tells whether path holds it."""
    try:
        with open(path, encoding='utf-8') as f:
            old = f.read()
    except FileNotFoundError:
        old = None
    if old == text:
        return True
    if check:
        print('error: %s is not current; run: %s' % (path, REGENERATE))
        return False
    with open(path, 'w', encoding='utf-8') as f:
        f.write(text)
    return True


def main():
    ap = argparse.ArgumentParser(description='Counts the exports of the API table.')
    ap.add_argument('table')
    ap.add_argument('--expect-total', type=int)
    ap.add_argument('--markdown', metavar='OUT', help='write the families page to OUT')
    ap.add_argument('--readme', metavar='FILE', help='update the list of families in FILE')
    ap.add_argument('--check', action='store_true', help='compare the pages instead of writing them')
    a = ap.parse_args()

    try:
        families = qspapi.load(a.table)
    except SyntaxError as err:  # a repeated name is reported here too
        print('error: %s' % err)
        return 1
    exports = qspapi.exports(families)
    ok = True
    for e in exports:
        if not e.name.startswith('qsps'):
            print('error: %s does not start with qsps' % e.name)
            ok = False
    by_suffix, by_type = count(exports)
    total = len(exports)
    print('total %d (implemented %d, planned %d)' % (
        total, sum(e.implemented for e in exports), sum(not e.implemented for e in exports)))
    print('families %d' % len(families))
    print('suffixes: ' + ', '.join('%s %d' % (s, by_suffix[s]) for s in SUFFIXES))
    print('type pieces: ' + ', '.join('%s %d' % (c, n) for c, n in
                                     sorted(by_type.items(), key=lambda kv: (-kv[1], kv[0]))))
    if a.expect_total is not None and total != a.expect_total:
        print('error: %d rows, expected %d' % (total, a.expect_total))
        ok = False
    if a.markdown:
        ok = update(a.markdown, markdown(families, by_suffix, by_type, total), a.check) and ok
    if a.readme:
        with open(a.readme, encoding='utf-8') as f:
            text = f.read()
        try:
            ok = update(a.readme, with_readme_section(text, readme_section(families, total)), a.check) and ok
        except SyntaxError as err:
            print('error: %s' % err)
            ok = False
    return 0 if ok else 1


if __name__ == '__main__':
    sys.exit(main())
