#include <algorithm>
#include <array>

#include "externals/desktop/gtkHulp.h"
#include "externals/desktop/sleepDoor.h"

namespace {

bool biedtBestanden(GdkDragContext* context) {
  bool biedt = false;
  for (GList const* doel = gdk_drag_context_list_targets(context); doel != nullptr;
       doel = doel->next) {
    auto* atoom = static_cast<GdkAtom>(doel->data);
    biedt = biedt || gtk_targets_include_uri(&atoom, 1) != 0;
  }
  return biedt;
}

// GTK asks the widgets below the mouse from the inside out: a "no" goes on to the next.
template <int Plaats>
gboolean weiger(GtkWidget* veld, GdkDragContext* context, int /*x*/, int /*y*/, unsigned /*tijd*/,
                void* /*gegevens*/) {
  constexpr std::array<char const*, 2> signalen{"drag-motion", "drag-drop"};
  if (biedtBestanden(context)) {
    g_signal_stop_emission_by_name(veld, signalen[Plaats]);
  }
  return 0;
}

}  // namespace

void geefBestandenDoor(wxWindow& veld) {
  GtkWidget* const widget = widgetVan(&veld);
  g_signal_connect(widget, "drag-motion", reinterpret_cast<GCallback>(weiger<0>), nullptr);
  g_signal_connect(widget, "drag-drop", reinterpret_cast<GCallback>(weiger<1>), nullptr);
}
