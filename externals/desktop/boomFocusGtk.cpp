// The frame around the current row of a tree.
#include <wx/settings.h>
#include <wx/treectrl.h>

#include "externals/desktop/gtkHulp.h"
#include "externals/desktop/toegankelijk.h"

namespace {

// In pixels of the toolkit: what a reader of small print still sees.
constexpr double dikte = 2;

// After the toolkit drew the rows. The text of a chosen row stands out from its ground in any
// theme, and so does a frame of that colour.
gboolean tekenKader(GtkWidget* /*widget*/, cairo_t* cr, void* gegevens) {
  auto* const boom = als<wxTreeCtrl>(gegevens);
  wxRect vak;
  if (!boom->HasFocus() || !boom->GetSelection().IsOk() ||
      !boom->GetBoundingRect(boom->GetSelection(), vak)) {
    return 0;
  }
  wxColour const kleur = wxSystemSettings::GetColour(wxSYS_COLOUR_HIGHLIGHTTEXT);
  cairo_set_source_rgb(cr, kleur.Red() / 255.0, kleur.Green() / 255.0, kleur.Blue() / 255.0);
  cairo_set_line_width(cr, dikte);
  // One pixel of the ground stays around it.
  constexpr double rand = 1 + dikte / 2;
  cairo_rectangle(cr, vak.x + rand, vak.y + rand, vak.width - 2 * rand, vak.height - 2 * rand);
  cairo_stroke(cr);
  return 0;
}

}  // namespace

void toonToetsenbord(wxTreeCtrl* boom) {
  GtkWidget* const widget = widgetVan(boom);
  gulong const teken =
      g_signal_connect_after(widget, "draw", reinterpret_cast<GCallback>(tekenKader), boom);
  boom->Bind(wxEVT_DESTROY, [boom, widget, teken](wxWindowDestroyEvent& event) {
    if (event.GetEventObject() == boom) {
      g_signal_handler_disconnect(widget, teken);
    }
    event.Skip();
  });
}
