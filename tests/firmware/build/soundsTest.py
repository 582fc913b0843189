"""Tests of kestrolin_add_sounds: what a project gets of it, and when that is made again.

    soundsTest.py CASE CMAKE BUILD
"""

from __future__ import annotations

import os
import re
import shutil
import sys
import tempfile
from pathlib import Path
from typing import Callable

from mistakes import MISTAKES
from project import Project, Tool, equal, install, succeed

STRICT = "-Wall -Wextra -Wpedantic -Wmissing-declarations -Wshadow -Wconversion -Werror"
HEAD = "cmake_minimum_required(VERSION 3.20)\nproject(Bell {})\nfind_package(Kestrolin 1.1 REQUIRED)\n"
SETTINGS = "[Gebruikersinstellingen/Speex]\nspeexQuality={}\n"

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


class Place:
    """Where a test works, and the build that it tests."""

    def __init__(self, cmake: str, build: str, folder: str) -> None:
        self.cmake, self.build, self.folder = cmake, Path(build), Path(folder)
        self.package = self.build / "share" / "cmake" / "Kestrolin"

    def project(self, text: str, *settings: str, name: str = "project") -> Project:
        made = Project(self.cmake, self.folder / name, self.package, *settings)
        made.write("CMakeLists.txt", text)
        return made


def configure(project: Project) -> None:
    done = project.configure()
    assert done.status == 0, done.said
    assert "warning" not in done.said.lower(), done.said


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
    succeed(place.build / "bin" / "kestrolin-cli", "encode", *words, "-o", wanted, cwd=project.folder)
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
    assert f"kestrolin-cli: {gone}: cannot be read: No such file or directory\n" in done.said, done.said
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


def options(place: Place) -> None:
    """Every argument becomes the option of its name."""
    tool = Tool(place.build, place.folder)
    project = place.project(HEAD.format("C CXX") + """\
kestrolin_add_sounds(full ENCODER speex DAC 8 LANGUAGE C++ CLASS Bell QUALITY 10 COMPLEXITY 0
  BITRATE variable MAX_BITRATE 8000 NO_VAD NO_DENOISE NO_AGC NO_HEADER SETTINGS settings
  OPTIONS --verbose --dac 10 FILES ready.wav)
kestrolin_add_sounds(none FILES "${CMAKE_CURRENT_SOURCE_DIR}/warning.wav")
""", f"-DKESTROLIN_CLI={tool.path}", "-G", "Ninja")
    project.write("settings", SETTINGS.format(4))
    recordings = [project.record(f"{name}.wav", name) for name in ("ready", "warning")]
    configure(project)
    wanted = {
        ("full", "cpp"): ["--encoder", "speex", "--dac", "8", "--language", "c++", "--quality", "10",
                         "--complexity", "0", "--bitrate", "variable", "--class", "Bell", "--max-bitrate",
                         "8000", "--settings", str(project.folder / "settings"), "--no-vad", "--no-denoise",
                         "--no-agc", "--no-header", "--verbose", "--dac", "10"],
        ("none", "c"): ["--language", "c"],
    }
    for (library, suffix), words in wanted.items():
        # The first one names its width twice.
        project.build("-t", library)
        start = f"{project.build_folder}/kestrolin/{library}/{library}"
        equal(tool.asked(), ["encode", *words, "-o", f"{start}_data.{suffix}", "--declarations",
                             f"{start}.h", "--source", f"{start}.{suffix}", "--depfile", f"{start}.d", "--",
                             str(recordings.pop(0))], library)


def mistakes(place: Place) -> None:
    """A call that makes no library ends the configuration, with one message that tells why."""
    for number, (languages, call, reason) in enumerate(MISTAKES):
        project = place.project(HEAD.format(languages) + call, name=f"mistake{number}")
        project.record("ready.wav")
        project.write("CMakeLists.txt", HEAD.format(languages) + call)
        done = project.configure()
        assert done.status != 0, f"taken: {call}"
        equal(done.said.count("CMake Error"), 1, f"messages about {call}")
        # CMake breaks its lines.
        said = " ".join(done.said.split())
        wanted = reason.replace("HERE", str(project.folder))
        assert wanted in said, f"{call}: {said}"


def found(place: Place) -> None:
    """The package is found with a command of its version only, and tells what it misses."""
    other = place.folder / "other"
    other.write_text("#!/bin/sh\necho kestrolin-cli 1.1.9\n", encoding="utf-8")
    other.chmod(0o755)
    text = HEAD.format("C")
    rows = [
        (text, "/nowhere/kestrolin-cli", "KESTROLIN_CLI is /nowhere/kestrolin-cli, which is no kestrolin-cli 1"),
        (text, str(other), f"KESTROLIN_CLI is {other}, which is no kestrolin-cli 1"),
        (text.replace("1.1 ", "2 "), None, 'requested version "2"'),
        (text.replace("1.1 ", "1.99 "), None, 'requested version "1.99"'),
    ]
    for number, (lists, command, reason) in enumerate(rows):
        settings = [f"-DKESTROLIN_CLI={command}"] if command else []
        done = place.project(lists, *settings, name=f"found{number}").configure()
        assert done.status != 0, f"found: {reason}"
        said = " ".join(done.said.split())
        assert reason in said, said
    quiet = place.project(text.replace("REQUIRED", "QUIET") + "message(STATUS found=${Kestrolin_FOUND})\n",
                          "-DKESTROLIN_CLI=/nowhere/kestrolin-cli", name="quiet").configure()
    assert quiet.status == 0 and ("found=FALSE" in quiet.said or "found=0" in quiet.said), quiet.said


