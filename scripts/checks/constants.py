# SPDX-License-Identifier: MIT
"""Named constants and watched literals, and where they stand in C++ text."""
import re
from collections import namedtuple

from checks.sources import without_comments

# One place: what stands there ("kName = value" or the literal), the file and the line.
Place = namedtuple("Place", "what path line")
_NAMED = re.compile(r"\bconstexpr\s+[\w:<>,*&\s]*?\b(k[A-Z]\w*)\s*(?:\[\w*\])?\s*(?:=\s*|(?=\{))([^;]+?)\s*;")
_TEXT = re.compile(r'"((?:\\.|[^"\\\n])*)"')
_NUMBER = re.compile(r"(?<![\w.])((?:\d[\d']*\.?[\d']*|\.\d+)(?:[eE][+-]?\d+)?)[fFlLuUzZ]*(?![\w.])")


def number(text):
    """The value of a decimal literal, so that 1852, 1'852 and 1852.0 are one; None for other texts."""
    try:
        return float(text.replace("'", "").rstrip("fFlLuUzZ"))
    except ValueError:
        return None


def _value(text):
    """A constant's value in one spelling: `= 3`, `{3}`, `= 3.0F` are one."""
    text = " ".join(text.split())
    if text.startswith("{") and text.endswith("}"):
        text = text[1:-1].strip()
    value = number(text)
    return text if value is None else f"{value:g}" if value != int(value) else str(int(value))


def _line(text, position):
    return text.count("\n", 0, position) + 1


def named_constants(path, text):
    """Places of `constexpr ... kName = value` of a file."""
    code = without_comments(text)
    return [Place(f"{match[1]} = {_value(match[2])}", path, _line(code, match.start(1))) for match in _NAMED.finditer(code)]


def watched_literals(path, text, watched):
    """Places of the watched literals of a file: a number by its value, a text in quotes by its whole content."""
    code = without_comments(text)
    numbers = {number(item): item for item in watched if number(item) is not None}
    texts = {item[1:-1]: item for item in watched if item.startswith('"')}
    found = [Place(texts[match[1]], path, _line(code, match.start())) for match in _TEXT.finditer(code) if match[1] in texts]
    bare = _TEXT.sub(lambda match: '"' + " " * (len(match[0]) - 2) + '"', code)
    for match in _NUMBER.finditer(bare):
        value = number(match[1])
        if value in numbers:
            found.append(Place(numbers[value], path, _line(bare, match.start())))
    return found
