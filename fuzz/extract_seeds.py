#!/usr/bin/env python3
"""Refreshes the seed corpus in fuzz/corpus/<harness>/ from the example board and from the
texts that the tests write as input files (runs of adjacent C string literals in tests/).

Usage: fuzz/extract_seeds.py   (from anywhere; rewrites the test-* seeds, keeps the others)
"""
import hashlib
import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parent.parent
CORPUS = ROOT / "fuzz" / "corpus"

LITERAL = r'"(?:[^"\\\n]|\\.)*"'
RUN = re.compile(r"(?:%s\s*){1,}" % LITERAL)
ESCAPES = {"n": "\n", "t": "\t", "r": "\r", "0": "\0", "\\": "\\", '"': '"', "'": "'"}

# Words that mark the kind of file a text is, first match wins.
KINDS = [
    ("log", ["Ndd2Qfx Version", "Nets Translated :", "Settings :"]),
    ("ibis", ["[Pin]", "[Model]", "[Component]"]),
    ("traces", ["TTI ", "TTT ", "ARS "]),
    ("hkp", ["CONDUCTIVE_AREA", ".UNITS", ".NET "]),
    ("translate", ["%length", "%signal", "%port", "%paddef", "%padstackdef", "%via",
                   "%trace", "%fill_", "%dielectric", "%packagedef", "%partinst"]),
]


def decode(literal_run):
    text = []
    for lit in re.findall(LITERAL, literal_run):
        body = lit[1:-1]
        i = 0
        while i < len(body):
            c = body[i]
            if c == "\\" and i + 1 < len(body):
                nxt = body[i + 1]
                if nxt == "x":
                    m = re.match(r"[0-9a-fA-F]{1,2}", body[i + 2:])
                    text.append(chr(int(m.group(0), 16)))
                    i += 2 + len(m.group(0))
                    continue
                text.append(ESCAPES.get(nxt, nxt))
                i += 2
                continue
            text.append(c)
            i += 1
    return "".join(text)


def kind_of(text):
    for kind, words in KINDS:
        if any(w in text for w in words):
            return kind
    return None


def main():
    for old in CORPUS.glob("*/test-*"):
        old.unlink()
    seen = set()
    counts = {}
    for source in sorted((ROOT / "tests").rglob("*.cpp")):
        for m in RUN.finditer(source.read_text(encoding="utf-8", errors="replace")):
            text = decode(m.group(0))
            if "\n" not in text or len(text) < 8:
                continue
            kind = kind_of(text)
            if kind is None:
                continue
            data = text.encode("latin-1", errors="replace")
            digest = hashlib.sha1(data).hexdigest()[:12]
            if (kind, digest) in seen:
                continue
            seen.add((kind, digest))
            folder = CORPUS / kind
            folder.mkdir(parents=True, exist_ok=True)
            (folder / ("test-" + digest)).write_bytes(data)
            counts[kind] = counts.get(kind, 0) + 1
    for kind, n in sorted(counts.items()):
        print(f"{kind}: {n} seeds from the tests")


if __name__ == "__main__":
    main()
