"""Text of a document: how a value is escaped while the document is put together, and the form that
the XML library's serialiser gives the whole afterwards."""

from xml.parsers import expat


def escape(value):
    """A value as it goes into the text that is put together, in bodies and attributes alike."""
    for character, entity in (("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"), ('"', "&quot;"),
                              ("'", "&apos;")):
        value = value.replace(character, entity)
    return value


def start_tag(tag, attributes=()):
    return "<" + tag + "".join(f' {name}="{escape(value)}"' for name, value in attributes) + ">"


def element(tag, body="", attributes=()):
    """An element around a body that is text of the document already."""
    return start_tag(tag, attributes) + body + f"</{tag}>"


def serialise(assembled):
    """The assembled text as the XML library writes it after reading it: an element without content
    as one empty tag; of the attributes first the declaration of the element's own namespace, then
    the others by name; line ends inside a text as LF; a quotation mark as it is in a text and as an
    entity in an attribute. Raises expat.ExpatError if the text is not well formed."""
    pieces = []
    is_open = False  # the last start tag lacks its end, since the element may turn out empty

    def close_start():
        nonlocal is_open
        if is_open:
            pieces.append(">")
        is_open = False

    def on_start(tag, attributes):
        nonlocal is_open
        close_start()
        own = "xmlns" + (":" + tag.partition(":")[0] if ":" in tag else "")
        pairs = sorted(zip(attributes[::2], attributes[1::2]),
                       key=lambda pair: (pair[0] != own, pair[0]))
        pieces.append("<" + tag)
        for name, value in pairs:
            value = value.replace("&", "&amp;").replace("<", "&lt;").replace('"', "&quot;")
            pieces.append(f' {name}="{value}"')
        is_open = True

    def on_end(tag):
        nonlocal is_open
        pieces.append("/>" if is_open else f"</{tag}>")
        is_open = False

    def on_text(value):
        close_start()
        pieces.append(value.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;"))

    parser = expat.ParserCreate("UTF-8")
    parser.ordered_attributes = True
    parser.StartElementHandler = on_start
    parser.EndElementHandler = on_end
    parser.CharacterDataHandler = on_text
    parser.Parse(assembled.encode("utf-8"), True)
    return '<?xml version="1.0" encoding="UTF-8" standalone="no" ?>' + "".join(pieces)
