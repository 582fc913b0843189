// A sound file opened through libsndfile: the shared holder of its handle, and the one place that
// turns a file name into the path bytes that the library gets.
#pragma once

#include <sndfile.h>
#include <wx/string.h>

#include <memory>
#include <utility>
#include <vector>

class wxFileName;

// Copies share one handle; the last one closes it, and for a written file that completes the
// header. A file that could not be opened has an info() of zeros and no samples. Nothing here
// reports an error but meldGebrek.
class SndBestand {
 public:
  // Opens for reading. info() tells what the header says.
  static SndBestand lees(wxFileName const& bestand);
  // Opens for writing, with any old content gone: `samplerate` in Hz, `formaat` a libsndfile format
  // word.
  static SndBestand schrijf(wxFileName const& bestand, int samplerate, int kanalen, int formaat);

  bool isOpen() const { return toestand != nullptr; }
  // False where the file could not be opened, or a read failed then or since: header or samples are
  // not what the file holds. A file that is shorter than its header says has just fewer frames.
  bool isHeelGelezen() const { return isOpen() && !toestand->leesfout; }
  // Logs one error line, with the name of the file, where that is false.
  void meldGebrek() const;
  SF_INFO const& info() const { return gegevens; }

  // Reads up to `aantal` interleaved 16-bit values and returns how many it got. Calls go on where
  // the last one stopped, also within a frame, although the library itself turns away a count that
  // is no whole number of frames. What lies behind those values in `doel` may be cleared: that
  // depends on the file.
  sf_count_t leesItems(short* doel, sf_count_t aantal);
  // Writes `aantal` 16-bit values, whole frames, and returns how many were written.
  sf_count_t schrijfItems(short const* bron, sf_count_t aantal);
  // Completes the header of an open, written file now: the last close tells nobody that it could
  // not. False where the disk failed.
  bool voltooiKop();

 private:
  struct Sluiter {
    void operator()(SNDFILE* handvat) const { sf_close(handvat); }
  };
  using Handvat = std::unique_ptr<SNDFILE, Sluiter>;

  // The open file. The last holder closes it.
  struct Toestand {
    Toestand(Handvat open, bool fout) : handvat(std::move(open)), leesfout(fout) {}

    Handvat handvat;
    bool leesfout;
    std::vector<short> rest;  // the values of a frame that was read but not yet handed out
  };

  SndBestand(wxFileName const& bestand, int modus, SF_INFO const& gevraagd);
  sf_count_t leesFrames(short* doel, sf_count_t aantal);
  static std::shared_ptr<Toestand> open(wxFileName const& bestand, int modus, SF_INFO& info);

  wxString pad;
  SF_INFO gegevens;
  std::shared_ptr<Toestand> toestand;
};
