"""Misspelt words in documents and comments, as codespell finds them."""

from __future__ import annotations

import ast
import re
import subprocess
import tempfile
from pathlib import Path
from typing import Callable

from boom import Boom

# Right words that look like wrong ones, those of another language among them. One a line.
WOORDEN = Path(__file__).with_name("woorden.txt")

# Comments, and literals that may hold the marks of one.
COMMENTAAR = re.compile(
    r"""(?P<commentaar>//(?:[^\n\\]|\\.)*|/\*.*?\*/)
      | R"(?P<grens>[^()\\\s]*)\(.*?\)(?P=grens)"
      | "(?:[^"\\\n]|\\.)*"
      | '(?:[^'\\\n]|\\.)+'""",
    re.DOTALL | re.VERBOSE,
)
VERTAALD = re.compile(
    r"""<(?P<element>[\w:]+)[^>]*\bxml:lang=[^>]*>.*?</(?P=element)>
      | ^[\w-]+\[\w+\]=.*$""",
    re.DOTALL | re.VERBOSE | re.MULTILINE,
)
NIET_REGELEINDE = re.compile(r"[^\n]")


def alleen_commentaar(bron: str) -> str:
    """The comments of a source in C or C++, each where it stands."""
    delen, einde = [], 0
    for vondst in COMMENTAAR.finditer(bron):
        delen.append(NIET_REGELEINDE.sub(" ", bron[einde : vondst.start()]))
        in_zicht = vondst["commentaar"]
        delen.append(in_zicht or NIET_REGELEINDE.sub(" ", vondst.group()))
        einde = vondst.end()
    return "".join(delen)


def zonder_vertaling(tekst: str) -> str:
    """A desktop entry or description without what it says in other languages."""
    return VERTAALD.sub(lambda vondst: NIET_REGELEINDE.sub(" ", vondst.group()), tekst)


def alleen_hekjes(bron: str) -> str:
    """The lines that are comments of a script, each where it stands."""
    return "\n".join(regel if regel.lstrip().startswith("#") else "" for regel in bron.splitlines())


def van_python(bron: str) -> str:
    """The comments and the texts that tell what things are for, each on its own line."""
    regels = alleen_hekjes(bron).split("\n")
    for knoop in ast.walk(ast.parse(bron)):
        if isinstance(knoop, (ast.Module, ast.ClassDef, ast.FunctionDef)) and ast.get_docstring(knoop):
            eerste = knoop.body[0]
            deel = slice(eerste.lineno - 1, eerste.end_lineno)
            regels[deel] = bron.split("\n")[deel]
    return "\n".join(regels)


# What is read, and which part of it.
DELEN: list[tuple[tuple[str, ...], Callable[[str], str]]] = [
    (("*.md", "*.pot", "packaging/debian/*"), str),
    (("*.py",), van_python),
    (("packaging/*.1", "packaging/*.in", "packaging/*.xml", "packaging/*.desktop"),
     zonder_vertaling),
    (("*.c", "*.h", "*.cpp"), alleen_commentaar),
    (("*CMakeLists.txt", "*.cmake"), alleen_hekjes),
]


def spelling(boom: Boom) -> list[str]:
    """codespell has nothing to say of documents and comments."""
    with tempfile.TemporaryDirectory() as folder:
        te_lezen = {naam: deel for vormen, deel in DELEN for naam in boom.met(*vormen)}
        scripts = (naam for naam in boom.bestanden if boom.is_script(naam))
        te_lezen = dict.fromkeys(scripts, alleen_hekjes) | te_lezen
        if not te_lezen:
            return ["nothing to read"]
        for naam, deel in te_lezen.items():
            kopie = Path(folder) / naam
            kopie.parent.mkdir(parents=True, exist_ok=True)
            kopie.write_text(deel(boom.lees(naam)), encoding="utf-8")
        uitkomst = subprocess.run(
            ["codespell", "--builtin=clear", f"--ignore-words={WOORDEN}", "--check-hidden", "."],
            cwd=folder, capture_output=True, text=True, check=False,
        )
    klachten = [regel.removeprefix("./") for regel in uitkomst.stdout.splitlines()]
    if uitkomst.returncode and not klachten:
        klachten.append(f"codespell: exit status {uitkomst.returncode}\n{uitkomst.stderr}")
    return klachten
