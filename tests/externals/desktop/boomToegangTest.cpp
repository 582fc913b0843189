// The rows of a tree as screen readers find them, also of a tree that has gone.
#include <wx/panel.h>
#include <wx/textctrl.h>

#include "tests/externals/desktop/toegangProef.h"
#include "tests/steun/geduld.h"

namespace {

TEST_F(BoomProef, IsATreeOfTheRowsThatItShows) {
  EXPECT_EQ(atk_object_get_role(object), ATK_ROLE_TREE);
  EXPECT_TRUE(heeft(object, ATK_STATE_MANAGES_DESCENDANTS));
  EXPECT_EQ(lijst(), Teksten{"1 root"});
  boom->Expand(wortel);
  EXPECT_EQ(lijst(), (Teksten{"1 root", "2 één", "2 two"}));
  boom->Expand(een);
  EXPECT_EQ(lijst(), (Teksten{"1 root", "2 één", "3 deep", "2 two"}));
  boom->Collapse(wortel);
  EXPECT_EQ(lijst(), Teksten{"1 root"});
  EXPECT_EQ(rij(1), nullptr);
  EXPECT_EQ(rij(-1), nullptr);
}

TEST_F(BoomProef, TellsOfARowWhatItIsAndWhereItStands) {
  boom->Expand(wortel);
  boom->Expand(een);
  EXPECT_EQ(atk_object_get_role(rij(2)), ATK_ROLE_TREE_ITEM);
  EXPECT_EQ(atk_object_get_parent(rij(2)), object);
  EXPECT_EQ(atk_object_get_index_in_parent(rij(2)), 2);
  EXPECT_EQ((Teksten{onder(rij(0)), onder(rij(1)), onder(rij(2)), onder(rij(3))}),
            (Teksten{"", "root", "één", "root"}));
  EXPECT_TRUE(heeft(rij(1), ATK_STATE_EXPANDABLE));
  EXPECT_TRUE(heeft(rij(1), ATK_STATE_EXPANDED));
  EXPECT_FALSE(heeft(rij(3), ATK_STATE_EXPANDABLE));
  EXPECT_TRUE(heeft(rij(3), ATK_STATE_SHOWING));
  boom->SetItemText(twee, "other");
  EXPECT_STREQ(atk_object_get_name(rij(3)), "other");
  AtkObject* const diepeRij = rij(2);
  boom->Collapse(een);
  EXPECT_FALSE(heeft(diepeRij, ATK_STATE_VISIBLE));
  EXPECT_EQ(atk_object_get_index_in_parent(diepeRij), -1);
  boom->Disable();
  EXPECT_FALSE(heeft(rij(0), ATK_STATE_ENABLED));
}

TEST_F(BoomProef, TellsThePlaceOfARowOnTheScreen) {
  boom->Expand(wortel);
  rust();
  wxRect vak;
  ASSERT_TRUE(boom->GetBoundingRect(twee, vak));
  int x = 0;
  int y = 0;
  int breedte = 0;
  int hoogte = 0;
  auto* const deel = als<AtkComponent>(rij(2));
  atk_component_get_extents(deel, &x, &y, &breedte, &hoogte, ATK_XY_SCREEN);
  EXPECT_EQ(wxRect(x, y, breedte, hoogte),
            wxRect(boom->ClientToScreen(vak.GetPosition()), vak.GetSize()));
  atk_component_get_extents(deel, &x, &y, &breedte, &hoogte, ATK_XY_PARENT);
  EXPECT_EQ(wxRect(x, y, breedte, hoogte), vak);
}

TEST_F(BoomProef, IsChosenFromAsByTheUser) {
  boom->Expand(wortel);
  auto* const keuze = als<AtkSelection>(object);
  EXPECT_TRUE(atk_selection_add_selection(keuze, 2));
  EXPECT_EQ(boom->GetSelection(), twee);
  EXPECT_EQ(atk_selection_get_selection_count(keuze), 1);
  EXPECT_TRUE(atk_selection_is_child_selected(keuze, 2));
  EXPECT_FALSE(atk_selection_is_child_selected(keuze, 1));
  Vast const gekozen(atk_selection_ref_selection(keuze, 0));
  EXPECT_EQ(gekozen.get(), rij(2));
  EXPECT_TRUE(heeft(rij(2), ATK_STATE_SELECTED));
  EXPECT_EQ(atk_selection_ref_selection(keuze, 1), nullptr);
  EXPECT_FALSE(atk_selection_add_selection(keuze, 9));
  boom->Disable();
  EXPECT_FALSE(atk_selection_add_selection(keuze, 1));
  EXPECT_FALSE(atk_component_grab_focus(als<AtkComponent>(rij(1))));
  EXPECT_EQ(boom->GetSelection(), twee);
}

TEST_F(BoomProef, TellsTheRowThatGetsTheKeyboard) {
  boom->Expand(wortel);
  Teksten gehoord;
  g_signal_connect(object, "active-descendant-changed",
                   reinterpret_cast<GCallback>(+[](AtkObject*, AtkObject* nieuw, Teksten* doel) {
                     doel->emplace_back(atk_object_get_name(nieuw));
                   }),
                   &gehoord);
  EXPECT_TRUE(atk_component_grab_focus(als<AtkComponent>(rij(1))));
  EXPECT_TRUE(wachtTot([&] { return !gehoord.empty() && heeft(rij(1), ATK_STATE_FOCUSED); }));
  EXPECT_EQ(gehoord, Teksten{"één"});
  boom->SelectItem(twee);
  rust();
  EXPECT_EQ(gehoord, (Teksten{"één", "two"}));
  EXPECT_FALSE(heeft(rij(1), ATK_STATE_FOCUSED));
  EXPECT_TRUE(heeft(rij(2), ATK_STATE_FOCUSED));
  (new wxTextCtrl(venster, wxID_ANY))->SetFocus();
  EXPECT_TRUE(wachtTot([&] { return !heeft(rij(2), ATK_STATE_FOCUSED); }));
  boom->SelectItem(een);
  rust();
  EXPECT_EQ(gehoord, (Teksten{"één", "two"}));
}

// -- life times: run with AddressSanitizer too

TEST_F(BoomProef, RowsThatGoSayThatTheyAreGoneToWhoeverHoldsThem) {
  boom->Expand(wortel);
  boom->Expand(een);
  AtkObject* const eerste = rij(1);
  AtkObject* const diepste = rij(2);
  boom->Delete(een);
  verwachtWeg(eerste);
  verwachtWeg(diepste);
  EXPECT_EQ(lijst(), (Teksten{"1 root", "2 two"}));
  AtkObject* const laatste = rij(1);
  boom->DeleteAllItems();
  verwachtWeg(laatste);
  EXPECT_EQ(lijst(), Teksten{});
  boom->AddRoot("again");
  EXPECT_EQ(lijst(), Teksten{"1 again"});
  verwachtWeg(laatste);
}

TEST_F(BoomProef, ATreeThatGoesLeavesDefunctObjects) {
  boom->Expand(wortel);
  boom->SetFocus();
  rust();
  Vast const vast(als<AtkObject>(g_object_ref(object)));
  AtkObject* const laatste = rij(2);
  boom->SelectItem(twee);
  boom->Destroy();
  verwachtWeg(laatste);
  EXPECT_TRUE(heeft(object, ATK_STATE_DEFUNCT));
  EXPECT_EQ(atk_object_get_n_accessible_children(object), 0);
  EXPECT_EQ(atk_selection_get_selection_count(als<AtkSelection>(object)), 0);
  EXPECT_FALSE(atk_selection_add_selection(als<AtkSelection>(object), 0));
  rust();
}

TEST_F(BoomProef, NothingStaysOfATreeThatNobodyHolds) {
  boom->Expand(wortel);
  Teksten weg;
  auto const volg = [&weg](AtkObject* van) {
    g_object_weak_ref(
        als<GObject>(van),
        [](void* doel, GObject*) { static_cast<Teksten*>(doel)->emplace_back(); }, &weg);
  };
  volg(object);
  volg(rij(1));
  rijen.clear();
  EXPECT_EQ(weg.size(), 0U);
  boom->Destroy();
  rust();
  EXPECT_EQ(weg.size(), 2U);
}

TEST_F(BoomProef, OtherAreasKeepTheObjectOfTheirOwn) {
  auto* const paneel = new wxPanel(venster, wxID_ANY);
  EXPECT_STREQ(G_OBJECT_TYPE_NAME(toegangVan(paneel)), "GtkContainerAccessible");
  auto* const andere = new wxTreeCtrl(venster, wxID_ANY);
  EXPECT_STREQ(G_OBJECT_TYPE_NAME(toegangVan(andere)), "GtkContainerAccessible");
  maakLeesbaar(andere);
  EXPECT_EQ(atk_object_get_n_accessible_children(toegangVan(andere)), 0);
  EXPECT_EQ(lijst(), Teksten{"1 root"});
}

}  // namespace
