// What the accessible objects of a tree share: one object for the tree, one for each row that a
// reader asked for. Readers hold objects as long as they like, so the tree may go before them.
#pragma once

#include <gtk/gtk.h>
#include <wx/treectrl.h>

#include <map>
#include <memory>
#include <vector>

class BoomStand : public std::enable_shared_from_this<BoomStand> {
 public:
  BoomStand(wxTreeCtrl* van, AtkObject* object) : boom(van), toegang(object) {}

  // Null once the tree is gone.
  wxTreeCtrl* geefBoom() const { return boom; }
  AtkObject* geefToegang() const { return toegang; }

  // The rows that the tree shows, from top to bottom, those that are scrolled out of sight too.
  std::vector<wxTreeItemId> rijen() const;
  // The object of a row, made when it is first asked for; null for no row.
  AtkObject* rij(wxTreeItemId const& item);

  // What happens in the tree. Readers are told of a new place once for all that one event of the
  // user's did, and after GTK told them that the tree has the keyboard.
  void nieuwePlaats();
  void zonderFocus() const;
  void opengeklapt(wxTreeItemId const& item, bool isOpen) const;
  void rijGaat(wxTreeItemId const& item);
  void boomGaat();

 private:
  AtkObject* bekend(wxTreeItemId const& item) const;
  void meldPlaats();

  wxTreeCtrl* boom;
  AtkObject* toegang;   // as long as the tree
  wxTreeItemId plaats;  // the current row, as readers know it
  bool wachtOpMelding = false;
  std::map<void*, AtkObject*> objecten;  // owned; by the id of the row
};
