// The player behind the toolkit's sound class. Debian's toolkit knows one way to a loudspeaker, the
// device file /dev/dsp, which today's desktops do not have; without it every sound is silently
// lost. The player here goes through SDL: it finds PulseAudio, PipeWire, ALSA and OSS by itself at
// run time, keeps its interface, is in every distribution, and is what the toolkit's own makers use
// on this system where they build sound in.
#pragma once

// Puts the player in the place of the toolkit's, for every wxSound of this process that plays from
// now on. The toolkit owns it and deletes it at its end. Call it once the application object
// exists, under whose name the mixers of the desktop show the sound.
//
// It plays WAV data of 8 and 16 bits on up to 8 channels. A synchronous sound has left the device
// when Play returns; an asynchronous one goes on behind it, also after the wxSound has died, and
// holds the device no longer than it lasts (as far as an event loop runs to see that). A new sound
// ends the one before. Where nothing can be played Play returns false at once, and standard error
// tells the reason the first time.
//
// In a build without SDL this does nothing, and the toolkit keeps its own player: the system's
// under Windows.
void plaatsGeluidSpeler();
