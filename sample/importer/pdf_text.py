"""Small readings of PDF values that never fail on a broken file."""
import re


def text_of(value, default=""):
    """The text of a string or name object; control characters become blanks."""
    if value is None:
        return default
    try:
        text = str(value)
    except (ValueError, UnicodeError, TypeError):
        return default
    return "".join(c if c.isprintable() else " " for c in text).strip()


def number_of(value, default=0.0):
    try:
        number = float(value)
    except (ValueError, TypeError, ArithmeticError):
        return default
    return number if abs(number) < 1e9 else default  # also refuses infinities and what is not a number


def date_of(text):
    """A PDF date such as "D:20110626132603Z" as "2011-06-26 13:26:03"; other texts as they stand."""
    found = re.match(r"D:(\d{4})(\d\d)?(\d\d)?(\d\d)?(\d\d)?(\d\d)?", text)
    if not found:
        return text
    year, month, day, hour, minute, second = (part or "" for part in found.groups())
    date = "-".join(part for part in (year, month, day) if part)
    time = ":".join(part for part in (hour, minute, second) if part)
    return (date + " " + time).strip()


def is_array(value):
    return getattr(value, "_type_name", "") == "array"


def is_dictionary(value):
    return getattr(value, "_type_name", "") in ("dictionary", "stream")


def is_text(value):
    return isinstance(value, str) or getattr(value, "_type_name", "") == "string"


def entry(dictionary, *keys):
    """The value found by walking the keys, or None."""
    for key in keys:
        if not is_dictionary(dictionary):
            return None
        dictionary = dictionary.get(key)
    return dictionary


def identity(value):
    """What tells indirect objects apart; None for a direct one."""
    number = getattr(value, "objgen", (0, 0))
    return number if number != (0, 0) else None
