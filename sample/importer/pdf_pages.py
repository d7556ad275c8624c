"""Page sizes as they are displayed, and the annotations that the host shows as objects."""
from pdf_text import entry, is_array, is_dictionary, number_of, text_of

TWIPS_PER_POINT = 20
LETTER = (0.0, 0.0, 612.0, 792.0)
# The host's numbers of its object types.
TEXT_FIELD, CHECK_BOX, STICKY_NOTE, HIGHLIGHT, CHOICE, SIGNATURE = 6, 21, 22, 23, 24, 39
MOST_OBJECTS = 20000


def inherited(page, key):
    """A page attribute, looked up through the page's parents."""
    node = page
    for _ in range(64):  # broken files have circles of parents
        if not is_dictionary(node):
            return None
        value = node.get(key)
        if value is not None:
            return value
        node = node.get("/Parent")
    return None


def box_of(value):
    """Left, bottom, right, top of a box, or None when it holds no area."""
    if not is_array(value) or len(value) < 4:
        return None
    a, b, c, d = (number_of(value[i]) for i in range(4))
    left, right = sorted((a, c))
    bottom, top = sorted((b, d))
    return (left, bottom, right, top) if right - left > 0 and top - bottom > 0 else None


def visible_box(page):
    """What is shown of a page, and whether that is its crop box rather than the medium."""
    media = box_of(inherited(page, "/MediaBox")) or LETTER
    crop = box_of(inherited(page, "/CropBox"))
    if not crop:
        return media, False
    left, bottom = max(crop[0], media[0]), max(crop[1], media[1])
    right, top = min(crop[2], media[2]), min(crop[3], media[3])
    return ((left, bottom, right, top), True) if right > left and top > bottom else (media, False)


class PageGeometry:
    """A page's visible area with rotation and user unit applied; lengths in twips."""

    def __init__(self, page):
        self.box, self.cropped = visible_box(page)
        self.rotation = round(number_of(inherited(page, "/Rotate")) / 90) * 90 % 360
        unit = number_of(entry(page, "/UserUnit"), 1.0)
        self.scale = TWIPS_PER_POINT * (unit if 0 < unit <= 1000 else 1.0)
        left, bottom, right, top = self.box
        size = ((right - left), (top - bottom))
        if self.rotation in (90, 270):
            size = (size[1], size[0])
        self.width = max(1, round(size[0] * self.scale))
        self.height = max(1, round(size[1] * self.scale))

    def _displayed(self, x, y):
        left, bottom, right, top = self.box
        x, y = x - left, top - y
        width, height = right - left, top - bottom
        turned = {0: (x, y), 90: (height - y, x), 180: (width - x, height - y), 270: (y, width - x)}
        return turned[self.rotation]

    def rectangle(self, value):
        """An annotation's rectangle as left, top, right, bottom on the displayed page, or None."""
        box = box_of(value)
        if not box:
            return None
        corners = [self._displayed(box[0], box[1]), self._displayed(box[2], box[3])]
        xs, ys = (sorted(round(corner[i] * self.scale) for corner in corners) for i in (0, 1))
        return xs[0], ys[0], xs[1], ys[1]


def widget_type(kind, flags):
    push_button_or_radio = flags & (0x10000 | 0x8000)
    if kind == "/Btn":
        return None if push_button_or_radio else CHECK_BOX
    return {"/Tx": TEXT_FIELD, "/Ch": CHOICE, "/Sig": SIGNATURE}.get(kind)


def object_of(annotation, geometry, page_number):
    """One annotation as an object of the host, or None for kinds that the host does not know."""
    subtype = text_of(entry(annotation, "/Subtype"))
    if subtype == "/Widget":
        kind = text_of(inherited(annotation, "/FT"))
        kind_number = widget_type(kind, int(number_of(inherited(annotation, "/Ff"))))
    else:
        kind_number = {"/Text": STICKY_NOTE, "/Highlight": HIGHLIGHT}.get(subtype)
    rectangle = geometry.rectangle(entry(annotation, "/Rect"))
    if kind_number is None or rectangle is None:
        return None
    value = inherited(annotation, "/V") if subtype == "/Widget" else annotation.get("/Contents")
    values = dict(zip(("Left", "Top", "Right", "Bottom"), rectangle))
    if kind_number in (TEXT_FIELD, CHOICE, STICKY_NOTE, HIGHLIGHT):
        values["Text"] = text_of(value) if not is_array(value) else ""
    if kind_number == CHECK_BOX:
        values["Checked"] = text_of(annotation.get("/AS")) not in ("", "/Off")
    return {"type": kind_number, "name": text_of(inherited(annotation, "/T")), "page": page_number, "values": values}


def objects_of(page, geometry, page_number):
    annotations = entry(page, "/Annots")
    found = []
    if is_array(annotations):
        for annotation in list(annotations)[:MOST_OBJECTS]:
            described = object_of(annotation, geometry, page_number) if is_dictionary(annotation) else None
            if described:
                found.append(described)
    return found
