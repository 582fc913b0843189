"""Tests of the documents: their links, spelling, drawings, commands, and the texts of the program.

    documentenProef.py CHECK TREE [BUILD]

CHECK is one of those below, or zelfproef, which shows each check what is wrong and expects it to
see that. BUILD is where the tree was configured; the commands name its targets.
"""

from __future__ import annotations

import sys
from pathlib import Path

sys.dont_write_bytecode = True

# pylint: disable=wrong-import-position
from berichten import berichten
from boom import Boom
from koppelingen import koppelingen
from opdrachten import opdrachten
from pakketten import pakketten
from spelling import spelling
from tekeningen import tekeningen
from zelfproef import zelfproef

CONTROLES = {"koppelingen": koppelingen, "spelling": spelling, "tekeningen": tekeningen,
             "berichten": berichten, "pakketten": pakketten}


def main() -> int:
    if len(sys.argv) not in (3, 4) or sys.argv[1] not in {*CONTROLES, "opdrachten", "zelfproef"}:
        print(__doc__, file=sys.stderr)
        return 2
    naam, boom = sys.argv[1], Boom(Path(sys.argv[2]).resolve())
    if naam == "zelfproef":
        klachten = zelfproef()
    elif naam == "opdrachten":
        klachten = opdrachten(boom, Path(sys.argv[3]) if sys.argv[3:] else None)
    else:
        klachten = CONTROLES[naam](boom)
    print("\n".join(klachten))
    return 1 if klachten else 0


if __name__ == "__main__":
    sys.exit(main())
