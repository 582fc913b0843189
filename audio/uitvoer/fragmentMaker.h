// The makers: each makes the text of one recording after the other in one of the four ways of
// output, from settings that are the same for all four.
#pragma once

#include <wx/string.h>

#include <cstddef>
#include <memory>

#include "audio/codec/wavInbedding.h"
#include "audio/uitvoer/runTekst.h"

class ADPCMDesktopConverter;
class PCMDesktopConverter;
class wxFileName;
class wxOutputStream;
struct KestrolinConfig;

// What became of the text of a recording: all of it; its text, with an array that does not hold all
// of the recording; or nothing, and nothing that follows can be made either.
enum class Gemaakt { heel, nietHeel, mislukt };

class FragmentMaker {
 public:
  explicit FragmentMaker(RunSoort const& eigenSoort) : soort(eigenSoort) {}
  virtual ~FragmentMaker() = default;

  FragmentMaker(FragmentMaker const&) = delete;
  FragmentMaker& operator=(FragmentMaker const&) = delete;
  FragmentMaker(FragmentMaker&&) = delete;
  FragmentMaker& operator=(FragmentMaker&&) = delete;

  RunSoort const& geefSoort() const { return soort; }

  // Starts a run over `aantal` recordings, for arrays that belong to `klasse` where the language
  // has classes.
  virtual void begin(KestrolinConfig const& instellingen, wxString const& klasse,
                     std::size_t aantal) = 0;
  // Appends the text of a recording to `uit`, with the header in its array or without.
  virtual Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) = 0;

 private:
  RunSoort soort;
};

// Over a converter of the caller's, whose options a run replaces. A recording that cannot be read
// is told in the log.
class PCMMaker : public FragmentMaker {
 public:
  explicit PCMMaker(PCMDesktopConverter& eigenConverter);

  void begin(KestrolinConfig const& instellingen, wxString const& klasse,
             std::size_t aantal) override;
  Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) override;

 private:
  PCMDesktopConverter& converter;
};

// The same. The state of the coder stays in the converter and goes on from run to run: a caller who
// wants the same bytes from every run has a new converter for each.
class ADPCMMaker : public FragmentMaker {
 public:
  explicit ADPCMMaker(ADPCMDesktopConverter& eigenConverter);

  void begin(KestrolinConfig const& instellingen, wxString const& klasse,
             std::size_t aantal) override;
  Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) override;

 private:
  ADPCMDesktopConverter& converter;
};

// Embedding of whole WAV images, which have a header of their own in any case.
class WAVMaker : public FragmentMaker {
 public:
  WAVMaker();

  void begin(KestrolinConfig const& instellingen, wxString const& klasse,
             std::size_t aantal) override;
  Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) override;

 private:
  InbedOpties opties;
};
