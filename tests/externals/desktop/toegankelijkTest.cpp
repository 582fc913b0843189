// The names of controls, and the status bar whose texts are heard.
#include "externals/desktop/toegankelijk.h"

#include <wx/choice.h>
#include <wx/textctrl.h>

#include <iterator>

#include "externals/desktop/statusBalk.h"
#include "tests/externals/desktop/toegangProef.h"

namespace {

TEST_F(ToegangProef, GivesControlsOfEveryKindTheirName) {
  auto const noem = [](wxWindow* control, char const* naam) {
    noemControl(control, wxString::FromUTF8(naam));
    return std::string(atk_object_get_name(toegangVan(control)));
  };
  EXPECT_EQ(noem(new wxTextCtrl(venster, wxID_ANY), "Größe"), "Größe");
  auto* const keuze = new wxChoice(venster, wxID_ANY);
  keuze->Append("shown");
  keuze->SetSelection(0);
  EXPECT_EQ(noem(keuze, "Width"), "Width");
  // The field itself, and not what scrolls around it.
  auto* const veld =
      new wxTextCtrl(venster, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE);
  EXPECT_EQ(noem(veld, "Text"), "Text");
  EXPECT_EQ(atk_object_get_role(toegangVan(veld)), ATK_ROLE_TEXT);
}

// -- the status bar

class StatusProef : public ToegangProef {
 protected:
  StatusProef() {
    venster->SetStatusBar(balk);
    object = toegangVan(balk);
    bool const beleefd = g_signal_lookup("notification", atk_object_get_type()) != 0;
    g_signal_connect_data(object, beleefd ? "notification" : "announcement",
                          reinterpret_cast<GCallback>(hoor), this, nullptr, G_CONNECT_SWAPPED);
  }

  static void hoor(void* proef, char const* tekst) {
    static_cast<StatusProef*>(proef)->gehoord.emplace_back(tekst);
  }

  StatusBalk* balk = new StatusBalk(venster, wxID_ANY, wxSTB_DEFAULT_STYLE, "bar");
  AtkObject* object = nullptr;
  Teksten gehoord;
};

TEST_F(StatusProef, IsAStatusBarThatIsCalledByItsText) {
  EXPECT_EQ(atk_object_get_role(object), ATK_ROLE_STATUSBAR);
  balk->SetStatusText("first");
  EXPECT_STREQ(atk_object_get_name(object), "first");
  EXPECT_EQ(balk->GetStatusText(), "first");
}

TEST_F(StatusProef, SaysEachTextOfItsFirstFieldAndTheSameOneAgain) {
  balk->SetFieldsCount(2);
  balk->SetStatusText("één");
  balk->SetStatusText("één");
  balk->SetStatusText("beside", 1);
  EXPECT_EQ(gehoord, (Teksten{"één", "één"}));
  EXPECT_STREQ(atk_object_get_name(object), "één");
}

TEST_F(StatusProef, SaysNothingThatAMenuShowsOrThatNobodySees) {
  balk->SetStatusText("before");
  // The way of the toolkit's menus.
  wxStatusBar* const gewoon = balk;
  gewoon->SetStatusText("help");
  EXPECT_STREQ(atk_object_get_name(object), "help");
  gewoon->SetStatusText("before");
  EXPECT_STREQ(atk_object_get_name(object), "before");
  venster->Hide();
  balk->SetStatusText("hidden");
  EXPECT_EQ(gehoord, Teksten{"before"});
}

// Where ATK knows no politeness, readers say the notifications that appear, and ask for their names
// in their own time.
TEST_F(StatusProef, ShowsANotificationForEachTextAndKeepsTheLastOnes) {
  if (g_signal_lookup("notification", atk_object_get_type()) != 0) {
    GTEST_SKIP() << "this ATK tells announcements in its own way";
  }
  static std::vector<AtkObject*> verschenen;
  verschenen.clear();
  auto const zie = [](GSignalInvocationHint*, unsigned, GValue const* waarden, void*) -> gboolean {
    auto* const van = als<AtkObject>(g_value_get_object(waarden));
    if (atk_object_get_role(van) == ATK_ROLE_NOTIFICATION) {
      EXPECT_STREQ(g_value_get_string(std::next(waarden)), "showing");
      verschenen.push_back(van);
    }
    return 1;
  };
  unsigned const luisteraar = atk_add_global_event_listener(zie, "Atk:AtkObject:state-change");
  int weg = 0;
  auto const zegEnVolg = [&](char const* tekst) {
    balk->SetStatusText(tekst);
    g_object_weak_ref(
        als<GObject>(verschenen.back()),
        [](void* teller, GObject*) { ++*static_cast<int*>(teller); }, &weg);
  };
  zegEnVolg("one");
  zegEnVolg("two");
  ASSERT_EQ(verschenen.size(), 2U);
  EXPECT_EQ(weg, 0);
  EXPECT_STREQ(atk_object_get_name(verschenen[0]), "one");
  EXPECT_STREQ(atk_object_get_name(verschenen[1]), "two");
  EXPECT_EQ(atk_object_get_parent(verschenen[1]), object);
  for (int keer = 0; keer < 100; ++keer) {
    zegEnVolg("many");
  }
  EXPECT_EQ(weg, 94);
  atk_remove_global_event_listener(luisteraar);
  venster->Destroy();
  rust();
  EXPECT_EQ(weg, 102);
}

}  // namespace
