"""The document file that the reference host loads.

Layout, little endian: the magic bytes, the format version (u32), the length of the header (u32), the length of
the pictures (u64), the header (UTF-8 JSON), the pictures one after the other. The header's "pictures" list gives
each picture's place as an offset from the end of the header and a size. docs/host-contract.md describes the
header's members.
"""
import json
import os
import struct
import tempfile

MAGIC = b"VDOC\r\n\x1a\n"
VERSION = 1


def write(path, header, pictures):
    """Writes the file whole or not at all. `pictures` are paths of picture files, or None for a missing one."""
    places, offset = [], 0
    for picture in pictures:
        size = os.path.getsize(picture) if picture else 0
        places.append({"offset": offset, "size": size})
        offset += size
    text = json.dumps(dict(header, pictures=places), ensure_ascii=False, separators=(",", ":"))
    head = text.encode("utf-8", errors="replace")

    folder = os.path.dirname(os.path.abspath(path))
    handle, partial = tempfile.mkstemp(prefix=".import-", dir=folder)
    try:
        with os.fdopen(handle, "wb") as out:
            out.write(MAGIC + struct.pack("<IIQ", VERSION, len(head), offset) + head)
            for picture in pictures:
                if picture:
                    with open(picture, "rb") as source:
                        out.write(source.read())
        os.chmod(partial, 0o644)
        os.replace(partial, path)
    except BaseException:
        os.unlink(partial)
        raise
