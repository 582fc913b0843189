// The accessible object of one row of a tree.
#pragma once

#include <atk/atk.h>
#include <wx/treebase.h>

#include <memory>

class BoomStand;

// The caller owns it.
AtkObject* maakRijToegang(std::shared_ptr<BoomStand> boom, wxTreeItemId const& item);
// The row is gone: the object says so from now on, and nothing else, to whoever holds it.
void laatRijLos(AtkObject* rij);
