#include "audio/codec/stroomRuimte.h"

#include <wx/mstream.h>

#include <cstdlib>
#include <new>

namespace {

// The block of a stream buffer is protected: derive to reach it.
class BufferBlok : public wxStreamBuffer {
 public:
  static void groei(wxStreamBuffer& buffer, std::size_t grootte) {
    std::size_t const plaats = buffer.GetIntPosition();
    // The toolkit has its blocks from malloc and releases them by free.
    void* const blok = std::realloc(buffer.GetBufferStart(), grootte);
    if (blok == nullptr) {
      throw std::bad_alloc();
    }
    char* const begin = static_cast<char*>(blok);
    buffer.*(&BufferBlok::m_buffer_start) = begin;
    buffer.*(&BufferBlok::m_buffer_end) = begin + grootte;
    buffer.SetIntPosition(plaats);
  }
};

}  // namespace

StroomRuimte::StroomRuimte(wxOutputStream& uit, std::size_t tekens) {
  auto* const geheugen = dynamic_cast<wxMemoryOutputStream*>(&uit);
  if (geheugen == nullptr || geheugen->GetOutputStreamBuffer()->IsFixed()) {
    return;
  }
  wxStreamBuffer& eigen = *geheugen->GetOutputStreamBuffer();
  // What lies behind the place of writing is going to be overwritten, and must not be given back.
  if (eigen.GetBytesLeft() > 0 || tekens == 0) {
    return;
  }
  BufferBlok::groei(eigen, eigen.GetIntPosition() + tekens);
  buffer = &eigen;
}

StroomRuimte::~StroomRuimte() {
  if (buffer != nullptr) {
    buffer->Truncate();
  }
}
