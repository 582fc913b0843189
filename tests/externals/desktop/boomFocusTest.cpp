// The frame around the current row of a tree, looked at in what the tree draws.
#include <wx/settings.h>
#include <wx/textctrl.h>

#include <cstddef>
#include <cstring>

#include "tests/externals/desktop/toegangProef.h"
#include "tests/steun/geduld.h"

namespace {

class KaderProef : public BoomProef {
 protected:
  // The colour of a pixel on the frame of a row, and of one beside it, inside the row.
  std::vector<unsigned> pixels(wxTreeItemId const& item) {
    wxRect vak;
    EXPECT_TRUE(boom->GetBoundingRect(item, vak));
    GtkWidget* const widget = widgetVan(boom);
    cairo_surface_t* const beeld = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 300, 300);
    cairo_t* const cr = cairo_create(beeld);
    gtk_widget_draw(widget, cr);
    cairo_destroy(cr);
    cairo_surface_flush(beeld);
    std::vector<unsigned> gevonden;
    for (int const x : {vak.x + 2, vak.x + 6}) {
      auto const* const bytes = cairo_image_surface_get_data(beeld);
      unsigned pixel = 0;
      std::ptrdiff_t const rij = vak.y + vak.height / 2;
      std::memcpy(
          &pixel,
          bytes + rij * cairo_image_surface_get_stride(beeld) + static_cast<std::ptrdiff_t>(x) * 4,
          sizeof pixel);
      gevonden.push_back(pixel & 0xFFFFFFU);
    }
    cairo_surface_destroy(beeld);
    return gevonden;
  }
  static unsigned kleur(wxSystemColour soort) {
    wxColour const k = wxSystemSettings::GetColour(soort);
    return static_cast<unsigned>(k.Red()) << 16U | static_cast<unsigned>(k.Green()) << 8U |
           k.Blue();
  }
};

TEST_F(KaderProef, StandsAroundTheCurrentRowWhileTheTreeHasTheKeyboard) {
  boom->Expand(wortel);
  boom->SelectItem(twee);
  auto* const veld = new wxTextCtrl(venster, wxID_ANY);
  veld->SetFocus();
  EXPECT_TRUE(wachtTot([&] { return veld->HasFocus(); }));
  rust();
  unsigned const grond = kleur(wxSYS_COLOUR_HIGHLIGHT);
  unsigned const kader = kleur(wxSYS_COLOUR_HIGHLIGHTTEXT);
  ASSERT_NE(grond, kader);
  EXPECT_EQ(pixels(twee), (std::vector<unsigned>{grond, grond}));
  boom->SetFocus();
  EXPECT_TRUE(wachtTot([&] { return boom->HasFocus(); }));
  EXPECT_EQ(pixels(twee), (std::vector<unsigned>{kader, grond}));
  EXPECT_NE(pixels(een)[0], kader == kleur(wxSYS_COLOUR_LISTBOX) ? grond : kader);
  boom->DeleteAllItems();
  boom->Update();
  rust();
}

}  // namespace
