"""Document information, security and fonts."""
import re
import subprocess

from pdf_text import date_of, is_dictionary, text_of

FIELDS = ("Title", "Subject", "Author", "Creator", "Keywords", "Producer")
NO_EMBEDDING, PARTIAL_EMBEDDING, FULL_EMBEDDING = 0, 1, 2
EVERYTHING_PERMITTED = -4
FONT_TYPES = ("Type 1", "Type 1C", "Type 1C (OT)", "Type 3", "TrueType", "TrueType (OT)", "CID Type 0",
              "CID Type 0C", "CID Type 0C (OT)", "CID TrueType", "CID TrueType (OT)", "unknown")
FONT_LINE = re.compile(r"(?P<name>.*?)\s+(?P<type>" + "|".join(re.escape(t) for t in FONT_TYPES) +
                       r")\s+(?P<encoding>\S+)\s+(?P<embedded>yes|no)\s+(?P<subset>yes|no)\s+(yes|no)\s+-?\d+\s+-?\d+\s*$")


def information_of(pdf):
    """The document's named fields, and the further entries of its information dictionary."""
    entries = pdf.trailer.get("/Info")
    fields, further = dict.fromkeys(FIELDS, ""), {}
    for key, value in entries.items() if is_dictionary(entries) else []:
        name, text = key.lstrip("/"), text_of(value).lstrip("/")
        if name in fields:
            fields[name] = text
        else:
            further[name] = date_of(text)
    return fields, further


def security_of(pdf):
    if not pdf.is_encrypted:
        return {"Security": 0, "Permissions": EVERYTHING_PERMITTED}
    return {"Security": int(pdf.encryption.bits), "Permissions": int(pdf.encryption.P),
            "OwnerAccess": bool(pdf.owner_password_matched)}


def font_of(line):
    found = FONT_LINE.match(line)
    if not found:
        return None
    name = found["name"].strip()
    embedding = NO_EMBEDDING
    if found["embedded"] == "yes":
        embedding = PARTIAL_EMBEDDING if found["subset"] == "yes" else FULL_EMBEDDING
    return {"name": name, "values": {"FontName": name, "OriginalName": name.split("+", 1)[-1],
                                     "BaseName": name.split("+", 1)[-1], "FontType": found["type"],
                                     "Encoding": found["encoding"], "Embedding": embedding}}


def fonts_of(path):
    """The fonts that pdffonts lists, each name once."""
    try:
        listed = subprocess.run(["pdffonts", path], stdin=subprocess.DEVNULL, capture_output=True, timeout=30,
                                check=False)
    except subprocess.TimeoutExpired:
        return []
    fonts = {}
    for line in listed.stdout.decode("utf-8", errors="replace").splitlines()[2:]:
        font = font_of(line)
        if font:
            fonts.setdefault(font["name"], font)
    return list(fonts.values())
