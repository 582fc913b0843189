// The icon of a program, read from where an installation has it.
#include "externals/desktop/pictogram.h"

#include <wx/frame.h>
#include <wx/image.h>
#include <wx/stdpaths.h>

#include <algorithm>

#include "tests/externals/desktop/desktopProef.h"
#include "tests/externals/desktop/pictogramMap.h"

namespace {

class Pictogram : public DesktopProef {
 protected:
  // The application, as if its program were PREFIX/bin/PROGRAM.
  void startIn(std::string const& prefix) {
    start();
    wxStandardPaths::Get().SetInstallPrefix(wxString::FromUTF8(prefix));
  }

  // The sizes in the bundle. None of this is worth a word to anybody.
  std::vector<int> lees(wxString const& naam = "proef") {
    log.clear();
    testing::internal::CaptureStderr();
    wxIconBundle const bundel = leesPictogrammen(naam);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_TRUE(nietsGelogd(log));
    std::vector<int> maten;
    for (std::size_t i = 0; i < bundel.GetIconCount(); ++i) {
      wxIcon const een = bundel.GetIconByIndex(i);
      EXPECT_TRUE(een.IsOk());
      EXPECT_EQ(een.GetWidth(), een.GetHeight());
      maten.push_back(een.GetWidth());
    }
    return maten;
  }

  static std::vector<int> alleBehalve(int maat) {
    std::vector<int> maten(vensterMaten.begin(), vensterMaten.end());
    maten.erase(std::find(maten.begin(), maten.end(), maat));
    return maten;
  }

  static int aantalPngLezers() {
    wxList const& lezers = wxImage::GetHandlers();
    return static_cast<int>(std::count_if(lezers.begin(), lezers.end(), [](wxObject* lezer) {
      return dynamic_cast<wxPNGHandler*>(lezer) != nullptr;
    }));
  }
};

TEST_F(Pictogram, EverySizeUpTo128IsThePictureOfItsFolder) {
  startIn(map.pad());
  maakPictogrammen(map.pad(), "proef");
  wxIconBundle const bundel = leesPictogrammen("proef");
  EXPECT_EQ(bundel.GetIconCount(), vensterMaten.size());
  for (int const maat : vensterMaten) {
    SCOPED_TRACE(maat);
    wxIcon const een = bundel.GetIconOfExactSize(maat);
    ASSERT_TRUE(een.IsOk());
    wxBitmap bitmap;
    bitmap.CopyFromIcon(een);
    wxImage const beeld = bitmap.ConvertToImage();
    ASSERT_EQ(beeld.GetSize(), wxSize(maat, maat));
    EXPECT_EQ(beeld.GetRed(0, 0), maat);
    EXPECT_EQ(beeld.GetGreen(maat - 1, 0), 100);
    EXPECT_EQ(beeld.GetBlue(maat - 1, maat - 1), 200);
  }
}

TEST_F(Pictogram, WhatIsTransparentStaysSo) {
  startIn(map.pad());
  std::string const pad = pictogramPad(map.pad(), "proef", 32);
  std::filesystem::create_directories(std::filesystem::path(pad).parent_path());
  ASSERT_EQ(voerUit("convert -size 32x32 xc:none -fill red -draw 'rectangle 8,8 23,23' 'PNG32:" +
                    pad + "'"),
            0);
  wxBitmap bitmap;
  bitmap.CopyFromIcon(leesPictogrammen("proef").GetIconOfExactSize(32));
  ASSERT_TRUE(bitmap.IsOk());
  wxImage const beeld = bitmap.ConvertToImage();
  ASSERT_TRUE(beeld.HasAlpha());
  EXPECT_EQ(beeld.GetAlpha(0, 0), 0);
  EXPECT_EQ(beeld.GetAlpha(16, 16), 255);
}

TEST_F(Pictogram, LargerOnesAndOtherNamesAreLeftAlone) {
  startIn(map.pad());
  maakPictogram(map.pad(), "proef", 48, 48);
  maakPictogram(map.pad(), "proef", 256, 256);
  maakPictogram(map.pad(), "ander", 64, 64);
  EXPECT_EQ(lees(), std::vector<int>{48});
  // The name of the program may hold any sign.
  for (std::string const naam : {"100%s", "een twee", "caf\xC3\xA9"}) {
    maakPictogram(map.pad(), naam, 32, 32);
    EXPECT_EQ(lees(wxString::FromUTF8(naam)), std::vector<int>{32}) << naam;
  }
}

TEST_F(Pictogram, WithoutAnInstallationThereIsNoneAndThatDoesAWindowNoHarm) {
  startIn(map.pad("nergens"));
  EXPECT_EQ(lees(), std::vector<int>{});
  wxFrame* const venster = maakVenster();
  venster->SetIcons(leesPictogrammen("proef"));
  rust();
  EXPECT_TRUE(venster->GetIcons().IsEmpty());
  EXPECT_TRUE(nietsGelogd(log));
}

struct Schade {
  char const* naam;
  char const* opdracht;  // of the shell, on the file "$pad"
};

TEST_F(Pictogram, DamagedOneIsLeftOut) {
  startIn(map.pad());
  maakPictogrammen(map.pad(), "proef");
  std::string const pad = pictogramPad(map.pad(), "proef", 64);
  for (Schade const& schade : {
           Schade{"missing", "rm $pad"},
           Schade{"folder", "rm $pad && mkdir $pad"},
           Schade{"link to nowhere", "ln -sf nergens $pad"},
           Schade{"another size than its folder", "convert -size 63x63 xc:red PNG:$pad"},
           Schade{"empty", "truncate -s 0 $pad"},
           Schade{"signature alone", "truncate -s 8 $pad"},
           Schade{"cut off", "truncate -s 60 $pad"},
           Schade{"text", "echo 'no picture' > $pad"},
           Schade{"zeros", "head -c 4096 /dev/zero > $pad"},
           Schade{"other signature", "printf 'X' | dd of=$pad bs=1 conv=notrunc status=none"},
           // The first byte of the width, which the checksum guards.
           Schade{"damaged head",
                  "printf '\\177' | dd of=$pad bs=1 seek=16 conv=notrunc status=none"},
           Schade{"other kind", "convert -size 64x64 xc:red BMP:$pad"},
       }) {
    SCOPED_TRACE(schade.naam);
    std::filesystem::remove_all(pad);
    maakPictogram(map.pad(), "proef", 64, 64);
    ASSERT_EQ(voerUit("pad='" + pad + "'; " + schade.opdracht), 0);
    EXPECT_EQ(lees(), alleBehalve(64));
  }
}

TEST_F(Pictogram, ReaderOfPngIsRegisteredOnce) {
  startIn(map.pad());
  EXPECT_EQ(aantalPngLezers(), 0);
  lees();
  EXPECT_EQ(aantalPngLezers(), 1);
  lees();
  EXPECT_EQ(aantalPngLezers(), 1);
}

TEST_F(Pictogram, ReaderOfPngThatIsThereAlreadyServes) {
  startIn(map.pad());
  maakPictogrammen(map.pad(), "proef");
  // The toolkit owns it.
  auto* const eigen = new wxPNGHandler;
  wxImage::AddHandler(eigen);
  EXPECT_EQ(lees().size(), vensterMaten.size());
  EXPECT_EQ(aantalPngLezers(), 1);
  EXPECT_EQ(wxImage::FindHandler(wxBITMAP_TYPE_PNG), eigen);
}

}  // namespace
