// The fixture of the sound player's tests: the bare application with the real player in it, and
// behind that SDL's driver that writes what a loudspeaker would get into a file.
#pragma once

#include <wx/sound.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/steun/bytes.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/wavMaker.h"

class GeluidProef : public DesktopProef {
 protected:
  // Starts the application and puts the player in its place.
  void startSpeler();

  // Sounds from here on go to a file of that name in the test's directory. The device takes a block
  // of samples, 32 ms of sound or more, each `pauze` ms.
  void naarBestand(std::string const& naam, int pauze = snel);
  // What the device of that file has been given so far, but the silence at the begin: a device that
  // is open hears as many blocks of that as it takes before the sound starts.
  Bytes gehoord(std::string const& naam, WavSoort const& soort = {}) const;
  // True while this process holds the file open, as the device does.
  bool isOpen(std::string const& naam) const;

  // A sound of a WAV file with this content of its data chunk.
  std::unique_ptr<wxSound> maakGeluid(WavSoort const& soort, Bytes const& samples) const;

  // Runs the event loop until that is true. The test fails where it takes too long.
  static void draaiTot(std::function<bool()> const& genoeg);

  static constexpr int snel = 1;
  // So slow that no sound of some seconds comes to its end while a test looks.
  static constexpr int traag = 250;

 private:
  OmgevingsWaarde stuurprogramma{"SDL_AUDIODRIVER", "disk"};
  // A sound server that is looked for leaves a folder there.
  OmgevingsWaarde tijdelijkeBestanden{"TMPDIR", map.pad()};
  std::optional<OmgevingsWaarde> bestand;
  std::optional<OmgevingsWaarde> tempo;
};

// The form that the last device was opened for.
struct ToestelVorm {
  int rate;  // Hz
  int kanalen;
  int bits;
  bool metTeken;
  bool laagEerst;
  // The device may not be of another form.
  bool vast;
};
ToestelVorm laatsteToestel();

// That many bytes of a sound, of all values, whose first and last are no silence.
Bytes proefGeluid(std::size_t bytes);

// The device got the samples from the first to the last one, and behind them silence that
// lasts long enough for a sound server to let the last sample be heard.
void verwachtGeheel(Bytes const& gehoord, Bytes const& samples, WavSoort const& soort);
// The device got nothing but a begin of the samples.
void verwachtAfgebroken(Bytes const& gehoord, Bytes const& samples, WavSoort const& soort);
