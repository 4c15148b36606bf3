#!/usr/bin/env python3
# SPDX-License-Identifier: BSD-3-Clause
"""Makes, from the API table, the three files that must agree with it:

  header       include/qsps.h: the public declarations of the implemented
               exports, family by family, each under its documentation;
  validators   the internal declarations of the validating functions (namespace
               y8), one per row, which the family sources define;
  entries      the exported entry points, one per implemented row, each
               forwarding its arguments unchanged to its validating function.

A 16-bit integer passed by value reaches the validating function widened to
int (sign-extended for Qsp16s, zero-extended for Qsp16u), so validating
functions only ever compare 32-bit values.

Usage: gen_api.py TABLE --header OUT --validators OUT --entries OUT
       gen_api.py TABLE --check-header FILE   (exit 1 if FILE is stale)
"""
import argparse
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import qspapi  # noqa: E402

WIDENED = {'Qsp16s': 'int', 'Qsp16u': 'int'}

HEADER_TOP = """\
/* SPDX-License-Identifier: BSD-3-Clause
 *
 * qsps.h - the functions of libqspsy8, the qsp signal-processing library.
 *
 * This file is generated from api/qsps.api by tools/gen_api.py; edit the
 * table, not this file.
 *
 * Conventions that hold for every function below:
 *  - Names: qsps + operation + _ + type codes (source before destination) +
 *    suffixes: I (in place), Sfs/ISfs (integer result scaled by
 *    2^-scaleFactor, rounded to nearest even and saturated), L (64-bit
 *    lengths).
 *  - Arguments: sources, destination, length, mode arguments, scale factor
 *    last; records and work buffers after the data.
 *  - Lengths count elements (a complex pair is one element), never bytes.
 *  - Checks, in this order: pointers in parameter order (qspStsNullPtr),
 *    then lengths (qspStsBadSize), then mode arguments. On any error nothing
 *    is written. Warnings are returned after the whole output is written.
 *    The chunking _L functions check their 64-bit length first. Status
 *    values are listed in qspdefs.h; qspStatusText(status) names one.
 *  - Pointers need no particular alignment; 16-byte alignment is the fast
 *    case. Sources and destinations must not overlap unless the function's
 *    block says otherwise.
 *  - State and threads: the library keeps no global state and no function
 *    keeps state between calls, with one exception: qspsFFTInit_C_16fc
 *    switches flush-to-zero and denormals-are-zero on (through libqspcore's
 *    qspSetFlushToZero and qspSetDenormAreZeros, in the MXCSR register of
 *    the calling thread) and leaves them on, so that afterwards denormal
 *    single and double results of that thread become zero and denormal
 *    operands read as zero. A program that needs denormals switches them
 *    back after that call (both libqspcore functions report the previous
 *    mode). Any function may run on any number of threads at once as long
 *    as no two calls write the same destination, record or buffer.
 */
#ifndef QSPS_H
#define QSPS_H

#include "qspdefs.h"

#ifdef __cplusplus
extern "C" {
#endif
"""

HEADER_END = """
#ifdef __cplusplus
}
#endif

#endif /* QSPS_H */
"""


def header(families):
    out = [HEADER_TOP]
    for fam in families:
        done = [e for e in fam.exports if e.implemented]
        if not done:
            continue
        out.append('\n/* %s %s */\n' % (fam.name, '-' * max(3, 72 - len(fam.name))))
        if fam.doc:
            out.append('/*\n' + ''.join((' * ' + d).rstrip() + '\n' for d in fam.doc) + ' */\n')
        for e in done:
            out.append('%s;\n' % e.signature())
    out.append(HEADER_END)
    return ''.join(out)


def validator_params(e):
    return [qspapi.Param(WIDENED.get(p.type, p.type), p.name) for p in e.params]


def validators(families):
    out = ['// SPDX-License-Identifier: BSD-3-Clause\n',
           '// Generated from api/qsps.api by tools/gen_api.py.\n',
           '// The validating function of every export: it checks the arguments in\n',
           '// the fixed order, serves trivial cases and chooses the kernel.\n',
           '#pragma once\n#include "qspdefs.h"\n\nnamespace y8 {\n']
    for e in qspapi.exports(families):
        out.append('%s %s(%s);\n' % (e.ret, e.name, qspapi.params_text(validator_params(e))))
    out.append('}  // namespace y8\n')
    return ''.join(out)


def entries(families):
    out = ['// SPDX-License-Identifier: BSD-3-Clause\n',
           '// Generated from api/qsps.api by tools/gen_api.py.\n',
           '// Each export forwards its arguments unchanged to its validating\n',
           '// function, which the compiler turns into a single jump.\n',
           '#include "qsps.h"\n#include "qsp_validators.h"\n\n',
           '#define QSP_EXPORT __attribute__((visibility("default")))\n\nextern "C" {\n']
    for e in qspapi.exports(families):
        if e.implemented:
            args = ', '.join(p.name for p in e.params)
            out.append('QSP_EXPORT %s { return y8::%s(%s); }\n' % (e.signature(), e.name, args))
    out.append('}\n')
    return ''.join(out)


def write_if_changed(path, text):
    try:
        with open(path, encoding='utf-8') as f:
            if f.read() == text:
                return
    except FileNotFoundError:
        pass
    os.makedirs(os.path.dirname(os.path.abspath(path)), exist_ok=True)
    with open(path, 'w', encoding='utf-8') as f:
        f.write(text)


def main():
    ap = argparse.ArgumentParser()
    ap.add_argument('table')
    ap.add_argument('--header')
    ap.add_argument('--validators')
    ap.add_argument('--entries')
    ap.add_argument('--check-header')
    a = ap.parse_args()
    families = qspapi.load(a.table)
    if a.check_header:
        with open(a.check_header, encoding='utf-8') as f:
            if f.read() != header(families):
                print('%s is stale: run tools/gen_api.py or rebuild' % a.check_header)
                return 1
        return 0
    if a.header:
        write_if_changed(a.header, header(families))
    if a.validators:
        write_if_changed(a.validators, validators(families))
    if a.entries:
        write_if_changed(a.entries, entries(families))
    return 0


if __name__ == '__main__':
    sys.exit(main())
