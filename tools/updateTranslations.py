#!/usr/bin/env python3
"""Brings the catalogues in resources/translations/ in step with the texts in src/.

New texts appear in them as unfinished: translate them and run the tests. The Polish catalogue holds
every text. The English one holds only plural forms, the captions of options, which are looked up by
key, and the beginnings of log lines, which end with a blank; every other English text stands in the
sources.
"""
import os
import re
import subprocess

root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


def path(language):
    return os.path.join(root, "resources", "translations", f"KIV_ZP_{language}.ts")


def keep_needed(context):
    name = re.search("<name>(.*?)</name>", context)[1]
    messages = re.findall(r" *<message.*?</message>\n", context, re.S)
    needed = [m for m in messages if 'numerus="yes"' in m or name in ("options", "log")]
    if not needed:
        return ""
    return f"<context>\n    <name>{name}</name>\n{''.join(needed)}</context>\n"


for language in ("pl", "en"):
    subprocess.run(["lupdate", "-silent", "-locations", "none", "-no-obsolete",
                    os.path.join(root, "src"), "-ts", path(language)], check=True)

with open(path("en"), encoding="utf-8") as file:
    english = file.read()
english = re.sub(r"<context>.*?</context>\n", lambda match: keep_needed(match[0]), english, flags=re.S)
with open(path("en"), "w", encoding="utf-8") as file:
    file.write(english)

for language in ("pl", "en"):
    with open(path(language), encoding="utf-8") as file:
        print(f"{language}: {file.read().count('unfinished')} unfinished")
