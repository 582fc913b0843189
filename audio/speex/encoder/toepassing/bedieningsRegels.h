// Which controls of the main window are usable when: the rules, without the window.
#pragma once

struct VensterToestand {
  bool geladen;          // audio files are loaded
  bool gecodeerd;        // there is a result that fits the settings
  bool klasseOntbreekt;  // the language needs a class name, and there is none
};

struct Bediening {
  bool bron;       // playing the source files, their tree
  bool inbedden;   // embedding the WAV files as arrays
  bool coderen;    // starting an encoder
  bool resultaat;  // saving and playing the result
};

constexpr Bediening bepaalBediening(VensterToestand toestand) {
  bool const klaar = toestand.geladen && !toestand.klasseOntbreekt;
  return {toestand.geladen, klaar, klaar && !toestand.gecodeerd, toestand.gecodeerd};
}
