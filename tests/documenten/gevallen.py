"""Small trees, each with one thing wrong, and what the check says of it."""

from __future__ import annotations

from tekeningen import TEKENAARS

# Files by name, and what stands in them.
Bestanden = dict[str, str]
Geval = tuple[str, Bestanden]

DOEL = {"docs/doel.md": "# A head\n\n## A `code`, _and_ more!\n\n# A head\n", "docs/beeld.png": "",
        "firmware/kestrolin_pcm.h": "", "hulp/voorzieningen": "#!/bin/sh\n"}

GOEDE_KOPPELINGEN = {**DOEL, "README.md": """\
# Here

[a](docs/doel.md) [b](docs/doel.md#a-head) [c](docs/doel.md#a-head-1) [d](#here) [e](docs)
[f](docs/doel.md#a-code-and-more) ![g](docs/beeld.png) [h](https://kestrolin.example/x) [i][j]

| a | b |
|---|---|
| `hulp/voorzieningen doel` | `firmware/kestrolin_*.h` and `kestrolin_pcm.*`, `firmware/` |

`build/tour` `share/locale` `-DX=ON` `firmware/kestrolin_{pcm,pcm}.h:12` `#include "firmware/x y"`
`kestrolin_readers.{c,h}`

<a id="html"></a> [k](#html)

[j]: docs/doel.md

    [no link](nowhere.md)
"""}

SLECHTE_KOPPELINGEN = [
    ("README.md:3: docs/Doel.md: there is no docs/Doel.md", "a\n\n[a](docs/Doel.md)"),
    ("docs/weg.md", "[a](docs/weg.md)"),
    ("README.md:2: docs/weg.png", "a\n![a](docs/weg.png)"),
    ("out of the tree", "[a](../main/README.md)"),
    ("out of the tree", "[a](/docs/doel.md)"),
    ("no heading of that name", "[a](docs/doel.md#a-head-2)"),
    ("no heading of that name", "[a](docs/doel.md#A-head)"),
    ("no heading of that name", "# A\n[a](#b)"),
    ("no heading of that name", "[a](docs/beeld.png#a)"),
    ("README.md:3: docs/weg.md", "| a | b |\n|---|---|\n| c | [a](docs/weg.md) |"),
    ("README.md:3: `hulp/weg`", "| a |\n|---|\n| `hulp/weg` |"),
    ("docs/weg.md", "[a][b]\n\n[b]: docs/weg.md"),
    ("docs/weg.md", "a <a href=\"docs/weg.md\">b</a>"),
    ("docs/weg.png", "<p>\n<img src=\"docs/weg.png\">\n</p>"),
    ("elsewhere", "[a](http://kestrolin.example)"),
    ("elsewhere", "[a](https://kestrolin.example.org)"),
    ("elsewhere", "<https://elders.example>"),
    ("elsewhere", "see https://elders.example/a for more"),
    ("elsewhere", "[a](mailto:a@kestrolin.example)"),
    ("elsewhere", "[a](//elders.example/a)"),
    ("no hulp/weg", "`hulp/weg doel`"),
    ("no docs/Beeld.png", "| a |\n|---|\n| `docs/Beeld.png` |"),
    ("no docs/*.svg", "`docs/*.svg`"),
    ("no firmware/kestrolin_wav.*", "`kestrolin_wav.*`"),
    ("no firmware/kestrolin_wav.h", "`firmware/kestrolin_{pcm,wav}.h`"),
    ("README.md:2: `hulp/weg`", "a\n`hulp/weg`"),
]

