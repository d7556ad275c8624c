"""Checks what native Windows insists on when it loads a module, and Wine does not.

    native_binding_test.py FILE...

A program without a manifest has version 5.82 of COMCTL32. A module that it loads gets version 6 by a manifest of its
own (resource 2; a program's is 1). Even so the module takes by name only what version 5.82 gives by name, and the
rest by number: then it loads everywhere."""
import struct
import sys
import xml.etree.ElementTree as ElementTree

# What version 5.82 exports by name, of what this project may use.
IMAGE_LIST = """Add AddIcon AddMasked BeginDrag Copy Create Destroy DragEnter DragLeave DragMove DragShowNolock Draw
    DrawEx DrawIndirect Duplicate EndDrag GetBkColor GetDragImage GetIcon GetIconSize GetImageCount GetImageInfo
    LoadImageA LoadImageW Merge Read Remove Replace ReplaceIcon SetBkColor SetDragCursorImage SetIconSize
    SetImageCount SetOverlayImage Write"""
NAMED = {"ImageList_" + name for name in IMAGE_LIST.split()} | set("""CreateStatusWindowW CreateToolbarEx
    CreatePropertySheetPageW DestroyPropertySheetPage DrawStatusTextW FlatSB_SetScrollInfo InitCommonControls
    InitCommonControlsEx PropertySheetW _TrackMouseEvent""".split())

IMPORTS, RESOURCES = 1, 2  # places in the table of directories
MANIFEST_TYPE = 24
ASSEMBLY = "{urn:schemas-microsoft-com:asm.v1}"


class Image:
    """A 64-bit program or library."""

    def __init__(self, path):
        with open(path, "rb") as file:
            self.data = file.read()
        header = self.read("<I", 0x3C)[0]
        section_count, optional_size, flags = self.read("<2xH12xHH", header + 4)
        self.is_library = bool(flags & 0x2000)
        optional = header + 24
        assert self.read("<H", optional)[0] == 0x20B, "not 64-bit"
        self.directories = [self.read("<I", optional + 112 + 8 * i)[0] for i in range(16)]
        self.sections = [self.read("<8x4I", optional + optional_size + 40 * i) for i in range(section_count)]

    def read(self, layout, offset):
        return struct.unpack_from(layout, self.data, offset)

    def offset(self, address):
        """Of an address in memory, in the file."""
        for size, start, raw_size, raw in self.sections:
            if start <= address < start + max(size, raw_size):
                return raw + address - start
        raise ValueError(f"address {address:#x} is in no section")

    def text(self, address):
        start = self.offset(address)
        return self.data[start:self.data.index(b"\0", start)].decode("ascii")

    def imports(self, library):
        """The names and numbers taken from a library."""
        if not self.directories[IMPORTS]:
            return
        at = self.offset(self.directories[IMPORTS])
        while (descriptor := self.read("<5I", at))[3]:
            at += 20
            if self.text(descriptor[3]).lower() == library:
                yield from self.thunks(self.offset(descriptor[0] or descriptor[4]))

    def thunks(self, at):
        while value := self.read("<Q", at)[0]:
            yield value & 0xFFFF if value >> 63 else self.text(value + 2)
            at += 8

    def resource(self, resource_type, resource_id):
        """Its bytes in the first language; nothing without it."""
        if not self.directories[RESOURCES]:
            return b""
        base = self.offset(self.directories[RESOURCES])
        at = 0
        for wanted in (resource_type, resource_id, None):
            count = sum(self.read("<HH", base + at + 12))
            entries = [self.read("<II", base + at + 16 + 8 * i) for i in range(count)]
            found = [place for key, place in entries if wanted in (None, key)]
            if not found:
                return b""
            at = found[0] & 0x7FFFFFFF
        address, size = self.read("<II", base + at)
        return self.data[self.offset(address):self.offset(address) + size]


def asks_for_version_6(manifest):
    if not manifest:
        return False
    root = ElementTree.fromstring(manifest.strip(b"\0"))
    wanted = root.iterfind(f"{ASSEMBLY}dependency/{ASSEMBLY}dependentAssembly/{ASSEMBLY}assemblyIdentity")
    return any(each.get("name") == "Microsoft.Windows.Common-Controls" and each.get("version", "").startswith("6.")
               for each in wanted)


def complaints(image):
    names = {name for name in image.imports("comctl32.dll") if isinstance(name, str)}
    if names - NAMED:
        yield f"takes from COMCTL32 by name: {', '.join(sorted(names - NAMED))}"
    manifest_id = 2 if image.is_library else 1
    if not asks_for_version_6(image.resource(MANIFEST_TYPE, manifest_id)):
        yield f"has no manifest resource {manifest_id} that asks for version 6 of the common controls"


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    found = [f"{path} {complaint}" for path in sys.argv[1:] for complaint in complaints(Image(path))]
    sys.exit("\n".join(found) if found else 0)
