#!/usr/bin/env python3
"""Writes src/platform/text/fold_table.cpp: the frozen fold of text comparison and its order.

Run it from the root of the tree: python3 tools/fold_table/make_fold_table.py
The order is part of every index on disk. Whoever changes the output raises kFoldVersion in fold.h,
so that dictionaries get their index built anew.
"""

import pathlib
import re
import sys
import unicodedata

UNICODE_VERSION = "14.0.0"
OUTPUT = pathlib.Path("src/platform/text/fold_table.cpp")

# Two spellings of one character of code page 932, by which converter made the text.
TWIN_SPELLINGS = {0x301C: 0xFF5E, 0x2212: 0xFF0D, 0x2016: 0x2225, 0x2014: 0x2015}

# The half-width voicing marks alone are the spacing marks, not the combining ones.
LONE_MARKS = {0xFF9E: 0x309B, 0xFF9F: 0x309C}

# Latin letters whose name does not begin with the letter that they stand behind.
LATIN_BASES = {"ß": "s", "æ": "a", "ð": "d", "þ": "t", "ŋ": "n", "ĸ": "k", "ij": "i", "œ": "o", "ə": "e", "ſ": "s"}

KANA_ORDER = (
    "ーヽヾァアィイゥウヴェエォオヵカガキギㇰクグヶケゲコゴサザㇱシジㇲスズセゼソゾタダチヂッツヅテデㇳトド"
    "ナニㇴヌネノㇵハバパㇶヒビピㇷフブプㇸヘベペㇹホボポマミㇺムメモャヤュユョヨㇻラㇼリㇽルㇾレㇿロ"
    "ヮワヷヰヸヱヹヲヺン"
)
IDEOGRAPHS_BESIDE_THE_BLOCK = "々〆〇"


def simple_lower(char):
    lower = char.lower()
    return lower if len(lower) == 1 else lower[0]


def fold_once(code):
    if 0x3041 <= code <= 0x3096 or 0x309D <= code <= 0x309E:
        return code + 0x60
    if code in LONE_MARKS:
        return LONE_MARKS[code]
    code = TWIN_SPELLINGS.get(code, code)
    parts = unicodedata.decomposition(chr(code)).split()
    if len(parts) == 2 and parts[0] in ("<wide>", "<narrow>"):
        code = int(parts[1], 16)
    return ord(simple_lower(chr(code)))


def fold(code):
    folded = fold_once(code)
    while fold_once(folded) != folded:
        folded = fold_once(folded)
    return folded


def is_surrogate(code):
    return 0xD800 <= code <= 0xDFFF


def fold_runs():
    """Runs (first, last, step, delta) of the code points that the fold changes."""
    runs = []
    for code in range(0x110000):
        if is_surrogate(code):
            continue
        folded = fold(code)
        if folded == code:
            continue
        if (folded >> 16) != (code >> 16):
            sys.exit(f"U+{code:04X} would leave its plane")
        delta = folded - code
        if runs and runs[-1][3] == delta:
            first, last, step, _ = runs[-1]
            gap = code - last
            if gap == step or (first == last and gap <= 2):
                runs[-1] = (first, code, gap, delta)
                continue
        runs.append((code, code, 1, delta))
    return runs


def code_page_932():
    """The characters of code page 932 in the order of their codes."""
    chars = {}
    for lead in range(0x100):
        for code in [bytes([lead])] + [bytes([lead, trail]) for trail in range(0x100)]:
            try:
                char = code.decode("cp932")
            except UnicodeDecodeError:
                continue
            if len(char) == 1 and not 0xE000 <= ord(char) <= 0xF8FF and not 0x80 <= ord(char) < 0xA0:
                chars[char] = char.encode("cp932")
    return sorted(chars, key=lambda char: (len(chars[char]), chars[char]))


def script_letters(script):
    """The folded letters of a script, those with marks behind their base letter."""

    def base(char):
        named = re.match(r"LATIN SMALL LETTER (?:DOTLESS |LONG )?([A-Z])(?: |$)", unicodedata.name(char))
        bare = named[1].lower() if named else unicodedata.normalize("NFD", char)[0]
        return LATIN_BASES.get(bare, bare)

    pattern = re.compile(script + r"( SMALL)? LETTER ")
    letters = [
        chr(code)
        for code in range(0x10000)
        if pattern.match(unicodedata.name(chr(code), "")) and fold(code) == code
        and unicodedata.category(chr(code)).startswith("L")
    ]
    return sorted(letters, key=lambda char: (base(char), char))


def is_ideograph(char):
    return char in IDEOGRAPHS_BESIDE_THE_BLOCK or unicodedata.name(char, "").startswith("CJK ")


def order():
    """Folded characters in groups: symbols, digits, letters, kana, kanji."""
    page = list(dict.fromkeys(chr(fold(ord(char))) for char in code_page_932()))
    digits = list("0123456789")
    letters = script_letters("LATIN") + script_letters("GREEK") + script_letters("CYRILLIC")
    kana = list(KANA_ORDER)
    kanji = [char for char in page if is_ideograph(char)]
    placed = set(digits + letters + kana + kanji)
    symbols = [char for char in page if char not in placed]
    groups = [("symbols", symbols), ("digits", digits), ("letters", letters), ("kana", kana), ("kanji", kanji)]
    everything = [char for _, group in groups for char in group]
    if len(everything) != len(set(everything)):
        sys.exit("a character stands twice in the order")
    for char in everything:
        if ord(char) > 0xFFFF or fold(ord(char)) != ord(char):
            sys.exit(f"U+{ord(char):04X} cannot stand in the order")
    return groups


def literal(char):
    if char in "\"\\?":
        return "\\" + char
    # An octal escape ends after three digits, so that no character behind it joins it.
    if ord(char) < 0x20 or ord(char) == 0x7F:
        return f"\\{ord(char):03o}"
    return char if char.isprintable() else f"\\u{ord(char):04X}"


def string_lines(chars):
    for at in range(0, len(chars), 48):
        yield '    u"' + "".join(literal(char) for char in chars[at : at + 48]) + '"'


def main():
    if unicodedata.unidata_version != UNICODE_VERSION:
        sys.exit(f"the table is frozen on Unicode {UNICODE_VERSION}, not {unicodedata.unidata_version}")
    lines = [
        "// Written by tools/fold_table/make_fold_table.py; do not edit. Every change needs a new kFoldVersion.",
        '#include "platform/text/fold_table.h"',
        "",
        "// clang-format off",
        "namespace text {",
        "",
        "using namespace std::string_view_literals;",
        "",
        "namespace {",
        "",
        "constexpr FoldRun kRuns[] = {",
    ]
    cells = [f"{{0x{first:X}, 0x{last:X}, {step}, {delta}}}," for first, last, step, delta in fold_runs()]
    lines += ["    " + " ".join(cells[at : at + 4]) for at in range(0, len(cells), 4)]
    lines += ["};", "", "} // namespace", "", "std::span<const FoldRun> FoldRuns() { return kRuns; }", ""]
    lines += ["std::u16string_view FoldedOrder()", "{", "    return"]
    for name, group in order():
        lines.append(f"    // {name}")
        lines += string_lines(group)
    lines[-1] += "sv;"
    lines += ["}", "", "} // namespace text", ""]
    OUTPUT.write_text("\n".join(lines), encoding="utf-8")


main()
