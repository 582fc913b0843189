// Room in a stream in memory for a text of known length. The toolkit's streams ask the system for
// more memory at each write.
#pragma once

#include <cstddef>

class wxOutputStream;
class wxStreamBuffer;

class StroomRuimte {
 public:
  // Makes the memory of `uit` large enough for `tekens` more bytes, at once. Memory that nobody
  // writes to costs nothing. Other streams, streams of fixed memory, and streams with text behind
  // the place of writing stay as they are. Passes std::bad_alloc on.
  StroomRuimte(wxOutputStream& uit, std::size_t tekens);
  // Gives back what was not written. Until then it counts as a part of the stream.
  ~StroomRuimte();

  StroomRuimte(StroomRuimte const&) = delete;
  StroomRuimte& operator=(StroomRuimte const&) = delete;
  StroomRuimte(StroomRuimte&&) = delete;
  StroomRuimte& operator=(StroomRuimte&&) = delete;

 private:
  wxStreamBuffer* buffer = nullptr;  // of a stream in memory
};
