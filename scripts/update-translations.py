#!/usr/bin/env python3
"""Brings translations/*.ts up to the texts in the source.

    scripts/update-translations.py            takes in new texts, drops those that are gone, keeps what is translated
    scripts/update-translations.py --check    changes nothing; says what is missing, gone or wrong, and fails then

The texts are found by Qt's lupdate. It sorts them by class and namespace; here a text has one translation wherever it
stands, so all are put into one context.
"""
import collections
import glob
import os
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml
from xml.sax.saxutils import escape

root = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
bins = subprocess.run(["qmake6", "-query", "QT_HOST_BINS"], capture_output=True, text=True, check=True).stdout.strip()


def messages_of(path):
    """{(source, comment): (is counted, [forms])}, in the order of the file."""
    found = {}
    for message in xml.parse(path).iter("message"):
        source, translation = message.findtext("source"), message.find("translation")
        counted = message.get("numerus") == "yes"
        forms = [form.text or "" for form in translation.iter("numerusform")] if counted else [translation.text or ""]
        found[source, message.findtext("comment") or ""] = (counted, forms)
    return found


def messages_of_source():
    with tempfile.TemporaryDirectory() as folder:
        into = os.path.join(folder, "all.ts")
        # What it has to say about classes without contexts is of no use here.
        subprocess.run([bins + "/lupdate", "-silent", "-locations", "none", "-tr-function-alias", "QT_TR_NOOP+=marked",
                        root + "/src", "-ts", into], check=True, stderr=subprocess.DEVNULL)
        return messages_of(into)


def places(text):
    return sorted(re.findall(r"%(?:[1-9]|n|L[1-9])", text))


def mnemonic(text):
    return len(re.findall(r"&(?![&\s])", text.replace("&&", ""))) > 0


def faults(key, counted, forms, count):
    """What is wrong with a translation."""
    source, many = key
    if not all(forms) or len(forms) != (count if counted else 1):
        return ["not translated"]
    told = []
    for form in forms:
        if set(places(form)) - {"%n"} != set(places(source)) - {"%n"}:
            told.append("other places")
        if mnemonic(form) != mnemonic(source):
            told.append("a mnemonic more or less")
        ends = source[-1] if source[-1] in ":." else ""
        if source.endswith("...") != form.endswith("...") or (ends and form.rstrip()[-1:] not in ":.!?"):
            told.append("another end")
        if "\t" in source and form.count("\t") != source.count("\t"):
            told.append("other columns")
        if "|*." in source and re.findall(r"\|[^|]*", source)[::2] != re.findall(r"\|[^|]*", form)[::2]:
            told.append("other patterns")
    return told


def write(path, language, messages):
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>", f'<TS version="2.1" language="{language}">',
             "<context>", "    <name>Ferrowick</name>"]
    for (source, comment), (counted, forms) in messages.items():
        lines.append('    <message numerus="yes">' if counted else "    <message>")
        lines.append(f"        <source>{escape(source)}</source>")
        if comment:
            lines.append(f"        <comment>{escape(comment)}</comment>")
        state = "" if all(forms) and forms else ' type="unfinished"'
        if counted:
            inner = "".join(f"<numerusform>{escape(form)}</numerusform>" for form in forms)
        else:
            inner = escape(forms[0] if forms else "")
        lines.append(f"        <translation{state}>{inner}</translation>")
        lines.append("    </message>")
    lines += ["</context>", "</TS>"]
    with open(path, "w", encoding="utf-8") as out:
        out.write("\n".join(lines) + "\n")


def main():
    check = sys.argv[1:] == ["--check"]
    source = dict(sorted(messages_of_source().items()))
    complaints = []
    for path in sorted(glob.glob(root + "/translations/ferrowick_*.ts")):
        language = os.path.basename(path)[len("ferrowick_"):-len(".ts")]
        count = 2  # the plural forms of all languages so far: one, and all others
        old = messages_of(path) if os.path.getsize(path) else {}
        new = collections.OrderedDict()
        for key, (counted, _) in source.items():
            was_counted, forms = old.get(key, (counted, []))
            new[key] = (counted, forms if forms and was_counted == counted else [""] * (count if counted else 1))
        if check:
            complaints += [f"{language}: gone: {key[0]!r}" for key in old if key not in source]
            for key, (counted, forms) in new.items():
                complaints += [f"{language}: {fault}: {key[0]!r}" for fault in faults(key, counted, forms, count)]
        else:
            write(path, language, new)
    print("\n".join(complaints) if complaints else f"{len(source)} texts")
    sys.exit(1 if complaints else 0)


main()
