"""Tests of what tells of kestrolin-cli outside it: the man page and the completions of shells name every
command and every option that it has, and no other.

    aanvulTest.py man|bash|zsh|fish BUILD

Ends with status 77 where the shell is not installed.
"""

from __future__ import annotations

import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path
from typing import Callable

ROOT = Path(__file__).resolve().parents[2]
COMPLETIONS = ROOT / "packaging" / "completions"
SKIPPED = 77
# What follows a name of an option, with what an option without a list of values has.
VALUES = {
    "encode --encoder ": {"speex", "adpcm", "pcm", "wav"},
    "encode --language ": {"c", "c++"},
    "encode --dac ": {"8", "10", "12", "16"},
    "encode --quality ": {str(level) for level in range(11)},
    "encode --bitrate ": {"fixed", "variable", "average"},
    "decode --dac ": {"8", "10", "12", "16"},
    "encode ": {"a.wav", "folder/"},
    "encode --settings ": {"a.wav", "text.c", "folder/"},
    "encode one.wav -o ": {"a.wav", "text.c", "folder/"},
    "list ": {"a.wav", "text.c", "folder/"},
    "decode --to ": {"folder/"},
    "play ": {"a.wav", "text.c", "folder/"},
    "play --dac ": {"8", "10", "12", "16"},
    "compare ": {"a.wav", "folder/"},
    "compare --plot ": {"a.wav", "text.c", "folder/"},
}

Options = dict[str, set[str]]
Completer = Callable[[str, Path], set[str]]


def say(*words: str | Path, cwd: Path | None = None) -> str:
    done = subprocess.run([str(word) for word in words], cwd=cwd, check=False, text=True,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          env={"PATH": "/usr/bin:/bin", "HOME": str(cwd), "LC_ALL": "C.UTF-8", "TERM": "xterm",
                               "MANWIDTH": "200"})
    assert done.returncode == 0, f"{words}: status {done.returncode}\n{done.stdout}"
    return done.stdout


def equal(found: object, wanted: object, what: str) -> None:
    assert found == wanted, f"{what}: {found!r} instead of {wanted!r}"


def options_in(text: str) -> set[str]:
    """The options at the starts of the lines."""
    heads = re.findall(r"^\s+(-.*?)(?:   .*)?$", text, re.M)
    return {name for head in heads for name in re.findall(r"(?<![\w-])--?[a-z][a-z-]*", head)}


def in_help(tool: Path) -> Options:
    """What each command tells of itself; "" is the program."""
    about = say(tool, "--help")
    commands = re.findall(r"^  ([a-z]+) ", about.split("Commands:")[1], re.M)
    assert "encode" in commands, about
    return {"": options_in(about),
            **{command: options_in(say(tool, command, "--help")) for command in commands}}


def in_man(tool: Path) -> None:
    page = say("man", "--nj", "--nh", "-l", ROOT / "packaging" / "kestrolin-cli.1")
    page = re.sub(".\b", "", page)
    parts = re.split(r"^   kestrolin-cli ([a-z]+)$", page.split("\nEXIT STATUS")[0], flags=re.M)
    told = {"": options_in(parts[0]),
            **{command: options_in(text) for command, text in zip(parts[1::2], parts[2::2])}}
    equal(told, in_help(tool), "the man page")


def by_bash(line: str, folder: Path) -> set[str]:
    script = ('source "$1"; read -ra COMP_WORDS <<<"$2"; [[ $2 != *" " ]] || COMP_WORDS+=("")\n'
              "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _kestrolin_cli\n"
              'for hit in "${COMPREPLY[@]}"; do [[ -d $hit ]] && hit+=/; echo "$hit"; done')
    return set(say("bash", "--norc", "-uc", script, "bash", COMPLETIONS / "kestrolin-cli.bash", line,
                   cwd=folder).splitlines())


def by_zsh(line: str, folder: Path) -> set[str]:
    """Types the line into a shell, which notes all that it would offer."""
    notes = folder.parent / "notes"
    notes.unlink(missing_ok=True)
    say("zsh", "-f", Path(__file__).with_name("aanvul.zsh"), COMPLETIONS, line, notes, cwd=folder)
    hits = notes.read_text(encoding="utf-8").splitlines()
    return {hit + "/" if (folder / hit).is_dir() else hit for hit in hits if hit}


def by_fish(line: str, folder: Path) -> set[str]:
    said = say("fish", "--no-config", "-c", 'source $argv[1]; complete -C $argv[2]',
               COMPLETIONS / "kestrolin-cli.fish", line, cwd=folder)
    return {hit.split("\t")[0] for hit in said.splitlines()}


def completes(tool: Path, shell: str, offers: Completer) -> None:
    if shutil.which(shell) is None:
        print(f"skipped: {shell} is not installed")
        sys.exit(SKIPPED)
    wanted = in_help(tool)
    with tempfile.TemporaryDirectory() as temporary:
        folder = Path(temporary, "here")
        (folder / "folder").mkdir(parents=True)
        for name in ("a.wav", "text.c"):
            (folder / name).touch()
        commands = set(wanted) - {""}
        equal(offers("kestrolin-cli ", folder) - wanted[""], commands, f"{shell}: the commands")
        equal(offers("kestrolin-cli -", folder), wanted[""], f"{shell}: options of the program")
        for command in commands:
            # Some offer short names for one hyphen alone, and long ones for two.
            found = {name for start in ("-", "--") for name in offers(f"kestrolin-cli {command} {start}", folder)}
            equal(found, wanted[command], f"{shell}: options of {command}")
        for start, values in VALUES.items():
            found = offers(f"kestrolin-cli {start}", folder)
            if shell == "fish" and start in ("encode ", "compare "):
                # It puts recordings first, and leaves nothing out.
                found.discard("text.c")
            equal(found, values, f"{shell}: behind {start}")


def main(what: str, build: str) -> None:
    tool = Path(build) / "bin" / "kestrolin-cli"
    if what == "man":
        in_man(tool)
    else:
        completes(tool, what, {"bash": by_bash, "zsh": by_zsh, "fish": by_fish}[what])


if __name__ == "__main__":
    main(*sys.argv[1:])
