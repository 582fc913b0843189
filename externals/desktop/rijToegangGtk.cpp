#include "externals/desktop/rijToegangGtk.h"

#include <algorithm>
#include <string>
#include <utility>

#include "externals/desktop/boomStandGtk.h"
#include "externals/desktop/gtkHulp.h"

namespace {

struct Rij {
  std::shared_ptr<BoomStand> stand;  // null once the row is gone
  wxTreeItemId item;
  std::string naam;  // as the last reader got it

  wxTreeCtrl& boom() const { return *stand->geefBoom(); }
};

struct RijObject {
  AtkObject basis;
  Rij* rij;
};

Rij& rijVan(void* object) {
  return *als<RijObject>(object)->rij;
}

bool isWeg(Rij const& rij) {
  return rij.stand == nullptr;
}

wxTreeItemId ouderVan(Rij const& rij) {
  return isWeg(rij) || rij.item == rij.boom().GetRootItem() ? wxTreeItemId()
                                                            : rij.boom().GetItemParent(rij.item);
}

int diepte(Rij const& rij) {
  int aantal = 0;
  for (wxTreeItemId item = rij.item; item.IsOk() && item != rij.boom().GetRootItem();
       item = rij.boom().GetItemParent(item)) {
    ++aantal;
  }
  return aantal;
}

int geefIndex(AtkObject* object) {
  Rij const& rij = rijVan(object);
  if (isWeg(rij)) {
    return -1;
  }
  std::vector<wxTreeItemId> const rijen = rij.stand->rijen();
  auto const gevonden = std::find(rijen.begin(), rijen.end(), rij.item);
  return gevonden == rijen.end() ? -1 : static_cast<int>(gevonden - rijen.begin());
}

AtkObject* geefOuder(AtkObject* object) {
  Rij const& rij = rijVan(object);
  return isWeg(rij) ? nullptr : rij.stand->geefToegang();
}

char const* geefNaam(AtkObject* object) {
  Rij& rij = rijVan(object);
  if (!isWeg(rij)) {
    rij.naam = rij.boom().GetItemText(rij.item).utf8_string();
  }
  return rij.naam.c_str();
}

void voegToe(AtkStateSet* standen, std::initializer_list<AtkStateType> lijst, bool aan = true) {
  for (AtkStateType const stand : lijst) {
    if (aan) {
      atk_state_set_add_state(standen, stand);
    }
  }
}

AtkStateSet* geefStanden(AtkObject* object) {
  AtkStateSet* const standen = atk_state_set_new();
  Rij const& rij = rijVan(object);
  if (isWeg(rij)) {
    voegToe(standen, {ATK_STATE_DEFUNCT});
    return standen;
  }
  wxTreeCtrl const& boom = rij.boom();
  bool const isGetoond = geefIndex(object) >= 0;
  bool const isGekozen = boom.IsSelected(rij.item);
  voegToe(standen, {ATK_STATE_FOCUSABLE, ATK_STATE_SELECTABLE, ATK_STATE_TRANSIENT});
  voegToe(standen, {ATK_STATE_ENABLED, ATK_STATE_SENSITIVE}, boom.IsEnabled());
  voegToe(standen, {ATK_STATE_VISIBLE}, isGetoond);
  voegToe(standen, {ATK_STATE_SHOWING}, isGetoond && boom.IsVisible(rij.item));
  voegToe(standen, {ATK_STATE_SELECTED}, isGekozen);
  voegToe(standen, {ATK_STATE_FOCUSED, ATK_STATE_ACTIVE}, isGekozen && boom.HasFocus());
  voegToe(standen, {ATK_STATE_EXPANDABLE}, boom.ItemHasChildren(rij.item));
  voegToe(standen, {ATK_STATE_EXPANDED}, boom.IsExpanded(rij.item));
  return standen;
}

// As GTK's own trees tell the level of a row: the rows are a list, and each names its parent.
AtkRelationSet* geefRelaties(AtkObject* object) {
  AtkRelationSet* const relaties = atk_relation_set_new();
  wxTreeItemId const ouder = ouderVan(rijVan(object));
  if (ouder.IsOk()) {
    atk_relation_set_add_relation_by_type(relaties, ATK_RELATION_NODE_CHILD_OF,
                                          rijVan(object).stand->rij(ouder));
  }
  return relaties;
}

AtkAttributeSet* geefKenmerken(AtkObject* object) {
  Rij const& rij = rijVan(object);
  if (isWeg(rij)) {
    return nullptr;
  }
  auto* const niveau = als<AtkAttribute>(g_malloc(sizeof(AtkAttribute)));
  niveau->name = g_strdup("level");
  niveau->value = g_strdup(std::to_string(diepte(rij) + 1).c_str());
  return g_slist_append(nullptr, niveau);
}

void geefPlaats(AtkComponent* deel, int* x, int* y, int* breedte, int* hoogte, AtkCoordType soort) {
  *x = *y = *breedte = *hoogte = -1;
  auto* const object = als<AtkObject>(deel);
  wxRect vak;
  if (geefIndex(object) < 0 || !rijVan(object).boom().GetBoundingRect(rijVan(object).item, vak)) {
    return;
  }
  int boomX = 0;
  int boomY = 0;
  if (soort != ATK_XY_PARENT) {
    auto* const boom = als<AtkComponent>(geefOuder(object));
    atk_component_get_extents(boom, &boomX, &boomY, breedte, hoogte, soort);
  }
  *x = boomX + vak.x;
  *y = boomY + vak.y;
  *breedte = vak.width;
  *hoogte = vak.height;
}

gboolean neemFocus(AtkComponent* deel) {
  Rij const& rij = rijVan(deel);
  if (isWeg(rij) || !rij.boom().IsEnabled()) {
    return 0;
  }
  rij.boom().SelectItem(rij.item);
  rij.boom().SetFocus();
  return 1;
}

void ruimOp(GObject* object) {
  delete als<RijObject>(object)->rij;
  als<GObjectClass>(g_type_class_peek(atk_object_get_type()))->finalize(object);
}

void vulKlasse(void* klasse, void* /*gegevens*/) {
  als<GObjectClass>(klasse)->finalize = ruimOp;
  auto* const atk = als<AtkObjectClass>(klasse);
  atk->get_name = geefNaam;
  atk->get_parent = geefOuder;
  atk->get_index_in_parent = geefIndex;
  atk->ref_state_set = geefStanden;
  atk->ref_relation_set = geefRelaties;
  atk->get_attributes = geefKenmerken;
}

void vulDeel(void* deel, void* /*gegevens*/) {
  als<AtkComponentIface>(deel)->get_extents = geefPlaats;
  als<AtkComponentIface>(deel)->grab_focus = neemFocus;
}

GType maakSoort() {
  GType const soort = g_type_register_static_simple(atk_object_get_type(), "VelmoraRijToegang",
                                                    sizeof(AtkObjectClass), vulKlasse,
                                                    sizeof(RijObject), nullptr, GTypeFlags{});
  GInterfaceInfo const deel{vulDeel, nullptr, nullptr};
  g_type_add_interface_static(soort, atk_component_get_type(), &deel);
  return soort;
}

}  // namespace

AtkObject* maakRijToegang(std::shared_ptr<BoomStand> boom, wxTreeItemId const& item) {
  static GType const soort = maakSoort();
  auto* const object = als<RijObject>(g_object_new(soort, nullptr));
  object->rij = new Rij{std::move(boom), item, {}};
  atk_object_set_role(&object->basis, ATK_ROLE_TREE_ITEM);
  return &object->basis;
}

void laatRijLos(AtkObject* rij) {
  rijVan(rij).item.Unset();
  rijVan(rij).stand.reset();
  atk_object_notify_state_change(rij, ATK_STATE_DEFUNCT, 1);
}
