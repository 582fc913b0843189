"""The packages that the README names for other systems, against those that ./start installs."""

from __future__ import annotations

import re
from collections import Counter

from boom import Boom

BLADZIJDE, SCRIPT = "README.md", "hulp/voorzieningen"
KOP = "### On other systems\n"


def pakketten(boom: Boom) -> list[str]:
    """The table below that heading has each package of the group "bouw" once, and no other."""
    groep = re.search(r'^bouw="([^"]*)"', boom.lees(SCRIPT), re.M)
    if not groep:
        return [f"{SCRIPT}: there is no group bouw"]
    _, kop, rest = boom.lees(BLADZIJDE).partition(KOP)
    if not kop:
        return [f"{BLADZIJDE}: there is no heading {KOP.strip()!r}"]
    cellen = re.findall(r"^\|[^|]*\|([^|]*)\|", re.split(r"^#", rest, maxsplit=1, flags=re.M)[0], re.M)
    genoemd = Counter(naam for cel in cellen for naam in re.findall(r"`([^`]+)`", cel))
    nodig = set(groep[1].split())
    return ([f"{BLADZIJDE}: {naam} is missing" for naam in sorted(nodig - set(genoemd))]
            + [f"{BLADZIJDE}: {naam} is not installed by {SCRIPT}" for naam in sorted(set(genoemd) - nodig)]
            + [f"{BLADZIJDE}: {naam} stands there twice" for naam, keer in genoemd.items() if keer > 1])
