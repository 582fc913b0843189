#include "externals/desktop/boomStandGtk.h"

#include <algorithm>

#include "externals/desktop/gtkHulp.h"
#include "externals/desktop/rijToegangGtk.h"

namespace {

// From the last to the first; empty for a row that is closed.
std::vector<wxTreeItemId> kinderenTerug(wxTreeCtrl const& boom, wxTreeItemId const& item) {
  std::vector<wxTreeItemId> kinderen;
  if (boom.IsExpanded(item)) {
    wxTreeItemIdValue plaats = nullptr;
    for (wxTreeItemId kind = boom.GetFirstChild(item, plaats); kind.IsOk();
         kind = boom.GetNextChild(item, plaats)) {
      kinderen.push_back(kind);
    }
  }
  std::reverse(kinderen.begin(), kinderen.end());
  return kinderen;
}

void meldStand(AtkObject* object, AtkStateType stand, bool aan) {
  if (object != nullptr) {
    atk_object_notify_state_change(object, stand, aan ? 1 : 0);
  }
}

}  // namespace

std::vector<wxTreeItemId> BoomStand::rijen() const {
  std::vector<wxTreeItemId> gevonden;
  if (boom == nullptr || !boom->GetRootItem().IsOk()) {
    return gevonden;
  }
  std::vector<wxTreeItemId> komen{boom->GetRootItem()};
  while (!komen.empty()) {
    wxTreeItemId const item = komen.back();
    komen.pop_back();
    gevonden.push_back(item);
    std::vector<wxTreeItemId> const kinderen = kinderenTerug(*boom, item);
    komen.insert(komen.end(), kinderen.begin(), kinderen.end());
  }
  return gevonden;
}

AtkObject* BoomStand::bekend(wxTreeItemId const& item) const {
  auto const gevonden = objecten.find(item.GetID());
  return gevonden == objecten.end() ? nullptr : gevonden->second;
}

AtkObject* BoomStand::rij(wxTreeItemId const& item) {
  if (!item.IsOk()) {
    return nullptr;
  }
  AtkObject*& object = objecten[item.GetID()];
  if (object == nullptr) {
    object = maakRijToegang(shared_from_this(), item);
  }
  return object;
}

void BoomStand::nieuwePlaats() {
  if (wachtOpMelding || boom == nullptr) {
    return;
  }
  wachtOpMelding = true;
  boom->CallAfter([stand = shared_from_this()] { stand->meldPlaats(); });
}

void BoomStand::meldPlaats() {
  wachtOpMelding = false;
  wxTreeItemId const nieuw = boom->GetFocusedItem();
  if (nieuw != plaats) {
    meldStand(bekend(plaats), ATK_STATE_FOCUSED, false);
    meldStand(bekend(plaats), ATK_STATE_SELECTED, false);
  }
  plaats = nieuw;
  g_signal_emit_by_name(toegang, "selection-changed");
  AtkObject* const object = rij(nieuw);
  meldStand(object, ATK_STATE_SELECTED, true);
  if (object != nullptr && boom->HasFocus()) {
    meldStand(object, ATK_STATE_FOCUSED, true);
    g_signal_emit_by_name(toegang, "active-descendant-changed", object);
  }
}

void BoomStand::zonderFocus() const {
  meldStand(bekend(plaats), ATK_STATE_FOCUSED, false);
}

void BoomStand::opengeklapt(wxTreeItemId const& item, bool isOpen) const {
  meldStand(bekend(item), ATK_STATE_EXPANDED, isOpen);
  g_signal_emit_by_name(toegang, "visible-data-changed");
}

void BoomStand::rijGaat(wxTreeItemId const& item) {
  if (item == plaats) {
    plaats.Unset();
  }
  AtkObject* const object = bekend(item);
  if (object != nullptr) {
    objecten.erase(item.GetID());
    laatRijLos(object);
    g_object_unref(object);
  }
}

void BoomStand::boomGaat() {
  while (!objecten.empty()) {
    rijGaat(wxTreeItemId(objecten.begin()->first));
  }
  boom = nullptr;
  toegang = nullptr;
}
