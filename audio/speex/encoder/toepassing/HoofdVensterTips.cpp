// The tooltips of the main window, on what surprises. They name the controls by their labels, which
// are English in every language. GTK shows them on disabled controls too, and tells them to screen
// readers as descriptions.
#include <wx/button.h>
#include <wx/intl.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include <array>

#include "audio/codec/uitvoerTaal.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/uitvoer/encoderSoort.h"
#include "externals/desktop/tips.h"

void HoofdVenster::zetTips() {
  wavSaveKnop->SetToolTip(_("Embeds the loaded WAV files whole, without an encoder."));
  maxRateVeld->SetToolTip(
      _("What you type here has no effect: the bit rate stays as the settings file has it. Enter "
        "presses Encode."));
  encoderTypeKeuze->SetItemToolTip(
      EncoderADPCM,
      _("Keeps only the low byte of each sample. Bring recordings down to 8 bits first, and choose "
        "16 Bit DAC."));
  langImplKeuze->SetItemToolTip(
      UitvoerTaalPython,
      _("Not available. Choosing it gives up the last result and leaves the language as it was."));
  klasseVeld->SetToolTip(
      _("The name of the C++ class. For C++, Encode stays disabled until there is a name."));
  encodeKnop->SetToolTip(
      _("Usable when files are loaded, no result fits the options, and, for C++, the class has a "
        "name."));
  playEncodedKnop->SetToolTip(
      _("Save first: playing an ADPCM or PCM text may need more memory than there is, and then the "
        "program ends."));
  std::array<wxWindow*, 4> const inVakken{encoderTypeKeuze, langImplKeuze, encodeKnop,
                                          playEncodedKnop};
  for (wxWindow* const control : inVakken) {
    laatTipsZien(*control);
  }
}
