// The text stream of SpeexDesktopDecoder, with short cuts through what generated text consists of.
#pragma once

#include <wx/stream.h>
#include <wx/txtstrm.h>

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "externals/software/extern/speex/speexBasis.h"

// A buffer over a stream, for bytes that are read where they lie.
class LeesBlok : public wxBufferedInputStream {
 public:
  static constexpr std::size_t gewoonlijk = 65536;

  // A file stream alone makes a system call for each character.
  explicit LeesBlok(wxInputStream& bron, std::size_t bytes = gewoonlijk)
      : wxBufferedInputStream(bron, bytes) {}

  // The bytes in the buffer that are read next. None while bytes that were put back come first, or
  // while an error stands, as a text stream makes one of a NUL: the next byte read takes it away.
  std::string_view gereed() const;
  // Takes the first `aantal` of them.
  void neem(std::size_t aantal);
};

// Words end at commas and at line ends. The inherited operations read any text. Those below give
// what the inherited ones would give, and stop where these would stop: they read bytes of plain
// ASCII in the buffer, and call the inherited ones for all else, and for texts with a byte order
// mark.
class FrameLezer : public wxTextInputStream {
 public:
  using Frame = std::array<char, SpeexBasis::maxFrameBytes>;

  explicit FrameLezer(LeesBlok& bron);

  // GetChar, until it gives "/", "{" or 0.
  wxChar zoekBegin();
  // ReadLine, without keeping the line.
  void slaRegelOver();
  // Reads a frame from in front of its size, and returns how many bytes of `frame` it has. Past the
  // end of an array that is mostly none.
  int leesFrame(Frame& frame);

 private:
  std::string_view gereed() const;
  std::optional<unsigned char> leesKorteMaat();
  void leesBytes(char* doel, std::size_t aantal);

  LeesBlok& blok;
};
