// The fixtures of what screen readers are told, asked of ATK in the test's own process.
#pragma once

#include <gtk/gtk.h>
#include <wx/frame.h>
#include <wx/treectrl.h>

#include <memory>
#include <string>
#include <vector>

#include "externals/desktop/gtkHulp.h"
#include "externals/desktop/toegankelijk.h"
#include "tests/externals/desktop/desktopProef.h"

using Teksten = std::vector<std::string>;

// A reader's own reference.
struct Los {
  void operator()(void* object) const { g_object_unref(object); }
};
using Vast = std::unique_ptr<AtkObject, Los>;

inline bool heeft(AtkObject* object, AtkStateType stand) {
  AtkStateSet* const standen = atk_object_ref_state_set(object);
  bool const aan = atk_state_set_contains_state(standen, stand) != 0;
  g_object_unref(standen);
  return aan;
}

class ToegangProef : public DesktopProef {
 protected:
  ToegangProef() {
    start();
    venster = maakVenster();
    // GLib's own complaints fail the test: they are written where nobody looks.
    g_log_set_default_handler(
        [](char const*, GLogLevelFlags, char const* tekst, void*) { ADD_FAILURE() << tekst; },
        nullptr);
  }
  void TearDown() override {
    stop();
    g_log_set_default_handler(g_log_default_handler, nullptr);
  }

  wxFrame* venster = nullptr;
};

class BoomProef : public ToegangProef {
 protected:
  BoomProef() {
    maakLeesbaar(boom);
    toonToetsenbord(boom);
    wortel = boom->AddRoot("root");
    een = boom->AppendItem(wortel, "één");
    twee = boom->AppendItem(wortel, "two");
    diep = boom->AppendItem(een, "deep");
    boom->SetSize(0, 0, 300, 300);
    rust();
    object = toegangVan(boom);
  }

  AtkObject* rij(int index) {
    rijen.emplace_back(atk_object_ref_accessible_child(object, index));
    return rijen.back().get();
  }
  // The rows as a reader lists them: level and name.
  Teksten lijst() {
    Teksten gevonden;
    for (int i = 0; i < atk_object_get_n_accessible_children(object); ++i) {
      AtkAttributeSet* const kenmerken = atk_object_get_attributes(rij(i));
      auto const* const niveau = static_cast<AtkAttribute const*>(kenmerken->data);
      gevonden.push_back(std::string(niveau->value) + " " + atk_object_get_name(rij(i)));
      atk_attribute_set_free(kenmerken);
    }
    return gevonden;
  }
  // The name of the row that this one stands under.
  static std::string onder(AtkObject* rij) {
    AtkRelationSet* const relaties = atk_object_ref_relation_set(rij);
    AtkRelation* const relatie =
        atk_relation_set_get_relation_by_type(relaties, ATK_RELATION_NODE_CHILD_OF);
    std::string naam =
        relatie == nullptr
            ? ""
            : atk_object_get_name(als<AtkObject>(atk_relation_get_target(relatie)->pdata[0]));
    g_object_unref(relaties);
    return naam;
  }
  void verwachtWeg(AtkObject* rij) {
    EXPECT_TRUE(heeft(rij, ATK_STATE_DEFUNCT));
    EXPECT_FALSE(heeft(rij, ATK_STATE_SHOWING));
    EXPECT_EQ(atk_object_get_parent(rij), nullptr);
    EXPECT_EQ(atk_object_get_index_in_parent(rij), -1);
    EXPECT_EQ(atk_object_get_attributes(rij), nullptr);
    EXPECT_EQ(onder(rij), "");
    EXPECT_FALSE(atk_component_grab_focus(als<AtkComponent>(rij)));
    int x = 0;
    atk_component_get_extents(als<AtkComponent>(rij), &x, &x, &x, &x, ATK_XY_SCREEN);
    EXPECT_EQ(x, -1);
  }

  wxTreeCtrl* boom = new wxTreeCtrl(venster, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                    wxTR_HAS_BUTTONS | wxTR_FULL_ROW_HIGHLIGHT);
  wxTreeItemId wortel;
  wxTreeItemId een;
  wxTreeItemId twee;
  wxTreeItemId diep;
  AtkObject* object = nullptr;
  std::vector<Vast> rijen;
};
