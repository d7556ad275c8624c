"""On which pages a layer has content."""
from pdf_pages import inherited
from pdf_text import entry, identity, is_array, is_dictionary

MOST_FORMS = 2000  # looked into for one page


def members_of(content):
    """The layers that optional content belongs to: itself, or those of a membership dictionary."""
    groups = entry(content, "/OCGs")
    candidates = list(groups) if is_array(groups) else [groups if is_dictionary(groups) else content]
    return {identity(group) for group in candidates if identity(group)}


def values_of(dictionary):
    return [dictionary[key] for key in dictionary.keys()] if is_dictionary(dictionary) else []


def layers_on(page):
    """What the page's marked content, forms, images and annotations refer to; forms within forms too."""
    found, seen = set(), set()
    annotations = entry(page, "/Annots")
    marked = [a for a in annotations if is_dictionary(a)] if is_array(annotations) else []
    waiting = [inherited(page, "/Resources")]
    while waiting and len(seen) < MOST_FORMS:
        resources = waiting.pop()
        for properties in values_of(entry(resources, "/Properties")):
            found |= members_of(properties)
        for drawn in values_of(entry(resources, "/XObject")):
            if is_dictionary(drawn) and identity(drawn) not in seen:
                seen.add(identity(drawn))
                marked.append(drawn)
                waiting.append(entry(drawn, "/Resources"))
    for drawn in marked:
        found |= members_of(drawn.get("/OC"))
    return found


def pages_by_layer(pages):
    """For the identity of each layer that is used, its page numbers."""
    numbers = {}
    for number, page in enumerate(pages, 1):
        for layer in layers_on(page):
            numbers.setdefault(layer, []).append(number)
    return numbers


def described(numbers):
    """The attribute as the document file has it."""
    hidden_and_read_only = 3
    return {"name": "Pages", "category": 0, "flags": hidden_and_read_only, "type": 8195,
            "description": "The pages that the layer has content on", "value": numbers}
