"""The usages of items: their words, and what goes with them."""

from typing import List, NamedTuple


class Usage(NamedTuple):
    words: List[str]  # Each stands for it.
    picture: str  # What PICTURE it takes: all, number, unsigned, bytes (X, or a number), national,
    # numbers of national characters, bits, or none.
    digits: int = 0  # The most of a number.
    weight: int = 1  # How often it is taken.
    needs: str = ''  # What a program has to allow: address.


USAGES = [
    Usage(['DISPLAY'], 'all', 38, 6),
    Usage(['COMP', 'COMPUTATIONAL', 'BINARY'], 'number', 18, 6),
    Usage(['COMP-4', 'COMPUTATIONAL-4'], 'number', 18, 2),
    Usage(['COMP-5', 'COMPUTATIONAL-5'], 'number', 18, 3),
    Usage(['COMP-X', 'COMPUTATIONAL-X'], 'bytes', 18, 2),
    Usage(['COMP-N', 'COMPUTATIONAL-N'], 'bytes', 18, 1),
    Usage(['COMP-3', 'COMPUTATIONAL-3', 'PACKED-DECIMAL'], 'number', 38, 6),
    Usage(['COMP-6', 'COMPUTATIONAL-6'], 'unsigned', 38, 2),
    Usage(['COMP-1', 'COMPUTATIONAL-1', 'FLOAT-SHORT', 'FLOAT'], 'none', weight=3),
    Usage(['COMP-2', 'COMPUTATIONAL-2', 'FLOAT-LONG', 'DOUBLE'], 'none', weight=3),
    Usage(['FLOAT-DECIMAL-16'], 'none'),
    Usage(['FLOAT-DECIMAL-34'], 'none'),
    Usage(['BINARY-CHAR', 'BINARY-CHAR SIGNED', 'BINARY-CHAR UNSIGNED'], 'none'),
    Usage(['BINARY-SHORT', 'BINARY-SHORT UNSIGNED', 'SIGNED-SHORT', 'UNSIGNED-SHORT'], 'none'),
    Usage(['BINARY-LONG', 'BINARY-LONG SIGNED', 'BINARY-INT', 'SIGNED-INT', 'UNSIGNED-INT'], 'none'),
    Usage(['BINARY-DOUBLE', 'BINARY-DOUBLE UNSIGNED', 'BINARY-LONG-LONG', 'BINARY-C-LONG',
           'SIGNED-LONG', 'UNSIGNED-LONG'], 'none'),
    Usage(['INDEX'], 'none', weight=2, needs='address'),
    Usage(['POINTER'], 'none', weight=2, needs='address'),
    Usage(['PROGRAM-POINTER', 'PROCEDURE-POINTER'], 'none', needs='address'),
    Usage(['NATIONAL'], 'national', weight=2),
    Usage(['BIT'], 'bits'),
]

BY_WORD = {word: usage for usage in USAGES for word in usage.words}