FOUT = "This is teh end."
GOEDE_SPELLING = {
    "README.md": "The colour of this behaviour.\n",
    "a.cpp": f'// Een tekst.\nauto a = "{FOUT} // {FOUT}";\nauto b = R"(/* {FOUT} */)";\n',
    "b.cpp": "int teh;\n",
    "packaging/a.desktop": f"Name=The end\nName[nl]={FOUT}\n",
    "packaging/a.xml": f'<p>The end</p>\n<p xml:lang="nl">\n{FOUT}</p>\n',
    "hulp/a": "teh=1\n",
}
SLECHTE_SPELLING = [
    ("README.md:2: teh ==> the", {"README.md": f"\n{FOUT}\n"}),
    ("docs/a.md:1: teh", {"docs/a.md": FOUT}),
    ("packaging/a.1:1: teh", {"packaging/a.1": FOUT}),
    ("packaging/a.in:1: teh", {"packaging/a.in": FOUT}),
    ("packaging/a.xml:2: teh", {"packaging/a.xml": f'<p xml:lang="nl">x</p>\n<p>{FOUT}</p>\n'}),
    ("packaging/a.desktop:1: teh", {"packaging/a.desktop": f"Comment={FOUT}\n"}),
    ("firmware/a.h:2: teh", {"firmware/a.h": f"/* The\n * {FOUT}\n */\n"}),
    ("a.c:1: teh", {"a.c": f'char a[] = "\\""; /* {FOUT} */\n'}),
    ("b/a.cpp:2: teh", {"b/a.cpp": f"auto a = '\"';\nint a;  // {FOUT}\n"}),
    ("b/CMakeLists.txt:1: teh", {"b/CMakeLists.txt": f"# {FOUT}\n"}),
    ("hulp/a:2: teh", {"hulp/a": f"#!/bin/sh\n  # {FOUT}\n"}),
    ("a.py:3: teh", {"a.py": f'def teh():\n    """The.\n    {FOUT}"""\n    return "teh"\n'}),
    ("nothing to read", {}),
]

BEELD = """\
byte  0     1
    +-----+-----+--
    | {} |
    | unsigned  |
    +-----+-----+--
"""


def _bron(beeld: str, voor: str, na: str) -> str:
    return (f"{voor}\n" + "".join(f"{na}   {regel}\n" for regel in beeld.splitlines())
            + f"{na}\n{na} All numbers.\n")


def _handleiding() -> str:
    return "# M\n\n" + "".join(f"{kop}\n\n```text\n{BEELD.format(kop)}```\n\n"
                               for kop in dict.fromkeys(TEKENAARS.values()))


GOEDE_TEKENINGEN = {
    "docs/manual.md": _handleiding(),
    "docs/more.md": "```text\n" + BEELD.format("### PCM arrays") + "```\n",
    "audio/codec/serieleKop.h": _bron(BEELD.format("count"), "// A", "//"),
    **{naam: _bron(BEELD.format(kop), "/* A", " *") if naam.startswith("firmware/")
       else _bron(BEELD.format(kop), "// A", "//") for naam, kop in TEKENAARS.items()},
}


def _vervang(bestanden: Bestanden, naam: str, oud: str, nieuw: str) -> Bestanden:
    """The tree with one thing in one file replaced."""
    inhoud = bestanden[naam].replace(oud, nieuw, 1)
    assert inhoud != bestanden[naam], f"{naam} is as it was"
    return {**bestanden, naam: inhoud}


def _anders(naam: str, oud: str, nieuw: str) -> Bestanden:
    return _vervang(GOEDE_TEKENINGEN, naam, oud, nieuw)


