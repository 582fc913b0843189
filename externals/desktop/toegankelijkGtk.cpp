#include "externals/desktop/toegankelijk.h"

#include <gtk/gtk-a11y.h>
#include <wx/statusbr.h>

#include <string>

#include "externals/desktop/gtkHulp.h"

namespace {

// Since ATK 2.50: to be said after what the reader is saying now.
constexpr int beleefd = 1;

// The readers of ATK 2.46 hear no announcement, but say the name of a notification that appears.
// They ask for it in their own time, so each text has an object of its own, until some more have
// come.
void toonMelding(wxStatusBar* balk, char const* tekst) {
  constexpr unsigned bewaard = 8;
  static unsigned nummer = 0;
  auto* const melding = als<AtkObject>(g_object_new(atk_object_get_type(), nullptr));
  atk_object_set_role(melding, ATK_ROLE_NOTIFICATION);
  atk_object_set_parent(melding, toegangVan(balk));
  atk_object_set_name(melding, tekst);
  std::string const sleutel = "velmora-melding" + std::to_string(nummer++ % bewaard);
  // The widget's, and not its object's, which would hold itself that way.
  g_object_set_data_full(als<GObject>(widgetVan(balk)), sleutel.c_str(), melding, g_object_unref);
  atk_object_notify_state_change(melding, ATK_STATE_SHOWING, 1);
}

// The keyboard is in a button within a choice, and readers say that one's name.
// NOLINTNEXTLINE(misc-no-recursion)
void noemKnoppen(GtkWidget* widget, void* naam) {
  if (g_type_is_a(G_OBJECT_TYPE(widget), gtk_toggle_button_get_type()) != 0) {
    atk_object_set_name(gtk_widget_get_accessible(widget), als<char const>(naam));
  } else if (g_type_is_a(G_OBJECT_TYPE(widget), gtk_container_get_type()) != 0) {
    gtk_container_forall(als<GtkContainer>(widget), noemKnoppen, naam);
  }
}

}  // namespace

void noemControl(wxWindow* control, wxString const& naam) {
  std::string tekst = naam.utf8_string();
  GtkWidget* const widget = widgetVan(control);
  atk_object_set_name(toegangVan(control), tekst.c_str());
  if (g_type_is_a(G_OBJECT_TYPE(widget), gtk_combo_box_get_type()) != 0) {
    noemKnoppen(widget, tekst.data());
  }
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
  toonMelding(balk, woorden.data());
}
