#include "externals/software/extern/speex/doorlezendeConv.h"

#include <memory>

std::size_t DoorlezendeConv::ToWChar(wchar_t* doel, std::size_t ruimte, char const* bron,
                                     std::size_t lengte) const {
  // The most bytes that a text stream hands over before it gives up.
  constexpr std::size_t geduld = 9;
  constexpr wchar_t vervanging = 0xFFFD;
  std::size_t const tekens = wxConvAuto::ToWChar(doel, ruimte, bron, lengte);
  if (tekens != wxCONV_FAILED || lengte == wxNO_LEN || lengte < geduld) {
    return tekens;
  }
  if (doel != nullptr && ruimte > 0) {
    *doel = vervanging;
  }
  return 1;
}

// The caller owns the copy, which has yet to see the start of a text.
wxMBConv* DoorlezendeConv::Clone() const {
  return std::make_unique<DoorlezendeConv>().release();
}