_PCM, _SPEEX = "firmware/kestrolin_pcm.h", "externals/software/extern/speex/speexHeader.h"
_ZONDER = {naam: tekst for naam, tekst in GOEDE_TEKENINGEN.items() if naam != "docs/manual.md"}
SLECHTE_TEKENINGEN = [
    (f"{_PCM}:2: not as", _anders(_PCM, "| unsigned  |", "| signed    |")),
    ("byte  0      1", _anders(_PCM, "byte  0     1", "byte  0      1")),
    (f"{_PCM}:2: not as", _anders(_PCM, "+--\n *\n", "+-\n *\n")),
    (f"{_PCM}:2: not as", _anders(_PCM, " *       | unsigned  |\n", "")),
    (f"{_PCM}:2: not as", _anders(_PCM, " *       |", " *      |")),
    (f"{_PCM}: does not draw", _anders(_PCM, "   byte", "   bytes")),
    (f"{_SPEEX}:2: not as", _anders(_SPEEX, "Speex arrays", "PCM arrays")),
    (f"{_PCM}:2: not as", _anders("docs/manual.md", "| unsigned  |", "| signed    |")),
    ('no drawing under "### PCM arrays"', _anders("docs/manual.md", "```text", "```c")),
    ('no drawing under "### PCM arrays"', _anders("docs/manual.md", "### PCM", "### pcm")),
    ("docs/more.md:2: a drawing that", _anders("docs/more.md", "| unsigned  |", "| signed    |")),
    ("audio/nieuw.h:2: not as", {**GOEDE_TEKENINGEN, "audio/nieuw.h": _bron(BEELD, "// A", "//")}),
    (f"{_PCM} is missing", {naam: tekst for naam, tekst in GOEDE_TEKENINGEN.items()
                            if naam != _PCM}),
    ("docs/manual.md is missing", _ZONDER),
]

_BOUW = "cmake_minimum_required(VERSION 3.25)\noption(KESTROLIN_SDL \"Sound\" ON)\n"
_PRESETS = """{"configurePresets": [{"name": "basis", "hidden": true}, {"name": "release"}],
 "buildPresets": [{"name": "release"}], "testPresets": [{"name": "debug"}]}"""
GOEDE_OPDRACHTEN = {
    "CMakeLists.txt": _BOUW, "CMakePresets.json": _PRESETS, "los": "",
    "start": "#!/bin/sh\n# --tour\n", "test": '#!/bin/sh\n[ "$1" = --sanitize ] || ctest "$@"\n',
    "hulp/voorzieningen": "#!/bin/sh\ncase $1 in\n  doel) ;;\nesac\n",
    "tests/steun/scherm": "#!/bin/sh\n",
    "README.md": """\
`./start --tour [FOLDER]`, `./test` and `hulp/voorzieningen doel`, but not `nowhere/at all`.

```sh
# All of it, ./stat too.
>/dev/null ./start
./test --sanitize && ./test -R breuk   # some
A=b ./start --tour >/dev/null
hulp/voorzieningen doel
cmake --preset release -DKESTROLIN_SDL=OFF
cmake --build build/release --target help
cd /tmp; sudo cmake --install build/release --prefix /usr/local
tests/steun/scherm ctest --preset debug
build/release/bin/help --anything
```
"""}
SLECHTE_OPDRACHTEN = [
    ("README.md:4: ./stat: there is no stat", "./stat"),
    ("README.md:4: cat a | hulp/weg: there is no hulp/weg", "cat a | hulp/weg"),
    ("los is not executable", "./los"),
    ("no program nergens", "A=b sudo nergens"),
    ("start knows no --tours", "./start --tours"),
    ("start knows no -R", "./start -R breuk"),
    ("test knows no --no-such", "./test --no-such"),
    ("knows no doe", "hulp/voorzieningen doe"),
    ("no preset basis for cmake", "cmake --preset basis"),
    ("no preset debug for cmake --build", "true && cmake --build --preset=debug"),
    ("no preset release for ctest", "tests/steun/scherm ctest --preset release"),
    ("no preset builds in build/debug", "cmake --build build/debug"),
    ("cmake --install knows no --prefx", "cmake --install build/release --prefx /"),
    ("no option KESTROLIN_SDX", "cmake --preset release -DKESTROLIN_SDX=OFF"),
    ("no preset builds in build/debug", "build/debug/bin/help"),
    ("no target weg", "build/release/bin/weg"),
    ("no target weg", "cmake --build build/release --target weg"),
    ("goes on in the next line", "cmake --preset release \\"),
    ("No closing quotation", "echo 'a"),
]


