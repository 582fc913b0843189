// The fixture of the tests about the text of a run: recordings in a directory of the test's own,
// the settings of a first start, and the four ways of output, without a window.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "audio/uitvoer/kestrolinConfig.h"
#include "audio/uitvoer/speexMaker.h"
#include "audio/uitvoer/uitvoerRun.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

// Keeps what a run tells.
class ProefToezicht : public RunToezicht {
 public:
  explicit ProefToezicht(bool metKop = true) : header(metKop) {}

  bool metHeader(KestrolinConfig const& /*instellingen*/) override { return header; }
  void meldNietHeel(wxString const& wav) override { nietHeel.push_back(wav.utf8_string()); }
  void meldGedaan(std::size_t nummer) override { gedaan.push_back(nummer); }

  std::vector<std::string> nietHeel;
  std::vector<std::size_t> gedaan;

 private:
  bool header;
};

class RunProef : public testing::Test {
 protected:
  RunProef();

  // Writes a recording, or any bytes, under a name (UTF-8) in the test's directory.
  void wav(std::string const& naam, std::vector<std::int16_t> const& samples = {1, -1},
           WavSoort const& soort = {});
  void bestand(std::string const& naam, std::string const& inhoud);

  // The files of the next run, by their names in that directory: in any order, as a run has them
  // sorted.
  void laad(std::vector<std::string> const& namen);

  // The text of a run over them, with momentRegel in the place of each moment. Fails where the run
  // gives up.
  std::string pcm() { return tekstVan(pcmMaker); }
  std::string adpcm() { return tekstVan(adpcmMaker); }
  std::string speex();
  std::string inbed();
  std::string tekstVan(FragmentMaker& maker);
  // The same of a run that gives up at the file of this number, from 1 on.
  std::string tekstTot(std::size_t nummer, FragmentMaker& maker);

  TijdelijkeMap map;
  KestrolinConfig instellingen;
  std::string klasse = "Geluid";
  bool metHeader = true;
  // What the last run told.
  std::vector<std::string> nietHeel;
  std::vector<std::size_t> gedaan;
  // The state of the ADPCM coder goes on from run to run.
  PCMMaker pcmMaker;
  ADPCMMaker adpcmMaker;

 private:
  std::string draai(FragmentMaker& maker, std::optional<wxString> const& einde);

  wxSortedArrayString wavBestanden;
  OmgevingsWaarde tijdelijk{"TMPDIR", map.pad("tmp")};
};
