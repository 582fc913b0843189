// The fixture of the tests that follow a fragment through the window: WAV files in the test's own
// directory, loaded, encoded and saved as a user does it.
#pragma once

#include <string>
#include <vector>

#include "tests/steun/vensterProef.h"
#include "tests/steun/wavMaker.h"

// The lines of the tree below an accepted file: its name, and six lines one level deeper.
struct BoomBestand {
  wxString naam;
  int frames;
  int rate;
  int kanalen = 1;
  wxString formaat = "WAV S16 PCM";
};

class wxGenericProgressDialog;

// The progress of a run, null where none stands.
wxGenericProgressDialog* voortgang();

class WerkProef : public VensterProef {
 protected:
  // Starts with the PCM encoder, this output language, the class name "Geluid" and everything else
  // as at a first start, but for further lines of the configuration file: in the window's group, in
  // that of the encoder settings, and groups of their own.
  void begin(int taal = 0, wxString const& vensterRegels = wxEmptyString,
             wxString const& speexRegels = wxEmptyString, wxString const& meer = wxEmptyString);
  // The same with the ADPCM encoder.
  void beginAdpcm(int taal = 0, wxString const& speexRegels = wxEmptyString,
                  wxString const& meer = wxEmptyString);
  // The same with the Speex encoder.
  void beginSpeex(int taal = 0, wxString const& speexRegels = wxEmptyString,
                  wxString const& meer = wxEmptyString);

  // Writes a WAV file of 16-bit samples, or any bytes, under a name (UTF-8) in the test's directory
  // and returns its full path.
  wxString wav(std::string const& naam, std::vector<std::int16_t> const& samples = {1, -1},
               WavSoort const& soort = {});
  wxString bestand(std::string const& naam, std::string const& inhoud);
  // Makes a directory in the test's own and returns its full path.
  wxString submap(std::string const& naam);

  // Unchecks the header box and says yes to the question.
  void zonderHeader();
  // Clicks Encode, closes the message, and returns the text field with the moment taken out.
  wxString codeer();
  // Clicks Save and chooses this path, which no file may have yet.
  void bewaar(wxString const& doel);
  // The same for a file that is there, with the answer to the question that follows.
  void bewaarOver(wxString const& doel, int antwoord, std::function<void()> tijdens = nullptr);

  // Expects this to be the question that every save asks about a file that is there.
  void verwachtVraagOverBestand(Bericht const& bericht) const;

  // What can be seen of the state: audio is loaded; a result fits the settings.
  bool isGeladen() const;
  bool isGecodeerd() const;
  // Encodes what is loaded; the result, its text apart, takes effect only after the message.
  void verwachtGevolgNaMelding(wxString const& statusNa);
  // Loads a file from a directory of a strange name, encodes it, and expects the one message of
  // this encoder.
  void verwachtMeldingVan(wxString const& encoder);

  // zonderMomenten (codecHulp.h) of a text of the toolkit.
  static wxString zonderMoment(wxString const& tekst);

  // What the tree shows for these accepted files.
  static std::vector<wxString> boomVan(std::vector<BoomBestand> const& bestanden);
  // The error line that turns a file of this name away.
  static wxString afgewezen(wxString const& naam);
  // The texts of what was logged; anything but an error fails the test.
  static std::vector<wxString> fouten();

 private:
  void beginMet(int soort, int taal, wxString const& vensterRegels, wxString const& speexRegels,
                wxString const& meer);
};
