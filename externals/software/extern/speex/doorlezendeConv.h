// The conversion of a text that may be anything: as wxConvAuto has it, but it always gets on.
#pragma once

#include <wx/convauto.h>

// Once it has seen a byte order mark, wxConvAuto holds on to the encoding of that mark, and a text
// stream over it stands still for ever at the first bytes that are no text in it. Here nine bytes
// without a character among them, which is more than any encoding takes, count as one U+FFFD.
class DoorlezendeConv : public wxConvAuto {
 public:
  std::size_t ToWChar(wchar_t* doel, std::size_t ruimte, char const* bron,
                      std::size_t lengte = wxNO_LEN) const override;
  wxMBConv* Clone() const override;
};
