// The makers: each makes the text of one recording after the other in one of the four ways of
// output, from settings that are the same for all four.
#pragma once

#include <wx/string.h>

#include <cstddef>
#include <memory>

#include "audio/codec/adpcmDesktopConverter.h"
#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/wavInbedding.h"
#include "audio/uitvoer/runTekst.h"

class wxFileName;
class wxOutputStream;
struct KestrolinConfig;

enum class Gemaakt {
  heel,      // the text is complete
  nietHeel,  // the text is complete, but its array lacks a part of the recording
  mislukt    // no text
};

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
  // Appends the text of a recording to `uit`, with the header in its array or without. Wants a
  // begin() before. Passes std::bad_alloc on.
  virtual Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) = 0;

 private:
  RunSoort soort;
};

// Makes fragments by one of the two converters. A recording that cannot be read is told in the log.
template <typename Converter>
class ConverterMaker : public FragmentMaker {
 public:
  // Has a converter of its own.
  ConverterMaker();
  // Uses the caller's converter, which must outlive the maker. begin() replaces its options; what
  // else the converter holds, as the state of the ADPCM coder, goes on from run to run.
  explicit ConverterMaker(Converter& vanBuiten);

  void begin(KestrolinConfig const& instellingen, wxString const& klasse,
             std::size_t aantal) override;
  Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) override;

 private:
  std::unique_ptr<Converter> eigen;
  Converter& converter;
};

using PCMMaker = ConverterMaker<PCMDesktopConverter>;
using ADPCMMaker = ConverterMaker<ADPCMDesktopConverter>;

// Embeds each WAV file as a whole. Ignores `metHeader`: a WAV file has its own header.
class WAVMaker : public FragmentMaker {
 public:
  // The image of each file is made at `beeldPad`, one over the other, or in new temporary files
  // that stay where that is empty.
  explicit WAVMaker(wxString const& beeldPad = wxString());

  void begin(KestrolinConfig const& instellingen, wxString const& klasse,
             std::size_t aantal) override;
  Gemaakt maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) override;

 private:
  InbedOpties opties;
};
