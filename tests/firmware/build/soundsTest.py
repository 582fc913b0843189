"""Tests of kestrolin_add_sounds: what a project gets of it, and when that is made again.

    soundsTest.py CASE CMAKE BUILD
"""

from __future__ import annotations

import sys
import tempfile
from typing import Callable

from follow import make, ninja, upgrade
from mistakes import MISTAKES
from project import HEAD, SETTINGS, STRICT, Place, Tool, configure, equal, install, succeed


def options(place: Place) -> None:
    """Every argument becomes the option of its name."""
    tool = Tool(place.build, place.folder)
    project = place.project(HEAD.format("C CXX") + """\
kestrolin_add_sounds(full ENCODER speex DAC 8 LANGUAGE C++ CLASS Bell QUALITY 10 COMPLEXITY 0
  BITRATE variable MAX_BITRATE 8000 NO_VAD NO_DENOISE NO_AGC NO_HEADER SETTINGS settings
  OPTIONS --verbose --dac 10 FILES ready.wav)
kestrolin_add_sounds(none FILES "${CMAKE_CURRENT_SOURCE_DIR}/warning.wav")
kestrolin_add_sounds(alone ENCODER adpcm FLASH STATES FILES chime.wav)
""", f"-DKESTROLIN_CLI={tool.path}", "-G", "Ninja")
    project.write("settings", SETTINGS.format(4))
    recordings = [project.record(f"{name}.wav", name) for name in ("ready", "warning", "chime")]
    configure(project)
    wanted = {
        ("full", "cpp"): ["--encoder", "speex", "--dac", "8", "--language", "c++", "--quality", "10",
                         "--complexity", "0", "--bitrate", "variable", "--class", "Bell", "--max-bitrate",
                         "8000", "--settings", str(project.folder / "settings"), "--no-vad", "--no-denoise",
                         "--no-agc", "--no-header", "--verbose", "--dac", "10"],
        ("none", "c"): ["--language", "c"],
        ("alone", "c"): ["--encoder", "adpcm", "--language", "c", "--flash", "--states"],
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
        for name, language, header in (("c", "C", ""), ("cpp", "C++", " FLASH"),
                                       ("bare", "C", f" NO_HEADER{' STATES' * (encoder == 'adpcm')}")))
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