GOEDE_PAKKETTEN = {
    "hulp/voorzieningen": '#!/bin/sh\nbouw="cmake gettext\n  libx-dev"\ntour="xdotool"\n',
    "README.md": "`xdotool`\n\n### On other systems\n\n`start` works.\n\n| For | Packages |\n|---|---|\n"
                 "| `make` | `cmake` (3.25), `gettext` |\n| the rest | `libx-dev` |\n\n## More\n\n| a | `b` |\n",
}
SLECHTE_PAKKETTEN = [
    ("gettext is missing", _vervang(GOEDE_PAKKETTEN, "README.md", ", `gettext`", "")),
    ("sox is not installed", _vervang(GOEDE_PAKKETTEN, "README.md", "`libx-dev`", "`libx-dev` `sox`")),
    ("cmake stands there twice", _vervang(GOEDE_PAKKETTEN, "README.md", "`libx-dev`", "`libx-dev`, `cmake`")),
    ("there is no heading", _vervang(GOEDE_PAKKETTEN, "README.md", "### On", "## On")),
    ("there is no group bouw", _vervang(GOEDE_PAKKETTEN, "hulp/voorzieningen", "bouw=", "bouws=")),
]


_POT = 'msgid ""\nmsgstr "Content-Type: text/plain; charset=UTF-8\\n"\n\n'
GOEDE_BERICHTEN = {
    "docs/manual.md": '| `It said "no"`<br>`and 7 % of N` | `channels` | `/* a\tb */` |\n'
                      '| `FILE: is "gone"; look for it` | `N: has no home; give it one.` |\n',
    "opdrachtregel/a.cpp": '// No "such comment".\n#include "a b.h"\n'
                           'app->add_option("-o", a, f("It (is) help")); meld(a + ": is \\"gone\\"; "\n"look for it");\n',
    "packaging/cmake/a.cmake": '_kestrolin_fail("${a}: has no home; give it one")\nmessage("not this one")\n',
    "vertalingen/Kestrolin.pot": _POT + 'msgid "It said \\"no\\"\\nand 7 %% of %d"\nmsgstr ""\n\n'
                                        'msgid "channels:"\nmsgstr ""\n',
    "vertalingen/Velmoradesktop.pot": _POT + 'msgid ""\n"/* a\\tb"\n" */"\nmsgstr ""\n',
}


def _verteld(oud: str, nieuw: str, naam: str = "docs/manual.md") -> Bestanden:
    return _vervang(GOEDE_BERICHTEN, naam, oud, nieuw)


SLECHTE_BERICHTEN = [
    ("'It said \"no\"'", _verteld('"no"', "no")),
    ("'and 7 % of'", _verteld("7 %", "7%")),
    ("does not tell '/* a\\tb */' of vertalingen/Velmoradesktop.pot", _verteld("\t", " ")),
    ("'seekable:'", _verteld("channels:", "seekable:", "vertalingen/Kestrolin.pot")),
    ("': is \"lost\"; look for it' of opdrachtregel/a.cpp",
     _vervang(GOEDE_BERICHTEN, "opdrachtregel/a.cpp", "gone", "lost")),
    ("'; look for them' of packaging/cmake/a.cmake",
     _vervang(GOEDE_BERICHTEN, "packaging/cmake/a.cmake", "give it one", "${b}; look for them")),
    ("opdrachtregel/*.cpp: no texts",
     _vervang(GOEDE_BERICHTEN, "opdrachtregel/a.cpp", "meld(", "app->footer(")),
    ("packaging/cmake/*.cmake: no texts",
     _vervang(GOEDE_BERICHTEN, "packaging/cmake/a.cmake", "_kestrolin_fail", "message")),
    ("Kestrolin.pot: no texts", {**GOEDE_BERICHTEN, "vertalingen/Kestrolin.pot": _POT}),
]
