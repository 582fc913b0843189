#include <windows.h>
// Behind the types of windows.h.
#include <mmsystem.h>
#include <wx/mstream.h>

#include "audio/weergave/wavSchrijver.h"
#include "opdrachtregel/geluidModule.h"
#include "opdrachtregel/melding.h"

// Windows plays by itself: no module is loaded.
GeluidModule::GeluidModule(std::string const& /*pad*/) {}

std::optional<GeluidModule> GeluidModule::laad() {
  return GeluidModule(std::string());
}

bool GeluidModule::speel(DoelGeluid const& geluid) const {
  if (!pastInWav(geluid)) {
    meld("nothing can be heard: the sound is longer than a WAV file can hold");
    return false;
  }
  wxMemoryOutputStream wav;
  schrijfWav(geluid, wav);
  auto const* const begin =
      static_cast<wchar_t const*>(wav.GetOutputStreamBuffer()->GetBufferStart());
  bool const isGehoord =
      wav.GetSize() > 0 && PlaySoundW(begin, nullptr, SND_MEMORY | SND_SYNC | SND_NODEFAULT) != 0;
  if (!isGehoord) {
    meld(std::string("nothing can be heard: ") + "no sound device was found" + geluidRemedie);
  }
  return isGehoord;
}
