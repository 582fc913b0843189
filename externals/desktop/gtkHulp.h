// The way from the toolkit's windows to GTK and ATK.
#pragma once

#include <gtk/gtk.h>
#include <wx/window.h>

// An object of GLib as one of its classes. The caller knows that it is of that class.
template <typename Soort>
Soort* als(void* object) {
  return static_cast<Soort*>(object);
}

// What the user works: the inner widget, where the toolkit puts one that scrolls around it.
inline GtkWidget* widgetVan(wxWindow const* venster) {
  GtkWidget* const buiten = venster->GetHandle();
  bool const schuift = g_type_is_a(G_OBJECT_TYPE(buiten), gtk_scrolled_window_get_type()) != 0;
  return schuift ? gtk_bin_get_child(als<GtkBin>(buiten)) : buiten;
}

inline AtkObject* toegangVan(wxWindow const* venster) {
  return gtk_widget_get_accessible(widgetVan(venster));
}
