#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the damaged projects in defects/ and the list of what opening each must give.

Every file is one sound project with one thing spoilt, so that a refusal can only come from that thing.
Run it without arguments from anywhere; it replaces the files of its own names and removes those it no longer makes.
It needs Pillow. The two JPEG pictures may differ by some bytes between Pillow versions, which changes no expectation.
"""

import io
import itertools
import string
import struct
import zlib
from pathlib import Path

from PIL import Image, ImageDraw

FOLDER = Path(__file__).resolve().parent / "defects"

DAMAGED = "-100"
WRONG_VERSION = "-200"
OPENS = "opens"


# ---------------------------------------------------------------- pictures

def encoded(image, kind):
    buffer = io.BytesIO()
    image.save(buffer, **kind)
    return buffer.getvalue()


def sea(stroke):
    image = Image.new("RGB", (240, 220), (176, 208, 224))
    if stroke:
        ImageDraw.Draw(image).line((30, 180, 210, 40), fill=(200, 40, 40), width=5)
    return image


JPEG = dict(format="JPEG", quality=60, optimize=True)
MAP = encoded(sea(False), JPEG)
BLOCK = encoded(sea(True), JPEG)


def png_chunk(name, data):
    return struct.pack(">I", len(data)) + name + data + struct.pack(">I", zlib.crc32(name + data))


PNG_START = b"\x89PNG\r\n\x1a\n"


def png_header(width, height):
    return PNG_START + png_chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))


def png_claiming(width, height):
    """A whole PNG by its chunks, with one line of pixels where the header promises many."""
    return (png_header(width, height) + png_chunk(b"IDAT", zlib.compress(b"\0" * 721, 9)) + png_chunk(b"IEND", b""))


def gif_claiming(width, height, image_width, image_height):
    """One image in two colours; its LZW data holds four pixels, whatever the headers say."""
    return (b"GIF89a" + struct.pack("<HHBBB", width, height, 0x80, 0, 0) + bytes((176, 208, 224, 200, 40, 40))
            + b"\x2c" + struct.pack("<HHHHB", 0, 0, image_width, image_height, 0)
            + b"\x02\x03\x04\x00\x05\x00" + b"\x3b")


def bmp_claiming(width, height):
    pixels = b"\xe0\xd0\xb0" * 16
    return (b"BM" + struct.pack("<IHHI", 54 + len(pixels), 0, 0, 54)
            + struct.pack("<IiiHHIIiiII", 40, width, height, 1, 24, 0, len(pixels), 2835, 2835, 0, 0) + pixels)


# ---------------------------------------------------------------- the sound project

HEAD = '<FILE Frames="1" Map="plain.jpg" Size="@MAP@" Version="2.0">'
COLLECTION = '<Collection><Item Name="set-1" Path="set-1"/></Collection>'
FRAME = '<Frame Number="1" Size="@BLOCK@" Label="Map1">'
DIV = '<Div><Backcolor>-1</Backcolor><Border>0</Border><BorderColor>16777215</BorderColor></Div>'
TITLE = ('<Title><Backcolor>-1</Backcolor><Forecolor>0</Forecolor><Border>0</Border><BorderColor>0</BorderColor>'
         '<FontName>Arial</FontName><FontSize>24</FontSize><FontBold>True</FontBold><FontItalic>False</FontItalic>'
         '<FontUnderline>False</FontUnderline><FontOverline>False</FontOverline>'
         '<FontStrikethourht>False</FontStrikethourht><Align>1</Align><Text>Friday</Text></Title>')
SUBTITLE = ('<Subtitle><Backcolor>-1</Backcolor><Forecolor>255</Forecolor><Border>0</Border>'
            '<BorderColor>0</BorderColor><FontName>Arial</FontName><FontSize>14</FontSize><FontBold>False</FontBold>'
            '<FontItalic>True</FontItalic><FontUnderline>False</FontUnderline><FontOverline>False</FontOverline>'
            '<FontStrikethourht>False</FontStrikethourht><Align>2</Align><Text>sunny</Text></Subtitle>')
HEADER_ITEM = ('<Item Backcolor="16777215" Forecolor="0" Fontname="Arial" Fontsize="8" Fontbold="True"'
               ' Fontitalic="False" Fontunderline="False" Fontoverline="False" Fontstrikethourht="False" Text="Wind"/>')
BODY_ITEM = ('<Detail Backcolor="16777215" Forecolor="0" Fontname="Arial" Fontsize="9" Fontbold="False"'
             ' Fontitalic="True" Fontunderline="False" Fontoverline="False" Fontstrikethourht="False" Text="light"/>')
SYMBOL_ITEM = ('<Item Filename="set-1\\sun.gif" Height="32" Width="48" Left="20" Top="40" Link="" Tooltip="sun"'
               ' Note=""/>')
LABEL_ITEM = ('<Item Backcolor="-1" Forecolor="0" Border="1" Bordercolor="0" Fontname="Arial" Fontsize="12"'
              ' Fontbold="False" Fontitalic="False" Fontoverline="False" Fontstrikethourht="False"'
              ' Fontunderline="False" Height="18" Width="39" Left="60" Top="80" Text="21 C" Note=""/>')
LISTS = (f'<Header>{HEADER_ITEM}</Header><Body>{BODY_ITEM}</Body><Symbol>{SYMBOL_ITEM}</Symbol>'
         f'<Label>{LABEL_ITEM}</Label>')
SOUND = f'{HEAD}{COLLECTION}<Frames>{FRAME}{DIV}{TITLE}{SUBTITLE}{LISTS}</Frame></Frames></FILE>'

SECOND_FRAME = f'<Frame Number="2" Size="@BLOCK@" Label="Map2">{DIV}{TITLE}{SUBTITLE}</Frame>'

expected = {}


def write(name, result, text=SOUND, data=MAP + BLOCK, map_size=None, block_size=None):
    """`text` may be bytes, which go out as they are; in a str the size marks are filled in. No `data`: no data file."""
    assert name not in expected, name
    if isinstance(text, str):
        map_size = len(MAP) if map_size is None else map_size
        block_size = len(BLOCK) if block_size is None else block_size
        text = text.replace("@MAP@", str(map_size)).replace("@BLOCK@", str(block_size)).encode("utf-8")
    (FOLDER / (name + ".nvpf")).write_bytes(text)
    if data is not None:
        (FOLDER / (name + ".nvpx")).write_bytes(data)
    expected[name] = result


def spoilt(old, new, text=SOUND):
    """`text` with its one `old` replaced; `old` being there twice or not at all is a mistake in this script."""
    assert text.count(old) == 1, (text.count(old), old)
    return text.replace(old, new)


def spoilt_in(part, old, new):
    """The sound project with `old` replaced inside one of its parts."""
    return spoilt(part, spoilt(old, new, part))


def sized_bytes(text):
    return text.replace("@MAP@", str(len(MAP))).replace("@BLOCK@", str(len(BLOCK))).encode("utf-8")


# ---------------------------------------------------------------- the file as XML

def xml_damage():
    sound = sized_bytes(SOUND)

    write("sound", OPENS)
    write("empty-file", DAMAGED, b"")
    write("only-whitespace", DAMAGED, b" \r\n\t \n")
    write("not-xml", DAMAGED, b"Nubivane project\r\nFrames=1\r\nMap=plain.jpg\r\n")
    write("not-xml-but-a-picture", DAMAGED, MAP)
    write("html-page", DAMAGED, b"<html><head><title>404</title></head><body><p>Not found</p></body></html>")

    write("truncated-in-root-tag", DAMAGED, sound[:sound.index(b" Size=")])
    write("truncated-in-attribute", DAMAGED, sound[:sound.index(b"sun.gif") + 3])
    write("truncated-in-tag-name", DAMAGED, sound[:sound.index(b"<Subtitle>") + 4])
    write("truncated-in-text", DAMAGED, sound[:sound.index(b"Friday") + 3])
    write("truncated-in-entity", DAMAGED, sized_bytes(spoilt(">Friday<", ">Fri &amp; day<"))
          .partition(b"&am")[0] + b"&am")
    write("truncated-after-frame", DAMAGED, sound[:sound.index(b"</Frames>")])
    write("truncated-before-end-tag", DAMAGED, sound[:sound.index(b"</FILE>")])
    write("truncated-in-end-tag", DAMAGED, sound[:-1])

    write("crossed-tags", DAMAGED, spoilt("<Text>Friday</Text></Title>", "<Text>Friday</Title></Text>"))
    write("end-tag-of-other-case", DAMAGED, spoilt("</Title>", "</title>"))
    write("end-tag-without-start", DAMAGED, spoilt("<Frames>", "</Div><Frames>"))
    write("two-roots", DAMAGED, SOUND + SOUND)
    write("text-before-root", DAMAGED, "x" + SOUND)
    write("text-after-root", DAMAGED, SOUND + "x")
    write("blank-before-declaration", DAMAGED, ' <?xml version="1.0"?>' + SOUND)
    write("duplicate-attribute", DAMAGED, spoilt(' Label="Map1">', ' Label="Map1" Label="Map2">'))
    write("attribute-without-quotes", DAMAGED, spoilt('Number="1"', "Number=1"))
    write("attribute-without-value", DAMAGED, spoilt('Number="1"', "Number"))
    write("attributes-without-blank-between", DAMAGED, spoilt('Number="1" Size', 'Number="1"Size'))
    write("less-than-in-attribute", DAMAGED, spoilt('Text="21 C"', 'Text="a < b"'))
    write("ampersand-alone", DAMAGED, spoilt(">Friday<", ">Friday & Saturday<"))
    write("cdata-end-in-text", DAMAGED, spoilt(">Friday<", ">Friday]]>Saturday<"))
    write("cdata-not-closed", DAMAGED, spoilt(">Friday<", "><![CDATA[Friday<"))
    write("comment-not-closed", DAMAGED, spoilt("<Frames>", "<!-- <Frames>"))
    write("double-hyphen-in-comment", DAMAGED, spoilt("<Frames>", "<!-- a -- b --><Frames>"))
    write("malformed-with-version-1.0", DAMAGED, spoilt('Version="2.0"', 'Version="1.0"')[:-len("</FILE>")])

    write("bad-utf8", DAMAGED, sound.replace(b"Friday", b"Fri\xc3\x28day"))
    write("bad-utf8-overlong", DAMAGED, sound.replace(b"Friday", b"Fri\xc0\xafday"))
    write("bad-utf8-surrogate", DAMAGED, sound.replace(b"Friday", b"Fri\xed\xa0\x80day"))
    write("bad-utf8-in-attribute", DAMAGED, sound.replace(b"21 C", b"21 \xb0C"))
    write("windows-1252-not-declared", DAMAGED, sound.replace(b"sunny", b"Per\xf9"))
    write("nul-byte-in-text", DAMAGED, sound.replace(b"Friday", b"Fri\0day"))
    write("nul-byte-in-attribute", DAMAGED, sound.replace(b'Label="Map1"', b'Label="Map\x001"'))
    write("nul-byte-after-root", DAMAGED, sound + b"\0")
    write("control-character-in-text", DAMAGED, sound.replace(b"Friday", b"Fri\x01day"))
    write("control-character-in-attribute", DAMAGED, sound.replace(b"21 C", b"21\x1fC"))
    write("control-character-by-reference", DAMAGED, spoilt(">Friday<", ">Fri&#4;day<"))
    write("nul-by-reference", DAMAGED, spoilt(">Friday<", ">Fri&#0;day<"))
    write("surrogate-by-reference", DAMAGED, spoilt(">Friday<", ">Fri&#xD800;day<"))
    write("character-ffff-by-reference", DAMAGED, spoilt(">Friday<", ">Fri&#xFFFF;day<"))
    write("character-beyond-unicode", DAMAGED, spoilt(">Friday<", ">Fri&#x110000;day<"))

    write("encoding-unknown", DAMAGED, '<?xml version="1.0" encoding="x-weather"?>' + SOUND)
    write("utf16-declared-utf8-bytes", DAMAGED, '<?xml version="1.0" encoding="UTF-16"?>' + SOUND)
    write("utf16-odd-byte-count", DAMAGED, b"\xff\xfe" + SOUND.encode("utf-16-le")[:-1])
    write("utf16-with-bom", DAMAGED, b"\xff\xfe" + sound.decode().encode("utf-16-le"))
    write("utf8-bom", OPENS, b"\xef\xbb\xbf" + sound)
    write("declaration-utf8", OPENS, '<?xml version="1.0" encoding="UTF-8"?>\r\n' + SOUND)
    write("windows-1252-declared", OPENS, b'<?xml version="1.0" encoding="windows-1252"?>'
          + sound.replace(b"sunny", b"Per\xf9, 20 \x80"))
    write("line-breaks-between-elements", OPENS, SOUND.replace("><", ">\r\n  <"))
    write("comments-and-instructions-between", OPENS,
          "<!-- before --><?tool one?>"
          + spoilt("<Frames>", "<!-- a > b --><?tool two?><Frames><!-- three -->")
          + "<!-- after --><?tool four?>")
    write("comment-among-title-values", OPENS, spoilt_in(TITLE, "<Forecolor>", "<!-- text colour --><Forecolor>"))
    write("comment-inside-value", OPENS, spoilt("<FontSize>24<", "<FontSize>2<!-- and -->4<"))
    write("cdata-text", OPENS, spoilt(">Friday<", "><![CDATA[Friday < Saturday & more]]><"))
    write("character-references", OPENS, spoilt(">Friday<", ">&#70;r&#x69;day &#x1F600;<"))


def entities():
    laughs = '<!ENTITY a0 "sun ">' + "".join(
        f'<!ENTITY a{i} "{f"&a{i - 1};" * 10}">' for i in range(1, 10))
    write("entity-bomb", DAMAGED, f"<!DOCTYPE FILE [{laughs}]>" + spoilt(">Friday<", ">&a9;<"))
    write("entity-bomb-in-attribute", DAMAGED, f"<!DOCTYPE FILE [{laughs}]>" + spoilt('"21 C"', '"&a9;"'))
    long_text = "sun " * 5000
    write("entity-bomb-quadratic", DAMAGED,
          f'<!DOCTYPE FILE [<!ENTITY a "{long_text}">]>' + spoilt(">Friday<", ">" + "&a;" * 5000 + "<"))
    write("entity-refers-to-itself", DAMAGED,
          '<!DOCTYPE FILE [<!ENTITY a "&b;"><!ENTITY b "&a;">]>' + spoilt(">Friday<", ">&a;<"))
    write("entity-declared-and-used", DAMAGED,
          '<!DOCTYPE FILE [<!ENTITY day "Friday">]>' + spoilt(">Friday<", ">&day;<"))
    write("entity-declared-used-in-attribute", DAMAGED,
          '<!DOCTYPE FILE [<!ENTITY day "Friday">]>' + spoilt('Label="Map1"', 'Label="&day;"'))
    write("entity-declared-not-used", DAMAGED, '<!DOCTYPE FILE [<!ENTITY day "Friday">]>' + SOUND)
    write("entity-not-declared", DAMAGED, spoilt(">Friday<", ">Fri&nbsp;day<"))
    write("entity-not-declared-in-attribute", DAMAGED, spoilt('"21 C"', '"21 &deg;C"'))
    write("external-entity", DAMAGED,
          '<!DOCTYPE FILE [<!ENTITY host SYSTEM "file:///etc/hostname">]>' + spoilt(">Friday<", ">&host;<"))
    write("external-entity-beside-the-file", DAMAGED,
          '<!DOCTYPE FILE [<!ENTITY other SYSTEM "sound.nvpf">]>' + spoilt(">Friday<", ">&other;<"))
    write("external-parameter-entity", DAMAGED,
          '<!DOCTYPE FILE [<!ENTITY % more SYSTEM "more.dtd"> %more;]>' + SOUND)
    write("external-dtd-entity-used", DAMAGED, '<!DOCTYPE FILE SYSTEM "project.dtd">' + spoilt(">Friday<", ">&day;<"))
    write("external-dtd-only", OPENS, '<!DOCTYPE FILE SYSTEM "project.dtd">' + SOUND)
    write("doctype-without-subset", OPENS, "<!DOCTYPE FILE>" + SOUND)


def bulk():
    write("nested-20000-levels", DAMAGED, spoilt("</Frame>", "<a>" * 20000 + "</a>" * 20000 + "</Frame>"))
    letters = string.ascii_letters
    inner = letters + string.digits
    names = itertools.chain(letters, map("".join, itertools.product(letters, inner)),
                            map("".join, itertools.product(letters, inner, inner)))
    # the shortest names there are, so that the file stays small
    many = "".join(f' {name}=""' for name in itertools.islice(names, 80000))
    write("attributes-80000-on-one-element", DAMAGED, spoilt(' Label="Map1">', f' Label="Map1"{many}>'))
    write("elements-60000-empty-in-frame", OPENS, spoilt("</Frame>", "<a/>" * 60000 + "</Frame>"))
    write("elements-20000-empty-in-frames", DAMAGED, spoilt("</Frames>", "<a/>" * 20000 + "</Frames>"))
    write("attribute-of-200000-characters", OPENS, spoilt('Text="21 C"', f'Text="{"x" * 200000}"'))


# ---------------------------------------------------------------- root, version, counts

def root_and_version():
    write("no-file-element", DAMAGED, SOUND.replace("FILE", "PROJECT"))
    write("root-in-lower-case", DAMAGED, SOUND.replace("FILE", "file"))
    write("root-only", DAMAGED, HEAD + "</FILE>")
    write("file-nested-in-other-root", OPENS, "<Archive><Note>old</Note>" + SOUND + "</Archive>")
    write("file-nested-deep", OPENS, "<a><b><c>" + SOUND + "</c></b></a>")

    write("root-without-attributes", WRONG_VERSION, spoilt(HEAD, "<FILE>"))
    write("root-three-attributes", WRONG_VERSION, spoilt(' Version="2.0"', ""))
    write("root-three-attributes-version-kept", WRONG_VERSION, spoilt(' Size="@MAP@"', "", HEAD) + SOUND[len(HEAD):])
    write("root-fifth-attribute-before-version", WRONG_VERSION, spoilt(' Version="2.0"', ' Author="me" Version="2.0"'))
    for name, value in (("1.0", "1.0"), ("2.00", "2.00"), ("2", "2"), ("3.0", "3.0"), ("empty", ""),
                        ("with-blanks", " 2.0 "), ("with-plus", "+2.0"), ("with-comma", "2,0")):
        write(f"version-{name}", WRONG_VERSION, spoilt('Version="2.0"', f'Version="{value}"'))
    write("version-1.0-frames-not-a-number", WRONG_VERSION,
          spoilt('Version="2.0"', 'Version="1.0"', spoilt('Frames="1"', 'Frames="one"')))
    write("version-1.0-map-outside", WRONG_VERSION,
          spoilt('Version="2.0"', 'Version="1.0"', spoilt('"plain.jpg"', '"../plain.jpg"')))
    write("version-1.0-no-frame", WRONG_VERSION,
          f'{HEAD}<Collection/><Frames/></FILE>'.replace('"2.0"', '"1.0"'))
    write("version-1.0-data-file-missing", DAMAGED, spoilt('Version="2.0"', 'Version="1.0"'), None)
    write("root-attributes-under-other-names", OPENS,
          spoilt(HEAD, '<FILE a="1" b="plain.jpg" c="@MAP@" d="2.0">'))
    write("root-fifth-attribute-at-the-end", OPENS, spoilt('Version="2.0"', 'Version="2.0" Author="me"'))

    for name, value in (("not-a-number", "one"), ("empty", ""), ("negative", "-1"), ("99999999999", "99999999999"),
                        ("with-blank-inside", "1 2"), ("with-unit", "1x")):
        write(f"frames-{name}", DAMAGED, spoilt('Frames="1"', f'Frames="{value}"'))
    write("frames-zero", DAMAGED, spoilt('Frames="1"', 'Frames="0"'))
    write("frames-zero-no-frame", DAMAGED, f'{HEAD}<Collection/><Frames/></FILE>'.replace('Frames="1"', 'Frames="0"'))
    write("frames-fewer-than-elements", DAMAGED, spoilt("</Frames>", SECOND_FRAME + "</Frames>"),
          MAP + BLOCK + BLOCK)
    write("frames-1000000-one-element", OPENS, spoilt('Frames="1"', 'Frames="1000000"'))
    write("frames-five-one-element", OPENS, spoilt('Frames="1"', 'Frames="5"'))
    write("frames-with-fraction", OPENS, spoilt('Frames="1"', 'Frames="1.9"'))
    write("frames-with-blanks-and-sign", OPENS, spoilt('Frames="1"', 'Frames=" +1 "'))
    write("no-frame-element", DAMAGED, f"{HEAD}{COLLECTION}<Frames/></FILE>")
    write("no-frames-element", DAMAGED, f"{HEAD}{COLLECTION}</FILE>")
    write("frame-outside-frames", DAMAGED,
          f"{HEAD}{COLLECTION}{FRAME}{DIV}{TITLE}{SUBTITLE}{LISTS}</Frame></FILE>")


def frames():
    write("number-missing", DAMAGED, spoilt('Number="1" ', ""))
    for name, value in (("zero", "0"), ("above-frames", "2"), ("negative", "-1"), ("not-a-number", "first"),
                        ("empty", ""), ("40000", "40000"), ("99999999999", "99999999999")):
        write(f"number-{name}", DAMAGED, spoilt('Number="1"', f'Number="{value}"'))
    write("number-with-fraction", OPENS, spoilt('Number="1"', 'Number="1.5"'))
    two = spoilt('Frames="1"', 'Frames="2"', spoilt("</Frames>", SECOND_FRAME + "</Frames>"))
    write("two-frames", OPENS, two, MAP + BLOCK + BLOCK)
    write("number-twice-the-same", DAMAGED, spoilt('Number="2"', 'Number="1"', two), MAP + BLOCK + BLOCK)
    write("number-leaves-a-frame-without-block", DAMAGED,
          spoilt('Number="1"', 'Number="3"', spoilt('Frames="1"', 'Frames="3"')))
    write("second-frame-block-no-picture", DAMAGED, two, MAP + BLOCK + b"x" * len(BLOCK))
    write("second-frame-number-not-a-number", DAMAGED, spoilt('Number="2"', 'Number="II"', two), MAP + BLOCK + BLOCK)

    write("frame-without-attributes", DAMAGED, spoilt(FRAME, "<Frame>"))
    write("frame-without-label", DAMAGED, spoilt(' Label="Map1"', ""))
    write("frame-under-another-name", OPENS,
          spoilt("</Frame></Frames>", "</Page></Frames>", spoilt("<Frame Number", "<Page Number")))
    write("frame-attributes-under-other-names", OPENS, spoilt(FRAME, '<Frame a="1" b="@BLOCK@" c="Map1">'))
    write("frame-extra-attribute-at-the-end", OPENS, spoilt(' Label="Map1">', ' Label="Map1" Colour="red">'))
    write("frame-extra-attribute-in-front", DAMAGED, spoilt('<Frame Number', '<Frame Colour="red" Number'))
    write("frame-without-any-child", OPENS, f"{HEAD}{COLLECTION}<Frames>{FRAME}</Frame></Frames></FILE>")
    write("frame-with-unknown-child", OPENS, spoilt("</Frame>", '<Remark a="b"><c>d</c></Remark></Frame>'))
    write("frame-subtitle-before-title", OPENS, spoilt(TITLE + SUBTITLE, SUBTITLE + TITLE))
    write("frame-lists-before-texts", OPENS, spoilt(DIV + TITLE + SUBTITLE + LISTS, LISTS + SUBTITLE + TITLE + DIV))
    write("title-twice", OPENS, spoilt("</Title>", "</Title>" + TITLE.replace("Friday", "Saturday")))
    write("title-twice-second-damaged", OPENS, spoilt("</Title>", "</Title><Title/>"))
    write("header-twice", OPENS, spoilt("</Header>", f"</Header><Header>{HEADER_ITEM}</Header>"))
    write("collection-missing", OPENS, spoilt(COLLECTION, ""))
    write("collection-after-frames", OPENS, spoilt("</FILE>", COLLECTION + "</FILE>", spoilt(COLLECTION, "")))
    write("collection-item-without-attributes", OPENS, spoilt('<Item Name="set-1" Path="set-1"/>', "<Item/>"))
    write("collection-item-empty-name", OPENS, spoilt('Name="set-1"', 'Name=""'))
    write("collection-item-twice", OPENS, spoilt("</Collection>", '<Item Name="set-1" Path="set-1"/></Collection>'))


# ---------------------------------------------------------------- values

def values():
    for part, tag in ((DIV, "Div"), (TITLE, "Title"), (SUBTITLE, "Subtitle")):
        name = tag.lower()
        write(f"{name}-without-children", DAMAGED, spoilt(part, f"<{tag}/>"))
        write(f"{name}-one-child", DAMAGED, spoilt(part, f"<{tag}><Backcolor>-1</Backcolor></{tag}>"))
    write("div-last-child-missing", DAMAGED, spoilt_in(DIV, "<BorderColor>16777215</BorderColor>", ""))
    write("title-last-child-missing", DAMAGED, spoilt_in(TITLE, "<Text>Friday</Text>", ""))
    write("subtitle-last-child-missing", DAMAGED, spoilt_in(SUBTITLE, "<Text>sunny</Text>", ""))
    write("title-child-in-front", DAMAGED, spoilt_in(TITLE, "<Title>", "<Title><Shadow>True</Shadow>"))
    write("title-child-at-the-end", OPENS, spoilt_in(TITLE, "</Title>", "<Shadow>True</Shadow></Title>"))
    write("title-children-under-other-names", OPENS, spoilt_in(TITLE, "<Align>1</Align>", "<Alignment>1</Alignment>"))
    write("div-child-at-the-end", OPENS, spoilt_in(DIV, "</Div>", "<Shadow>True</Shadow></Div>"))

    write("div-border-40000", DAMAGED, spoilt_in(DIV, "<Border>0<", "<Border>40000<"))
    write("div-border-32768", DAMAGED, spoilt_in(DIV, "<Border>0<", "<Border>32768<"))
    write("div-border-32767", OPENS, spoilt_in(DIV, "<Border>0<", "<Border>32767<"))
    write("div-border-minus-32769", DAMAGED, spoilt_in(DIV, "<Border>0<", "<Border>-32769<"))
    write("div-border-minus-32768", OPENS, spoilt_in(DIV, "<Border>0<", "<Border>-32768<"))
    write("div-border-empty", DAMAGED, spoilt_in(DIV, "<Border>0<", "<Border><"))
    write("div-border-not-a-number", DAMAGED, spoilt_in(DIV, "<Border>0<", "<Border>thin<"))
    write("div-colour-4294967296", DAMAGED, spoilt_in(DIV, "16777215", "4294967296"))
    write("div-colour-2147483648", DAMAGED, spoilt_in(DIV, "16777215", "2147483648"))
    write("div-colour-2147483647", OPENS, spoilt_in(DIV, "16777215", "2147483647"))
    write("div-colour-minus-2147483648", OPENS, spoilt_in(DIV, "16777215", "-2147483648"))
    write("div-colour-with-k", DAMAGED, spoilt_in(DIV, "16777215", "K16777215"))
    write("div-colour-as-web-colour", DAMAGED, spoilt_in(DIV, "16777215", "#FFFFFF"))
    write("number-with-100-digits", DAMAGED, spoilt_in(DIV, "16777215", "1" * 100))
    write("number-only-a-sign", DAMAGED, spoilt_in(DIV, "16777215", "-"))
    write("number-two-signs", DAMAGED, spoilt_in(DIV, "16777215", "--1"))
    write("number-in-other-digits", DAMAGED, spoilt_in(DIV, "16777215", "\u0661\u0662"))
    write("number-with-blanks-and-sign", OPENS, spoilt_in(DIV, "16777215", " +12 "))

    write("title-fontsize-abc", DAMAGED, spoilt_in(TITLE, ">24<", ">abc<"))
    write("title-fontsize-32768", DAMAGED, spoilt_in(TITLE, ">24<", ">32768<"))
    write("title-align-not-a-number", DAMAGED, spoilt_in(TITLE, "<Align>1<", "<Align>left<"))
    write("title-border-40000", DAMAGED, spoilt_in(TITLE, "<Border>0<", "<Border>40000<"))
    write("title-colour-not-a-number", DAMAGED, spoilt_in(TITLE, "<Forecolor>0<", "<Forecolor>red<"))
    write("title-boolean-maybe", DAMAGED, spoilt_in(TITLE, "<FontBold>True<", "<FontBold>maybe<"))
    write("title-boolean-empty", DAMAGED, spoilt_in(TITLE, "<FontBold>True<", "<FontBold><"))
    write("subtitle-boolean-maybe", DAMAGED, spoilt_in(SUBTITLE, "<FontItalic>True<", "<FontItalic>maybe<"))
    write("subtitle-fontsize-empty", DAMAGED, spoilt_in(SUBTITLE, ">14<", "><"))

    for part, name, size in ((HEADER_ITEM, "header", "8"), (BODY_ITEM, "body", "9")):
        tag = part[1:part.index(" ")]
        last = part[part.index(" Text="):-2]
        write(f"{name}-item-without-attributes", DAMAGED, spoilt(part, f"<{tag}/>"))
        write(f"{name}-item-last-attribute-missing", DAMAGED, spoilt_in(part, last, ""))
        write(f"{name}-item-first-attribute-missing", DAMAGED, spoilt_in(part, ' Backcolor="16777215"', ""))
        write(f"{name}-item-fontsize-abc", DAMAGED, spoilt_in(part, f'Fontsize="{size}"', 'Fontsize="abc"'))
        write(f"{name}-item-fontsize-40000", DAMAGED, spoilt_in(part, f'Fontsize="{size}"', 'Fontsize="40000"'))
        write(f"{name}-item-boolean-maybe", DAMAGED, spoilt_in(part, 'Fontoverline="False"', 'Fontoverline="maybe"'))
        write(f"{name}-item-colour-4294967296", DAMAGED, spoilt_in(part, 'Forecolor="0"', 'Forecolor="4294967296"'))
        write(f"{name}-item-extra-attribute-at-the-end", OPENS, spoilt_in(part, last, last + ' Font="x"'))
        write(f"{name}-item-under-another-name", OPENS, spoilt_in(part, f"<{tag} ", "<Cell "))
        write(f"{name}-empty", OPENS, spoilt(part, ""))

    write("symbol-item-without-attributes", DAMAGED, spoilt(SYMBOL_ITEM, "<Item/>"))
    write("symbol-item-only-filename", DAMAGED, spoilt(SYMBOL_ITEM, '<Item Filename="set-1\\sun.gif"/>'))
    write("symbol-item-note-missing", DAMAGED, spoilt_in(SYMBOL_ITEM, ' Note=""', ""))
    write("symbol-item-extra-attribute-at-the-end", OPENS, spoilt_in(SYMBOL_ITEM, ' Note=""', ' Note="" Angle="90"'))
    write("symbol-height-not-a-number", DAMAGED, spoilt_in(SYMBOL_ITEM, 'Height="32"', 'Height="tall"'))
    write("symbol-left-empty", DAMAGED, spoilt_in(SYMBOL_ITEM, 'Left="20"', 'Left=""'))
    write("symbol-top-4294967296", DAMAGED, spoilt_in(SYMBOL_ITEM, 'Top="40"', 'Top="4294967296"'))
    write("symbol-width-negative", OPENS, spoilt_in(SYMBOL_ITEM, 'Width="48"', 'Width="-48"'))
    write("symbol-missing-height-not-a-number", OPENS,
          spoilt_in(SYMBOL_ITEM, 'sun.gif" Height="32"', 'hail.gif" Height="tall"'))
    for name, value in (("not-there", "set-1\\hail.gif"), ("empty", ""), ("a-folder", "set-1"),
                        ("outside-by-backslashes", "..\\..\\x.gif"),
                        ("outside-by-slashes", "set-1/../../x.gif"), ("absolute", "/etc/passwd"),
                        ("absolute-with-drive", "C:\\Windows\\x.gif"), ("climbs-to-maps", "..\\Maps\\plain.jpg"),
                        ("only-dots", ".."), ("with-line-feed", "set-1\\sun&#10;.gif"),
                        ("of-3000-characters", "set-1\\" + "s" * 3000 + ".gif")):
        write(f"symbol-filename-{name}", OPENS, spoilt_in(SYMBOL_ITEM, "set-1\\sun.gif", value))

    write("label-item-without-attributes", DAMAGED, spoilt(LABEL_ITEM, "<Item/>"))
    write("label-item-note-missing", DAMAGED, spoilt_in(LABEL_ITEM, ' Note=""', ""))
    write("label-item-border-missing", DAMAGED, spoilt_in(LABEL_ITEM, ' Border="1"', ""))
    write("label-item-extra-attribute-at-the-end", OPENS, spoilt_in(LABEL_ITEM, ' Note=""', ' Note="" Angle="90"'))
    write("label-border-40000", DAMAGED, spoilt_in(LABEL_ITEM, 'Border="1"', 'Border="40000"'))
    write("label-border-not-a-number", DAMAGED, spoilt_in(LABEL_ITEM, 'Border="1"', 'Border="thin"'))
    write("label-fontsize-abc", DAMAGED, spoilt_in(LABEL_ITEM, 'Fontsize="12"', 'Fontsize="abc"'))
    write("label-fontsize-40000", OPENS, spoilt_in(LABEL_ITEM, 'Fontsize="12"', 'Fontsize="40000"'))
    write("label-fontsize-4294967296", DAMAGED, spoilt_in(LABEL_ITEM, 'Fontsize="12"', 'Fontsize="4294967296"'))
    write("label-boolean-maybe", DAMAGED, spoilt_in(LABEL_ITEM, 'Fontunderline="False"', 'Fontunderline="maybe"'))
    write("label-colour-4294967296", DAMAGED, spoilt_in(LABEL_ITEM, 'Bordercolor="0"', 'Bordercolor="4294967296"'))
    write("label-height-99999999999", DAMAGED, spoilt_in(LABEL_ITEM, 'Height="18"', 'Height="99999999999"'))
    write("label-attributes-sorted", DAMAGED, spoilt(LABEL_ITEM, (
        '<Item Backcolor="-1" Border="1" Bordercolor="0" Fontbold="False" Fontitalic="False" Fontname="Arial"'
        ' Fontoverline="False" Fontsize="12" Fontstrikethourht="False" Fontunderline="False" Forecolor="0"'
        ' Height="18" Left="60" Note="" Text="21 C" Top="80" Width="39"/>')))


# ---------------------------------------------------------------- map name

def map_names():
    for name, value in (("empty", ""), ("dot", "."), ("dot-dot", ".."), ("parent-by-slash", "../x.jpg"),
                        ("parent-by-backslash", "..\\x.jpg"), ("folder-by-slash", "a/b.jpg"),
                        ("folder-by-backslash", "a\\b.jpg"), ("folder-and-back", "a/../x.jpg"),
                        ("drive", "C:x.jpg"), ("drive-path", "C:\\x.jpg"), ("absolute", "/tmp/x.jpg"),
                        ("server-path", "\\\\server\\share\\x.jpg"), ("ends-in-slash", "x.jpg/"),
                        ("with-line-feed", "plain&#10;.jpg"), ("with-tab", "plain&#9;.jpg"),
                        ("of-300-characters", "m" * 296 + ".jpg")):
        write(f"map-{name}", DAMAGED, spoilt('Map="plain.jpg"', f'Map="{value}"'))
    write("map-with-blanks-and-accents", OPENS, spoilt('Map="plain.jpg"', 'Map="Côte d\'Azur (2).jpg"'))
    write("map-two-dots-inside-the-name", OPENS, spoilt('Map="plain.jpg"', 'Map="a..b.jpg"'))


# ---------------------------------------------------------------- data file

def data_file():
    for name, value in (("negative", "-1"), ("not-a-number", "big"), ("empty", ""), ("past-the-data", "100000"),
                        ("2147483647", "2147483647"), ("2147483648", "2147483648"), ("99999999999", "99999999999")):
        write(f"map-size-{name}", DAMAGED, map_size=value)
        write(f"frame-size-{name}", DAMAGED, block_size=value)
    write("frame-size-zero", DAMAGED, block_size=0)
    write("frame-size-one-byte-past-the-data", DAMAGED, block_size=len(BLOCK) + 1)
    write("map-size-shifts-the-frame-block", DAMAGED, map_size=len(MAP) - 7, block_size=len(BLOCK))
    write("sizes-sum-overflow", DAMAGED, map_size=2147483647, block_size=2147483647)
    two = spoilt('Frames="1"', 'Frames="2"', spoilt("</Frames>", SECOND_FRAME + "</Frames>"))
    write("sizes-sum-wraps-to-small", DAMAGED,
          spoilt('Number="2" Size="@BLOCK@"', 'Number="2" Size="2147483647"',
                 spoilt('Number="1" Size="@BLOCK@"', 'Number="1" Size="2147483647"', two)), MAP + BLOCK + BLOCK)
    write("sizes-negative-cancel-out", DAMAGED,
          spoilt('Number="2" Size="@BLOCK@"', f'Number="2" Size="{-len(BLOCK)}"', two), MAP + BLOCK)
    write("data-file-missing", DAMAGED, data=None)
    write("data-file-empty", DAMAGED, data=b"")
    write("data-file-only-the-map", DAMAGED, data=MAP)
    write("data-file-one-byte-short", DAMAGED, data=(MAP + BLOCK)[:-1])
    write("data-file-with-tail", OPENS, data=MAP + BLOCK + b"tail of an older, longer file" * 20)

    def block(name, data, result=DAMAGED, text=SOUND):
        write(name, result, text, MAP + data, block_size=len(data))

    png_map = spoilt('Map="plain.jpg"', 'Map="plain.png"')
    block("block-no-picture", b"This is a text and no picture.\r\n" * 10)
    block("block-zero-bytes", bytes(500))
    block("block-one-byte", b"\xff")
    block("block-jpg-first-bytes-only", BLOCK[:20])
    block("block-png-whole", encoded(sea(True), dict(format="PNG", optimize=True)), OPENS, text=png_map)
    block("block-png-header-only", png_header(240, 220), text=png_map)
    block("block-png-cut-in-pixels", encoded(sea(True), dict(format="PNG"))[:-200], text=png_map)
    block("block-png-60000-by-60000", png_claiming(60000, 60000), text=png_map)
    block("block-png-under-jpg-name-60000-by-60000", png_claiming(60000, 60000))
    block("block-png-zero-width", png_claiming(0, 220), text=png_map)
    block("block-png-2147483647-by-1", png_claiming(2147483647, 1), text=png_map)
    gif_map = spoilt('Map="plain.jpg"', 'Map="plain.gif"')
    block("block-gif-of-two-by-two", gif_claiming(2, 2, 2, 2), OPENS, text=gif_map)
    block("block-gif-screen-60000-by-60000", gif_claiming(60000, 60000, 2, 2), text=gif_map)
    block("block-gif-image-60000-by-60000", gif_claiming(60000, 60000, 60000, 60000), text=gif_map)
    block("block-gif-header-only", gif_claiming(240, 220, 240, 220)[:13], text=gif_map)
    block("block-bmp-60000-by-60000", bmp_claiming(60000, 60000))
    block("block-bmp-height-lowest-integer", bmp_claiming(240, -2147483648))
    write("map-block-no-picture", OPENS, data=b"no picture" * 10 + BLOCK, map_size=100)
    write("map-block-zero-bytes-long", OPENS, data=BLOCK, map_size=0)


def main():
    FOLDER.mkdir(exist_ok=True)
    for old in itertools.chain(FOLDER.glob("*.nvpf"), FOLDER.glob("*.nvpx")):
        old.unlink()
    for group in (xml_damage, entities, bulk, root_and_version, frames, values, map_names, data_file):
        group()
    lines = "".join(f"{name}\t{expected[name]}\n" for name in sorted(expected))
    (FOLDER / "expected.txt").write_text(lines, encoding="ascii")


if __name__ == "__main__":
    main()
