#include "externals/desktop/toegankelijk.h"

#include <gtk/gtk-a11y.h>
#include <wx/statusbr.h>

#include "externals/desktop/gtkHulp.h"

namespace {

constexpr char const* meldingSleutel = "velmora-melding";

// Since ATK 2.50: politeness of what is said, after what the reader is saying now.
constexpr int beleefd = 1;

// The readers of ATK 2.46 hear no announcement, but say the name of a notification that appears. It
// is kept for the next text, and for readers that still ask about it.
void toonMelding(AtkObject* balk, char const* tekst) {
  auto* melding = als<AtkObject>(g_object_get_data(als<GObject>(balk), meldingSleutel));
  if (melding == nullptr) {
    melding = als<AtkObject>(g_object_new(atk_object_get_type(), nullptr));
    atk_object_set_role(melding, ATK_ROLE_NOTIFICATION);
    atk_object_set_parent(melding, balk);
    g_object_set_data_full(als<GObject>(balk), meldingSleutel, melding, g_object_unref);
  }
  atk_object_set_name(melding, tekst);
  atk_object_notify_state_change(melding, ATK_STATE_SHOWING, 1);
}

}  // namespace

void noemControl(wxWindow* control, wxString const& naam) {
  atk_object_set_name(toegangVan(control), naam.utf8_str());
}

void toonAlsStatusBalk(wxStatusBar* balk) {
  atk_object_set_role(toegangVan(balk), ATK_ROLE_STATUSBAR);
}

void toonStatusTekst(wxStatusBar* balk, wxString const& tekst) {
  atk_object_set_name(toegangVan(balk), tekst.utf8_str());
}

void laatHoren(wxStatusBar* balk, wxString const& tekst) {
  AtkObject* const toegang = toegangVan(balk);
  wxScopedCharBuffer const woorden = tekst.utf8_str();
  GType const soort = atk_object_get_type();
  if (g_signal_lookup("notification", soort) != 0) {
    g_signal_emit_by_name(toegang, "notification", woorden.data(), beleefd);
    return;
  }
  if (g_signal_lookup("announcement", soort) != 0) {
    g_signal_emit_by_name(toegang, "announcement", woorden.data());
  }
  toonMelding(toegang, woorden.data());
}
