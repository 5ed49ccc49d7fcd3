"""Makes up PICTURE strings, each of a kind that is asked for."""

from random import Random
from typing import Dict, Optional

from entries import Picture


def symbols(rng: Random, symbol: str, count: int, constants: Optional[Dict[str, int]] = None) -> str:
    """A symbol so many times, in one of the ways to write that."""
    for name, value in (constants or {}).items():
        if value == count and rng.random() < 0.5:
            return f'{symbol}({name})'
    way = rng.random()
    if count > 6 or way < 0.4:
        return f'{symbol}({count:0{rng.choice((1, 1, 2, 3))}d})'
    if way < 0.5 and count > 1 and symbol != 'P':  # The compiler wants those in one piece.
        part = rng.randint(1, count - 1)
        return f'{symbol}({part}){symbol * (count - part)}'
    return symbol * count


def numeric(rng: Random, most: int, constants: Optional[Dict[str, int]] = None,
            signed: Optional[bool] = None, scaling: bool = True) -> Picture:
    """A number of `most` digits at most."""
    sign = rng.random() < 0.5 if signed is None else signed
    digits = min(most, rng.choice((1, 2, 3, 4, 5, 7, 8, 9, 10, 12, 15, 18, rng.randint(1, most))))
    point = rng.random()
    if constants and rng.random() < 0.3:
        digits = min(most, rng.choice(list(constants.values())))
    text = 'S' if sign else ''
    if point < 0.55:
        text += symbols(rng, '9', digits, constants)
    elif point < 0.8 or not scaling:
        behind = rng.randint(0, digits)
        text += symbols(rng, '9', digits - behind, constants) if behind < digits else ''
        text += 'V' + (symbols(rng, '9', behind, constants) if behind else '')
    else:
        scaled = rng.randint(1, 4)
        digits = min(digits, most - scaled) or 1
        if digits + scaled > most:
            return Picture(text + '9', 'numeric', 1, sign)
        nines, ps = symbols(rng, '9', digits), symbols(rng, 'P', scaled)
        text += rng.choice((f'{nines}{ps}', f'{nines}{ps}V', f'{ps}{nines}', f'V{ps}{nines}'))
        digits += scaled
    return Picture(text, 'numeric', digits, sign)


def edited(rng: Random, is_comma: bool, currency: str) -> Picture:
    """A number laid out for print."""
    symbol = currency or '$'
    whole, behind = rng.randint(1, 9), rng.choice((0, 0, 2, 2, 3))
    leading = rng.choice(('9', '9', 'Z', 'Z', '*', '+', '-', symbol))
    floating = leading in ('+', '-', symbol)
    body = ''
    left = whole + 1 if floating else whole
    if rng.random() < 0.3 and left > 4:
        # Separators within the string.
        groups = []
        while left > 3:
            groups.insert(0, leading * 3)
            left -= 3
        groups.insert(0, leading * left)
        body = (',' if leading != '9' or rng.random() < 0.5 else rng.choice('B0/')).join(groups)
    elif floating:
        body = leading * left
    else:
        body = symbols(rng, leading, left)
    nines = rng.randint(0, 2)
    if leading != '9' and nines:
        body += symbols(rng, '9', nines)
    if behind:
        point = rng.choice('..V')
        filling = leading if leading not in ('9', symbol) and not nines and rng.random() < 0.3 else '9'
        body += point + (filling * behind if filling in '+-'
                         else symbols(rng, filling, behind))
    elif rng.random() < 0.1:
        body += rng.choice(('B', '0', '/', 'BB'))
    elif leading in '9Z' and rng.random() < 0.1:
        body += symbols(rng, 'P', rng.randint(1, 3))
    elif body.strip('9()0123456789') == '':
        body += rng.choice('B0/') + '9'
    if leading not in '+-' and 'P' not in body and rng.random() < 0.35:
        body = rng.choice((body + 'CR', body + 'DB', body + '-', body + '+', '-' + body, '+' + body)
                          if leading != symbol else (body + 'CR', body + '-'))
    elif leading not in ('+', '-', symbol) and rng.random() < 0.2:
        body = symbol + body
    if body.strip('9()0123456789V') == '':
        body += 'B'
    if is_comma:
        body = body.translate(str.maketrans('.,', ',.'))
    return Picture(body, 'edited')


def text(rng: Random, constants: Optional[Dict[str, int]] = None) -> Picture:
    way = rng.random()
    length = rng.choice((1, 1, 2, 3, 4, 5, 8, 10, 30, rng.randint(1, 300)))
    if constants and rng.random() < 0.4:
        length = rng.choice(list(constants.values()))
    if way < 0.75:
        return Picture(symbols(rng, 'X', length, constants), 'alphanumeric')
    if way < 0.85:
        return Picture(symbols(rng, 'A', length, constants), 'alphabetic')
    if way < 0.9:
        return Picture(symbols(rng, 'A', rng.randint(1, 4)) + symbols(rng, '9', rng.randint(1, 4))
                       + symbols(rng, 'X', rng.randint(1, 3)), 'alphanumeric')
    return Picture(symbols(rng, rng.choice('XXA'), rng.randint(1, 5)) + rng.choice(('B', '0', '/', 'B(2)'))
                   + symbols(rng, 'X', rng.randint(1, 5)), 'alphanumericEdited')


def national(rng: Random) -> Picture:
    return Picture(symbols(rng, 'N', rng.randint(1, 12)), 'national')


def external_float(rng: Random) -> Picture:
    point = rng.choice('.V')
    return Picture(f'{rng.choice("+-")}{symbols(rng, "9", rng.randint(1, 4))}{point}'
                   f'{symbols(rng, "9", rng.randint(1, 5))}E+99', 'externalFloat', signed=True)
