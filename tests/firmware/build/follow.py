"""When kestrolin_add_sounds makes arrays again, and what follows them: cases of soundsTest.py."""

from __future__ import annotations

import os
import re
import shutil
from pathlib import Path

from project import HEAD, SETTINGS, STRICT, Place, Project, Tool, command_of, configure, equal, succeed

BELL = HEAD.format("C CXX") + """\
kestrolin_add_sounds(plain ENCODER pcm DAC 12 FILES ready.wav sub/warning.wav)
kestrolin_add_sounds(spoken ENCODER speex LANGUAGE C++ CLASS Sounds SETTINGS settings FILES chime.wav)
add_executable(bell main.cpp other.cpp)
target_link_libraries(bell PRIVATE plain spoken)
"""
BELL_MAIN = """\
#include <kestrolin_pcm.h>
#include <kestrolin_speex.h>

#include "plain.h"
#include "spoken.h"

int other(void);

int main() {
  kestrolin_pcm pcm;
  kestrolin_speex speex;
  if (kestrolin_pcm_open(&pcm, warning, warning_size) != KESTROLIN_OK ||
      kestrolin_speex_open(&speex, Sounds::chime, Sounds::chime_size) != KESTROLIN_OK) {
    return 1;
  }
  return other();
}
"""
BELL_OTHER = "int other(void);\nint other(void) {\n  return 0;\n}\n"

# What follows a recording of each library.
PLAIN = {"plain_data.c", "plain.c", "plain.h", "plain.c.o", "libplain.a", "main.cpp.o", "bell"}
SPOKEN = {"spoken_data.cpp", "spoken.cpp", "spoken.h", "spoken.cpp.o", "libspoken.a", "main.cpp.o", "bell"}


def bell(place: Place, generator: str) -> tuple[Project, Tool]:
    """A project of two libraries, in a folder with a blank in its name."""
    tool = Tool(place.build, place.folder)
    project = place.project(BELL, "-G", generator, f"-DKESTROLIN_CLI={tool.path}",
                            f"-DCMAKE_C_FLAGS={STRICT}", f"-DCMAKE_CXX_FLAGS={STRICT}", name="my bell")
    project.write("main.cpp", BELL_MAIN)
    project.write("other.cpp", BELL_OTHER)
    project.write("settings", SETTINGS.format(4))
    for name in ("ready", "sub/warning", "chime"):
        project.record(f"{name}.wav", Path(name).name)
    configure(project)
    return project, tool


def direct(place: Place, project: Project, text: str, *words: str) -> None:
    """A text is what the command makes of the same recordings."""
    wanted = place.folder / "direct"
    succeed(*command_of(place.build), "encode", *words, "-o", wanted, cwd=project.folder)
    found = project.build_folder / "kestrolin" / text
    equal(found.read_bytes(), wanted.read_bytes(), text)


def life(place: Place, generator: str) -> None:
    """The arrays follow their recordings, and nothing else is made again."""
    project, tool = bell(place, generator)
    made = project.changed_by_build()
    assert made >= PLAIN | SPOKEN | {"other.cpp.o", "libkestrolin_readers.a"}, made
    succeed(project.build_folder / "bell")
    plain = ("--dac", "12", "ready.wav", "sub/warning.wav")
    spoken = ("--settings", "settings", "--encoder", "speex", "--language", "c++", "--class", "Sounds")
    direct(place, project, "plain/plain_data.c", *plain)
    direct(place, project, "spoken/spoken_data.cpp", *spoken, "chime.wav")
    equal(project.changed_by_build(), set(), "made without a change")

    project.record("sub/warning.wav", "ready")
    equal(project.changed_by_build(), PLAIN, "made for a recording")
    direct(place, project, "plain/plain_data.c", *plain)
    project.record("chime.wav", "alarm")
    equal(project.changed_by_build(), SPOKEN, "made for the other one")
    project.write("settings", SETTINGS.format(2))
    equal(project.changed_by_build(), SPOKEN, "made for the settings")
    direct(place, project, "spoken/spoken_data.cpp", *spoken, "chime.wav")
    equal(project.changed_by_build(), set(), "made without a change")

    project.edit("CMakeLists.txt", "DAC 12", "DAC 10")
    equal(project.changed_by_build() - {"Makefile"}, PLAIN, "made for an option")
    direct(place, project, "plain/plain_data.c", "--dac", "10", *plain[2:])
    project.record("third.wav", "ready")
    project.edit("CMakeLists.txt", "FILES ready.wav", "FILES third.wav ready.wav")
    equal(project.changed_by_build(), PLAIN, "made for one more recording")
    os.utime(tool.path)
    equal(project.changed_by_build(), PLAIN | SPOKEN, "made for another command")
    equal(project.changed_by_build(), set(), "made without a change")
    lost(project, tool)
    project.edit("CMakeLists.txt", "FILES third.wav ready.wav", "FILES ready.wav")
    equal(project.changed_by_build(), PLAIN, "made for one recording less")


def lost(project: Project, tool: Tool) -> None:
    """Without a recording the command tells what is missing; with it again all is well."""
    gone = project.folder / "third.wav"
    text = project.build_folder / "kestrolin" / "plain" / "plain_data.c"
    before = text.read_bytes()
    gone.rename(project.folder / "away")
    done = project.build()
    assert done.status != 0, "the build went well without a recording"
    assert f"kestrolin-cli: {gone}: cannot be read: No such file or directory; check the path\n" in done.said, done.said
    equal(text.read_bytes(), before, "the text without its recording")
    (project.folder / "away").rename(gone)
    os.utime(gone)
    equal(project.changed_by_build(), PLAIN, "made for a recording that came back")
    tool.asked()
    equal(project.changed_by_build(), set(), "made without a change")
    equal(tool.asked(), [], "what the command was asked")


def ninja(place: Place) -> None:
    life(place, "Ninja")


def make(place: Place) -> None:
    life(place, "Unix Makefiles")


def upgrade(place: Place) -> None:
    """Another version makes the arrays again, though its program is older than they are."""
    package = place.folder / "share" / "cmake" / "Kestrolin"
    shutil.copytree(place.package, package)
    (place.folder / "share" / "kestrolin").symlink_to(place.build / "share" / "kestrolin")
    version = (package / "KestrolinConfigVersion.cmake").read_text(encoding="utf-8")
    tool = place.folder / "kestrolin-cli"

    def publish(number: str) -> None:
        tool.write_text(f"#!/bin/sh\n[ \"$1\" != --version ] || {{ echo kestrolin-cli {number}; exit; }}\n"
                        f"exec '{place.build}/bin/kestrolin-cli' \"$@\"\n", encoding="utf-8")
        tool.chmod(0o755)
        os.utime(tool, (0, 0))
        (package / "KestrolinConfigVersion.cmake").write_text(
            re.sub(r'(PACKAGE_VERSION) "[\d.]+"', rf'\1 "{number}"', version), encoding="utf-8")

    for generator in ("Ninja", "Unix Makefiles"):
        publish("1.1.8")
        project = Project(place.cmake, place.folder / generator, package, "-G", generator,
                          f"-DKESTROLIN_CLI={tool}")
        project.write("CMakeLists.txt", HEAD.format("C") + "kestrolin_add_sounds(sounds FILES ready.wav)\n")
        project.record("ready.wav")
        configure(project)
        assert "sounds_data.c" in project.changed_by_build()
        publish("1.1.9")
        configure(project)
        equal(project.changed_by_build(),
              {"sounds_data.c", "sounds.c", "sounds.h", "sounds.c.o", "libsounds.a"}, generator)
