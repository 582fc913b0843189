#include <gtk/gtk.h>
#include <wx/window.h>

#include "externals/desktop/tips.h"

namespace {

// As deep as the widgets of one control lie in each other.
// NOLINTNEXTLINE(misc-no-recursion)
void volgMuis(GtkWidget* widget, void* /*gegevens*/) {
  // A button leaves moves of the mouse to its parent, where GTK takes the first child in that
  // place.
  gtk_widget_add_events(widget, GDK_POINTER_MOTION_MASK);
  if (g_type_is_a(G_OBJECT_TYPE(widget), gtk_container_get_type()) != 0) {
    gtk_container_forall(static_cast<GtkContainer*>(static_cast<void*>(widget)), volgMuis, nullptr);
  }
}

}  // namespace

void laatTipsZien(wxWindow& control) {
  volgMuis(control.GetHandle(), nullptr);
}
