#!/usr/bin/env python3
"""Brings Resources/translation/trans_{en,ko,he}.ts up to date with the program's texts.

Texts come from three places: tr() calls in the C++ sources (found by lupdate, one context per
class), the "text" of every entry in the view description files (context "ui_" + the
view name in lower camel case, which is how the views look them up), and the cameras'
setting names, hints and choices in Setting.json (context "SettingOpt"; choices without a
letter, such as "+1", are shown as they are). Translations already
in the files are kept; new texts are added as unfinished and listed, so a translator can
fill them in. English carries every text as its own translation.

Usage: tools/update_translations.py            (rewrites the three .ts files)
       tools/update_translations.py --check    (exit 1 when a text has no translation)
"""
import json
import os
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ET

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SOURCES = ["app", "ui", "recordings", "playback", "telemetry", "device", "service", "export"]
LANGUAGES = {"en": "en_US", "ko": "ko_KR", "he": "he_IL"}
# Qt reads this text to lay the interface out right to left.
FIXED = {"he": {("QGuiApplication", "QT_LAYOUT_DIRECTION"): "RTL"}}


def source_texts():
    """(context, source) pairs of the tr() calls, in lupdate's order."""
    folders = [os.path.join(ROOT, d) for d in SOURCES if os.path.isdir(os.path.join(ROOT, d))]
    with tempfile.TemporaryDirectory() as tmp:
        ts = os.path.join(tmp, "all.ts")
        subprocess.run(["lupdate", "-silent", "-no-obsolete", "-locations", "none",
                        "-extensions", "cpp,h", *folders, "-ts", ts], check=True)
        pairs = []
        for context in ET.parse(ts).getroot().iter("context"):
            name = context.findtext("name")
            for message in context.iter("message"):
                pairs.append((name, message.findtext("source")))
        return pairs


def description_texts():
    folder = os.path.join(ROOT, "Resources", "json")
    pairs = []
    for file in sorted(os.listdir(folder)):
        if not file.endswith(".json"):
            continue
        view = file[:-5]
        with open(os.path.join(folder, file), encoding="utf-8") as handle:
            try:
                entries = json.load(handle)
            except ValueError:
                continue
        if not isinstance(entries, dict):
            continue
        context = "ui_" + view[0].lower() + view[1:]
        for entry in entries.values():
            if isinstance(entry, dict) and isinstance(entry.get("text"), str) and entry["text"]:
                pairs.append((context, entry["text"]))
    return pairs


def setting_texts():
    """(context, source) pairs of the settings dialog's rows, in file order."""
    path = os.path.join(ROOT, "Resources", "json", "Setting.json")
    if not os.path.exists(path):
        return []
    with open(path, encoding="utf-8") as handle:
        models = json.load(handle)
    texts = []
    for trees in models.values():
        for tree, settings in trees.items():
            texts.append(tree)
            for name, record in settings.items():
                texts.append(name)
                texts.append(record.get("text", ""))
                texts.extend(choice.get("name", "") for choice in record.get("item", []))
    return [("SettingOpt", text) for text in texts if any(c.isalpha() for c in text)]


def existing(language):
    path = os.path.join(ROOT, "Resources", "translation", "trans_%s.ts" % language)
    known = {}
    if os.path.exists(path):
        for context in ET.parse(path).getroot().iter("context"):
            name = context.findtext("name")
            for message in context.iter("message"):
                translation = message.find("translation")
                if translation is not None and translation.text and translation.get("type") != "unfinished":
                    known[(name, message.findtext("source"))] = translation.text
    return known


def write(language, pairs, known):
    root = ET.Element("TS", version="2.1", language=LANGUAGES[language])
    contexts = {}
    for context, source in pairs:
        contexts.setdefault(context, [])
        if source not in contexts[context]:
            contexts[context].append(source)
    missing = []
    for name in sorted(contexts):
        element = ET.SubElement(root, "context")
        ET.SubElement(element, "name").text = name
        for source in contexts[name]:
            message = ET.SubElement(element, "message")
            ET.SubElement(message, "source").text = source
            translation = ET.SubElement(message, "translation")
            text = source if language == "en" else known.get((name, source))
            if text is None:
                translation.set("type", "unfinished")
                missing.append((name, source))
            else:
                translation.text = text
    ET.indent(root)
    path = os.path.join(ROOT, "Resources", "translation", "trans_%s.ts" % language)
    with open(path, "w", encoding="utf-8") as handle:
        handle.write('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
        handle.write(ET.tostring(root, encoding="unicode"))
        handle.write("\n")
    return missing


def main():
    pairs = source_texts() + description_texts() + setting_texts()
    status = 0
    for language in LANGUAGES:
        known = existing(language)
        known.update(FIXED.get(language, {}))
        all_pairs = pairs + list(FIXED.get(language, {}).keys())
        if "--check" in sys.argv:
            gaps = [p for p in pairs if language != "en" and p not in known]
        else:
            gaps = write(language, all_pairs, known)
        for context, source in gaps:
            print("%s: %s: %r has no translation" % (language, context, source))
            status = 1
    return status if "--check" in sys.argv else 0


if __name__ == "__main__":
    sys.exit(main())
