# SPDX-License-Identifier: BSD-3-Clause
"""Reader of the API table, api/qsps.api: the one list of every export of
libqspsy8 with its family and C signature, and whether it is implemented.

Table grammar, one item a line:
    # text                      a remark about the table itself (ignored)
    @family NAME FOLDER         opens a family; FOLDER is its source folder
    /// text                    documentation of the open family (goes into qsps.h)
    + DECLARATION;              an implemented export of the open family
    - DECLARATION;              a planned export, not implemented yet
where DECLARATION is a C prototype: return type, name, parameter list.
"""
import re
from dataclasses import dataclass, field

DECL_RE = re.compile(r'^(?P<ret>.+?)\s*\b(?P<name>\w+)\s*\((?P<params>.*)\)\s*;\s*$')


@dataclass
class Param:
    type: str
    name: str


@dataclass
class Export:
    name: str
    ret: str
    params: list
    implemented: bool
    family: str
    folder: str
    line: int

    def signature(self):
        return '%s %s(%s)' % (self.ret, self.name, params_text(self.params))


@dataclass
class Family:
    name: str
    folder: str
    doc: list = field(default_factory=list)
    exports: list = field(default_factory=list)


def params_text(params):
    return ', '.join('%s %s' % (p.type, p.name) for p in params) if params else 'void'


def parse_param(text, where):
    text = ' '.join(text.split())
    m = re.match(r'^(?P<type>.*?[\w\*])\s*\b(?P<name>\w+)$', text)
    if not m or m.group('type') in ('', 'const'):
        raise SyntaxError('%s: cannot read parameter "%s"' % (where, text))
    return Param(' '.join(m.group('type').replace('*', ' * ').split()).replace(' *', '*'), m.group('name'))


def parse_decl(text, where):
    m = DECL_RE.match(' '.join(text.split()))
    if not m:
        raise SyntaxError('%s: cannot read declaration "%s"' % (where, text))
    raw = m.group('params').strip()
    params = [] if raw in ('', 'void') else [parse_param(p, where) for p in raw.split(',')]
    return m.group('ret').strip(), m.group('name'), params


def load(path):
    families, seen = [], {}
    with open(path, encoding='utf-8') as f:
        for number, line in enumerate(f, 1):
            where = '%s:%d' % (path, number)
            line = line.rstrip('\n')
            stripped = line.strip()
            if not stripped or stripped.startswith('#'):
                continue
            if stripped.startswith('@family'):
                words = stripped.split()
                if len(words) != 3:
                    raise SyntaxError('%s: expected "@family NAME FOLDER"' % where)
                families.append(Family(words[1], words[2]))
            elif stripped.startswith('///'):
                if not families:
                    raise SyntaxError('%s: documentation before any family' % where)
                families[-1].doc.append(stripped[3:][1:] if stripped[3:4] == ' ' else stripped[3:])
            elif stripped[0] in '+-' and stripped[1:2] == ' ':
                if not families:
                    raise SyntaxError('%s: export before any family' % where)
                ret, name, params = parse_decl(stripped[2:], where)
                if name in seen:
                    raise SyntaxError('%s: %s already listed at line %d' % (where, name, seen[name]))
                seen[name] = number
                fam = families[-1]
                fam.exports.append(Export(name, ret, params, stripped[0] == '+', fam.name, fam.folder, number))
            else:
                raise SyntaxError('%s: unknown line "%s"' % (where, stripped))
    return families


def exports(families):
    return [e for fam in families for e in fam.exports]
