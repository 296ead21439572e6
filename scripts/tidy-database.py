#!/usr/bin/env python3
"""Says to clang-tidy how the sources of src/ are read: BUILD/compile_commands.json, but in few large files.

    tidy-database.py BUILD

Most of the time goes into the headers, once for each file; so the rooms become three files and the commands one, in
BUILD/tidy. The window stays as it was compiled, with its precompiled header, which saves a third of its time. What moc
and rcc make is left out: it is not ours to mend.
"""
import json
import os
import re
import shlex
import sys

build = os.path.abspath(sys.argv[1])
project = os.path.dirname(os.path.dirname(os.path.realpath(__file__)))
database = os.path.join(build, "tidy")
os.makedirs(database, exist_ok=True)

window, rooms, commands = [], [], []
with open(os.path.join(build, "compile_commands.json")) as file:
    entries = json.load(file)
for entry in entries:
    source = os.path.join(entry["directory"], entry["file"])
    target = re.search(r" -o src/(?:gui/|qtprint/)?CMakeFiles/([\w-]+)\.dir/", entry["command"])
    if not target or not ("/Unity/" in source or source.startswith(os.path.join(project, "src", ""))):
        continue
    if target.group(1) in ("ferrowick", "ferrowick_gui"):
        window.append(entry)
    elif target.group(1) in ("fwk_commands", "fwk-print", "ferrowick_qtprint"):
        commands.append(entry)
    else:  # fwk as well, which does otherwise what fwk-print does with Qt
        rooms.append(entry)


def size(entry):
    """Of what is read: of the files that one includes where several were compiled as one."""
    with open(os.path.join(entry["directory"], entry["file"])) as file:
        text = file.read()
    parts = re.findall(r'#include "(/[^"]+\.cpp)"', text)
    return sum(map(os.path.getsize, parts)) or len(text)


def merged(name, group):
    """One file in place of those of the group, with the flags that they need to be read."""
    flags = []
    for entry in group:
        words = shlex.split(entry["command"])
        for word, following in zip(words, words[1:]):
            if word == "-isystem":
                flags += [[word, following]]
            elif word.startswith(("-D", "-I", "-W", "-std=")) and word != "-Winvalid-pch":
                flags += [[word]]
    unique = [word for flag in dict.fromkeys(map(tuple, flags)) for word in flag]
    path = os.path.join(database, name + ".cpp")
    with open(path, "w") as file:
        for entry in group:
            file.write(f'#include "{os.path.join(entry["directory"], entry["file"])}"\n')
    return {"directory": build, "file": path, "arguments": ["clang++"] + unique + ["-c", path]}


thirds = [[], [], []]
for entry in sorted(rooms, key=size, reverse=True):
    min(thirds, key=lambda third: sum(map(size, third))).append(entry)
for entry in window:
    entry["command"] = re.sub(r" -I([^ ]*_autogen/include)", r" -isystem \1", entry["command"])
    if "clang" not in entry["command"]:
        entry["command"] = re.sub(r" -include [^ ]*cmake_pch\.hxx| -Winvalid-pch", "", entry["command"])
window.sort(key=size, reverse=True)
# The longest first, so that none is left alone at the end.
result = [merged("commands", commands)] + window
result += [merged(f"rooms{number}", third) for number, third in enumerate(thirds, 1) if third]
with open(os.path.join(database, "compile_commands.json"), "w") as file:
    json.dump(result, file, indent=1)