def installed(place: Place) -> None:
    """From an installation, by its prefix or by its programs on the path, with its own command."""
    prefix = place.folder / "prefix"
    package = install(place.cmake, place.build, prefix)
    ways = {"prefix": (f"-DCMAKE_PREFIX_PATH={prefix}", "/usr/bin:/bin"),
            "path": ("-DCMAKE_BUILD_TYPE=Release", f"{prefix}/bin:/usr/bin:/bin")}
    for name, (setting, path) in ways.items():
        project = place.project(
            HEAD.format("C") + "kestrolin_add_sounds(sounds FILES ready.wav)\n"
            "add_executable(bell main.c)\ntarget_link_libraries(bell sounds)\n", name=name)
        project.record("ready.wav")
        project.write("main.c", '#include <kestrolin_pcm.h>\n#include "sounds.h"\nint main(void) {\n'
                      "  kestrolin_pcm pcm;\n  return kestrolin_pcm_open(&pcm, ready, ready_size) != 0;\n}\n")
        build = project.build_folder
        succeed(place.cmake, "-S", project.folder, "-B", build, setting, PATH=path)
        succeed(place.cmake, "--build", build)
        succeed(build / "bell")
        cache = (build / "CMakeCache.txt").read_text(encoding="utf-8")
        assert f"Kestrolin_DIR:PATH={package}\n" in cache, name
        assert f"KESTROLIN_CLI:FILEPATH={prefix}/bin/kestrolin-cli\n" in cache, name
        assert str(place.build) not in cache, f"{name}: it knows of the build tree"


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


def nested(place: Place) -> None:
    """Folders below each other, each with a library, the readers made once, recordings that the build
    makes."""
    project = place.project(
        HEAD.format("C") + "add_subdirectory(one)\nadd_subdirectory(two)\n"
        "add_executable(bell main.c)\ntarget_link_libraries(bell one two)\n", "-G", "Ninja")
    louder = ("add_custom_command(OUTPUT {0} COMMAND sox -v 0.5 ${{CMAKE_SOURCE_DIR}}/ready.wav {0}\n"
              "  DEPENDS ${{CMAKE_SOURCE_DIR}}/ready.wav)\n")
    soft = "${CMAKE_CURRENT_BINARY_DIR}/soft.wav"
    lists = "find_package(Kestrolin REQUIRED)\nkestrolin_add_sounds({} DAC 12 FILES {})\n"
    # The rule may come behind the call where its result lies in the build tree.
    project.write("one/CMakeLists.txt", lists.format("one", soft) + louder.format(soft))
    project.write("two/CMakeLists.txt", louder.format("${CMAKE_SOURCE_DIR}/made.wav") +
                  lists.format("two", "${CMAKE_SOURCE_DIR}/made.wav ${CMAKE_SOURCE_DIR}/ready.wav"))
    project.write("main.c", '#include <kestrolin_pcm.h>\n#include "one.h"\n#include "two.h"\n'
                  "int main(void) {\n  kestrolin_pcm pcm;\n  return soft_size != ready_size ||\n"
                  "         kestrolin_pcm_open(&pcm, soft, soft_size) != 0 ||\n"
                  "         kestrolin_pcm_open(&pcm, made, made_size) != 0;\n}\n")
    project.record("ready.wav")
    configure(project)
    done = project.build()
    assert done.status == 0, done.said
    equal(done.said.count("kestrolin_pcm.c.o"), 1, "readers")
    succeed(project.build_folder / "bell")
    equal(project.changed_by_build(), set(), "made without a change")
    project.record("ready.wav", "warning")
    changed = project.changed_by_build()
    assert {"soft.wav", "one_data.c", "two_data.c", "main.c.o", "bell"} <= changed, changed
    assert not {"kestrolin_pcm.c.o", "libkestrolin_readers.a"} & changed, changed
    succeed(project.build_folder / "bell")


def strict(place: Place) -> None:
    """Whatever is made compiles without a warning, in C99, C++11 and the newest, in either compiler."""
    calls = "".join(
        f"kestrolin_add_sounds({encoder}_{name} ENCODER {encoder} LANGUAGE {language} CLASS Sounds{header}\n"
        "  FILES ready.wav warning.wav)\n"
        for encoder in ("speex", "adpcm", "pcm", "wav")
        for name, language, header in (("c", "C", ""), ("cpp", "C++", ""), ("bare", "C", " NO_HEADER")))
    for compiler in (("gcc", "g++"), ("clang", "clang++")):
        for standards in (("99", "11"), ("17", "20")):
            lists = (f"cmake_minimum_required(VERSION 3.21)\nset(CMAKE_C_STANDARD {standards[0]})\n"
                     f"set(CMAKE_CXX_STANDARD {standards[1]})\nset(CMAKE_C_EXTENSIONS OFF)\n"
                     "set(CMAKE_CXX_EXTENSIONS OFF)\nproject(Bell C CXX)\nfind_package(Kestrolin REQUIRED)\n")
            also = " -Wmissing-variable-declarations" if compiler[0] == "clang" else ""
            project = place.project(
                lists + calls, f"-DCMAKE_C_COMPILER={compiler[0]}", f"-DCMAKE_CXX_COMPILER={compiler[1]}",
                f"-DCMAKE_C_FLAGS={STRICT}{also}", f"-DCMAKE_CXX_FLAGS={STRICT}{also}", "-G", "Ninja",
                name=f"{compiler[0]}{standards[0]}")
            project.record("ready.wav")
            project.record("warning.wav", "warning")
            configure(project)
            done = project.build()
            assert done.status == 0, done.said
            assert "warning:" not in done.said, done.said


CASES: dict[str, Callable[[Place], None]] = {
    case.__name__: case for case in (ninja, make, options, mistakes, found, installed, upgrade, nested, strict)
}

if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="kestrolinSounds") as folder_:
        CASES[sys.argv[1]](Place(*sys.argv[2:4], folder_))
