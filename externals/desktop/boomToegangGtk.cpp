// The accessible object of a tree, in the place of the one that GTK makes for the area that the
// toolkit draws it in.
#include <gtk/gtk-a11y.h>
#include <wx/treectrl.h>

#include "externals/desktop/boomStandGtk.h"
#include "externals/desktop/gtkHulp.h"
#include "externals/desktop/toegankelijk.h"

namespace {

constexpr char const* toegangSleutel = "velmora-toegang";

using Stand = std::shared_ptr<BoomStand>;

struct BoomObject {
  GtkWidgetAccessible basis;
  Stand* stand;
};

BoomStand& standVan(void* object) {
  return **als<BoomObject>(object)->stand;
}

AtkObjectClass* basisKlasse() {
  return als<AtkObjectClass>(g_type_class_peek(gtk_widget_accessible_get_type()));
}

int aantalKinderen(AtkObject* object) {
  return static_cast<int>(standVan(object).rijen().size());
}

AtkObject* neemRij(BoomStand& stand, wxTreeItemId const& item) {
  AtkObject* const rij = stand.rij(item);
  if (rij != nullptr) {
    g_object_ref(rij);
  }
  return rij;
}

wxTreeItemId rijOp(BoomStand const& stand, int index) {
  std::vector<wxTreeItemId> const rijen = stand.rijen();
  return index >= 0 && index < static_cast<int>(rijen.size())
             ? rijen[static_cast<std::size_t>(index)]
             : wxTreeItemId();
}

AtkObject* neemKind(AtkObject* object, int index) {
  return neemRij(standVan(object), rijOp(standVan(object), index));
}

// Readers need not keep the rows, and follow the current one.
AtkStateSet* geefStanden(AtkObject* object) {
  AtkStateSet* const standen = basisKlasse()->ref_state_set(object);
  atk_state_set_add_state(standen, ATK_STATE_MANAGES_DESCENDANTS);
  return standen;
}

wxTreeItemId gekozen(AtkSelection* keuze) {
  wxTreeCtrl const* const boom = standVan(keuze).geefBoom();
  return boom == nullptr ? wxTreeItemId() : boom->GetSelection();
}

int aantalGekozen(AtkSelection* keuze) {
  return gekozen(keuze).IsOk() ? 1 : 0;
}

AtkObject* neemGekozen(AtkSelection* keuze, int index) {
  return index == 0 ? neemRij(standVan(keuze), gekozen(keuze)) : nullptr;
}

gboolean isGekozen(AtkSelection* keuze, int index) {
  wxTreeItemId const item = rijOp(standVan(keuze), index);
  return item.IsOk() && item == gekozen(keuze) ? 1 : 0;
}

gboolean kies(AtkSelection* keuze, int index) {
  wxTreeItemId const item = rijOp(standVan(keuze), index);
  if (!item.IsOk() || !standVan(keuze).geefBoom()->IsEnabled()) {
    return 0;
  }
  standVan(keuze).geefBoom()->SelectItem(item);
  return 1;
}

void ruimOp(GObject* object) {
  delete als<BoomObject>(object)->stand;
  als<GObjectClass>(basisKlasse())->finalize(object);
}

void vulKlasse(void* klasse, void* /*gegevens*/) {
  als<GObjectClass>(klasse)->finalize = ruimOp;
  auto* const atk = als<AtkObjectClass>(klasse);
  atk->get_n_children = aantalKinderen;
  atk->ref_child = neemKind;
  atk->ref_state_set = geefStanden;
}

void vulKeuze(void* deel, void* /*gegevens*/) {
  auto* const keuze = als<AtkSelectionIface>(deel);
  keuze->add_selection = kies;
  keuze->get_selection_count = aantalGekozen;
  keuze->ref_selection = neemGekozen;
  keuze->is_child_selected = isGekozen;
}

GType maakSoort() {
  GType const soort = g_type_register_static_simple(
      gtk_widget_accessible_get_type(), "VelmoraBoomToegang", sizeof(GtkWidgetAccessibleClass),
      vulKlasse, sizeof(BoomObject), nullptr, GTypeFlags{});
  GInterfaceInfo const keuze{vulKeuze, nullptr, nullptr};
  g_type_add_interface_static(soort, atk_selection_get_type(), &keuze);
  return soort;
}

// All areas that the toolkit draws in are of one class of widgets, and share the function of that
// class which gives the object. Ours asks the widget first; the others get what they always got.
AtkObject* (*vanDeKlasse)(GtkWidget*) = nullptr;

AtkObject* geefToegang(GtkWidget* widget) {
  auto* const eigen = als<AtkObject>(g_object_get_data(als<GObject>(widget), toegangSleutel));
  return eigen != nullptr ? eigen : vanDeKlasse(widget);
}

void leesUitWidget(GtkWidget* widget) {
  auto* const klasse = als<GtkWidgetClass>(als<GTypeInstance>(widget)->g_class);
  if (klasse->get_accessible != geefToegang) {
    vanDeKlasse = klasse->get_accessible;
    klasse->get_accessible = geefToegang;
  }
}

// As GTK does it with its own: from then on the object tells whoever holds it that it is defunct.
void widgetGaat(GtkWidget* widget, void* toegang) {
  gtk_accessible_set_widget(als<GtkAccessible>(toegang), nullptr);
  g_object_set_data(als<GObject>(widget), toegangSleutel, nullptr);
}

Stand maakToegang(wxTreeCtrl* boom) {
  static GType const soort = maakSoort();
  GtkWidget* const widget = widgetVan(boom);
  leesUitWidget(widget);
  auto* const toegang = als<BoomObject>(g_object_new(soort, "widget", widget, nullptr));
  auto* const object = als<AtkObject>(toegang);
  auto stand = std::make_shared<BoomStand>(boom, object);
  toegang->stand = new Stand(stand);
  atk_object_initialize(object, widget);
  atk_object_set_role(object, ATK_ROLE_TREE);
  g_object_set_data_full(als<GObject>(widget), toegangSleutel, toegang, g_object_unref);
  g_signal_connect(widget, "destroy", reinterpret_cast<GCallback>(widgetGaat), toegang);
  return stand;
}

// Hands an event of the tree to one of the state's functions, and lets it go on.
template <typename Event, typename Doen>
void volg(wxTreeCtrl* boom, wxEventTypeTag<Event> const& soort, Doen doen) {
  boom->Bind(soort, [doen](Event& event) {
    event.Skip();
    doen(event);
  });
}

}  // namespace

void maakLeesbaar(wxTreeCtrl* boom) {
  Stand const stand = maakToegang(boom);
  volg(boom, wxEVT_TREE_SEL_CHANGED, [stand](wxTreeEvent&) { stand->nieuwePlaats(); });
  volg(boom, wxEVT_SET_FOCUS, [stand](wxFocusEvent&) { stand->nieuwePlaats(); });
  volg(boom, wxEVT_KILL_FOCUS, [stand](wxFocusEvent&) { stand->zonderFocus(); });
  volg(boom, wxEVT_TREE_ITEM_EXPANDED,
       [stand](wxTreeEvent& event) { stand->opengeklapt(event.GetItem(), true); });
  volg(boom, wxEVT_TREE_ITEM_COLLAPSED,
       [stand](wxTreeEvent& event) { stand->opengeklapt(event.GetItem(), false); });
  volg(boom, wxEVT_TREE_DELETE_ITEM,
       [stand](wxTreeEvent& event) { stand->rijGaat(event.GetItem()); });
  volg(boom, wxEVT_DESTROY, [stand, boom](wxWindowDestroyEvent& event) {
    if (event.GetEventObject() == boom) {
      stand->boomGaat();
    }
  });
}
