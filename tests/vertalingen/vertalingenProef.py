"""Tests of the translation catalogs.

    vertalingenProef.py CHECK CATALOGS SOURCES VERSION

CHECK is one of controles.py, or zelfproef, which breaks copies of the catalogs and the sources and
expects the checks to see it.
"""

from __future__ import annotations

import sys
from pathlib import Path

sys.dont_write_bytecode = True

# pylint: disable=wrong-import-position
from catalogi import Catalogi, Onleesbaar
from controles import CONTROLES
from zelfproef import zelfproef


def main() -> int:
    if len(sys.argv) != 5 or sys.argv[1] not in {*CONTROLES, "zelfproef"}:
        print(__doc__, file=sys.stderr)
        return 2
    naam, folder, bron, versie = sys.argv[1:]
    catalogi = Catalogi(Path(folder).resolve(), Path(bron).resolve(), versie)
    try:
        klachten = {**CONTROLES, "zelfproef": zelfproef}[naam](catalogi)
    except Onleesbaar as fout:
        klachten = [str(fout)]
    print("\n".join(klachten))
    return 1 if klachten else 0


if __name__ == "__main__":
    sys.exit(main())
