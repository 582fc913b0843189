"""What the program says in English, as its catalogs know it, and what others say on its behalf."""

import re

TITEL = "Kestrolin Encoder for embedded applications"
OPEN_TITEL = "Open an Audio file"
BEWAAR_TITEL = "Save the embedded speex file"
INBED_TITEL = "Save the WAV files as embedded data"
TAAL_TITEL = "Kies een taal"
MELDING_SPEEX = "\nwas on average encoded to %d%% of the original size"
MELDING_ADPCM = "\nwas successfully encoded to ADPCM."
MELDING_PCM = "\nwas successfully encoded to PCM."

# What the toolkit prints on some systems, whatever the program does, and about lists that go away
# while the bus asks for them. That other copies come and go is no fault of this one either.
BEKENDE_REGELS = re.compile(
    r"dconf-WARNING|Couldn't connect to accessibility bus|[Ll]ock file|^\s*$"
    r"|gtk_cell_accessible|gtk_widget_get_accessible"
    r"|CRITICAL: *(You are using the SDL disk|Writing to file)"
)
