"""Tests of the example project that follows its recordings: what the DAC gets is what they hold, also
after one of them has changed.

    announcerTest.py host|target CMAKE BUILD

The one of the host is built from the source tree, the one of the target from an installation. Where the
tools of the emulated board are not installed, `target` ends with status 77, or fails where
KESTROLIN_TARGET says "required".
"""

from __future__ import annotations

import shutil
import sys
import tempfile
from array import array
from pathlib import Path

from project import RECORDINGS, ROOT, install, succeed

sys.path.insert(0, str(ROOT / "tests" / "firmware" / "example"))

# pylint: disable=wrong-import-position
from exampleTest import check, codes_of, need_tools, wav_samples

NAMES = ("ready", "warning", "chime")


def wanted(recordings: Path) -> dict[str, array]:
    """The codes of 12 bits; the embedded file was scaled by shifting, the others by dividing."""
    codes = {name: codes_of([int(sample / 16) for sample in wav_samples(recordings / f"{name}.wav")])
             for name in ("ready", "warning")}
    return {**codes, "chime": codes_of([sample // 16 for sample in wav_samples(recordings / "chime.wav")])}


def played(cmake: str, build: Path) -> dict[str, array]:
    said = succeed(cmake, "--build", build, "--target", "play")
    assert "warning: " not in said.replace("warning: played", ""), said
    for name in NAMES:
        assert f"{name}: played\n" in said, said
    return {file.name: array("H", file.read_bytes()) for file in (build / "dac").iterdir()}


def configure(where: str, cmake: str, build: Path, work: Path) -> None:
    settings = [f"-DRECORDINGS={work / 'recordings'}"]
    path = "/usr/bin:/bin"
    example = ROOT / "firmware" / "example-cmake"
    if where == "target":
        prefix = work / "prefix"
        install(cmake, build, prefix)
        example = prefix / "share" / "kestrolin" / "firmware" / "example-cmake"
        path = f"{prefix / 'bin'}:{path}"
        # A folder for what is the target's, in which nothing of this computer is looked for.
        settings += ["--toolchain", str(example / "arm-none-eabi.cmake"),
                     f"-DCMAKE_FIND_ROOT_PATH={work / 'root'}"]
    else:
        settings.append(f"-DKestrolin_DIR={build / 'share' / 'cmake' / 'Kestrolin'}")
    succeed(cmake, "-S", example, "-B", work / "build", *settings, PATH=path)


def main(where: str, cmake: str, build: Path, work: Path) -> None:
    if where == "target":
        need_tools()
    recordings = work / "recordings"
    recordings.mkdir()
    for name in NAMES:
        shutil.copyfile(RECORDINGS / f"{name}.wav", recordings / f"{name}.wav")
    configure(where, cmake, build, work)
    before = wanted(recordings)
    check(played(cmake, work / "build"), before)
    shutil.copyfile(RECORDINGS / "warning.wav", recordings / "ready.wav")
    after = wanted(recordings)
    assert before != after, "the recording did not change"
    check(played(cmake, work / "build"), after)


if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="kestrolinAnnouncer") as folder:
        main(sys.argv[1], sys.argv[2], Path(sys.argv[3]), Path(folder))
