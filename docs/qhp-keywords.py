#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The CommonGUI developers
# SPDX-License-Identifier: BSD-3-Clause
"""Rewrites the keywords of doxygen's index.qhp from its tag file.

This doxygen writes class keywords with a trailing "_" in their ids and no member
keywords at all, so Qt Creator's F1 would find nothing. Qt's own convention is the
plain class name and "Class::member", which is what is written here.
Usage: qhp-keywords.py <index.qhp> <tag file>
"""
import sys
import xml.etree.ElementTree as ET
from xml.sax.saxutils import quoteattr

qhp_path, tags_path = sys.argv[1], sys.argv[2]
keywords = []
for compound in ET.parse(tags_path).getroot().iter('compound'):
    kind = compound.get('kind')
    name = compound.findtext('name')
    filename = compound.findtext('filename') or ''
    if kind in ('class', 'struct', 'namespace'):
        if not filename.endswith('.html'):
            filename += '.html'
        keywords.append((name.split('::')[-1], name, filename))
        for member in compound.findall('member'):
            member_name = member.findtext('name')
            ref = member.findtext('anchorfile') + '#' + member.findtext('anchor')
            keywords.append((member_name, name + '::' + member_name, ref))
    elif kind == 'page':
        title = compound.findtext('title') or name
        keywords.append((title, name, filename if filename.endswith('.html') else filename + '.html'))

with open(qhp_path, encoding='utf-8') as f:
    text = f.read()
start = text.index('<keywords>') + len('<keywords>')
end = text.index('</keywords>')
lines = ''.join('\n<keyword name=%s id=%s ref=%s/>' % (quoteattr(n), quoteattr(i), quoteattr(r))
                for n, i, r in keywords)
with open(qhp_path, 'w', encoding='utf-8') as f:
    f.write(text[:start] + lines + '\n' + text[end:])
