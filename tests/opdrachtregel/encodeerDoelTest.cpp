// The places to which kestrolin-cli encode writes: links, modes, and files that are one.
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/wavMaker.h"

namespace fs = std::filesystem;

namespace {

constexpr char const* oud = "old text\n";

class EncodeerDoel : public ProgrammaProef {
 protected:
  EncodeerDoel() {
    maakWav(map.pad("bel.wav"), {1, -1});
    fs::create_directory(map.pad("map"));
    omgeving["SOURCE_DATE_EPOCH"] = "0";
    nieuw = voer({"encode", "bel.wav", "-o", "-"}).uit;
    EXPECT_FALSE(nieuw.empty());
  }

  void lukt(std::vector<std::string> woorden) const {
    woorden.insert(woorden.begin(), {"encode", "bel.wav"});
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 0);
    EXPECT_EQ(afloop.fouten, "");
  }
  // Expects this line, and no file touched.
  void faalt(std::vector<std::string> woorden, std::string const& regel) const {
    std::vector<std::string> const voor = inhoud();
    woorden.insert(woorden.begin(), {"encode", "bel.wav"});
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 1);
    EXPECT_EQ(afloop.fouten, "kestrolin-cli: " + regel + "\n");
    EXPECT_EQ(inhoud(), voor);
  }
  mode_t rechten(std::string const& naam) const {
    struct stat gegevens {};
    EXPECT_EQ(stat(map.pad(naam).c_str(), &gegevens), 0) << naam;
    return gegevens.st_mode & ALLPERMS;
  }
  // Runs as a shell with this mask does.
  void metMasker(mode_t masker, std::vector<std::string> const& woorden) const {
    mode_t const vorig = umask(masker);
    lukt(woorden);
    umask(vorig);
  }

  std::string nieuw;
};

TEST_F(EncodeerDoel, LinksStayAndTheFileBehindThemIsReplaced) {
  maakBestand(map.pad("map/echt.c"), oud);
  fs::create_symlink("echt.c", map.pad("map/tussen.c"));
  fs::create_symlink("map/tussen.c", map.pad("uit.c"));
  lukt({"-o", "uit.c"});
  EXPECT_EQ(fs::read_symlink(map.pad("uit.c")), "map/tussen.c");
  EXPECT_EQ(fs::read_symlink(map.pad("map/tussen.c")), "echt.c");
  EXPECT_EQ(tekst("map/echt.c"), nieuw);
}

TEST_F(EncodeerDoel, ALinkToNothingGetsItsFile) {
  fs::create_symlink(map.pad("map/nieuw.c"), map.pad("uit.c"));
  lukt({"-o", "uit.c"});
  EXPECT_TRUE(fs::is_symlink(map.pad("uit.c")));
  EXPECT_EQ(tekst("map/nieuw.c"), nieuw);
  fs::create_symlink("weg/nieuw.c", map.pad("uit.h"));
  faalt({"-o", "uit.c", "--declarations", "uit.h"},
        "cannot write uit.h: No such file or directory; check the path");
}

TEST_F(EncodeerDoel, LinksThatLeadRoundAreNoPlace) {
  fs::create_symlink("twee.c", map.pad("een.c"));
  fs::create_symlink("een.c", map.pad("twee.c"));
  Afloop const afloop = voer({"encode", "bel.wav", "-o", "een.c"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(
      afloop.fouten,
      "kestrolin-cli: cannot write een.c: Too many levels of symbolic links; check the path\n");
  EXPECT_EQ(fs::read_symlink(map.pad("een.c")), "twee.c");
  EXPECT_EQ(fs::read_symlink(map.pad("twee.c")), "een.c");
}

TEST_F(EncodeerDoel, AnotherNameOfTheOldFileKeepsTheOldText) {
  maakBestand(map.pad("uit.c"), oud);
  fs::create_hard_link(map.pad("uit.c"), map.pad("ander.c"));
  lukt({"-o", "uit.c", "--declarations", "uit.h"});
  EXPECT_EQ(tekst("uit.c"), nieuw);
  EXPECT_EQ(tekst("ander.c"), oud);
  EXPECT_EQ(fs::hard_link_count(map.pad("ander.c")), 1U);
}

TEST_F(EncodeerDoel, AFileKeepsItsModeAndItsOwnerAndANewOneHasThatOfTheMask) {
  constexpr mode_t eigen = 0751;
  maakBestand(map.pad("uit.c"), oud);
  ASSERT_EQ(chmod(map.pad("uit.c").c_str(), eigen), 0);
  constexpr uid_t ander = 12345;
  bool const isRoot = chown(map.pad("uit.c").c_str(), ander, ander) == 0;
  metMasker(027,
            {"-o", "uit.c", "--declarations", "uit.h", "--source", "bron.c", "--depfile", "uit.d"});
  EXPECT_EQ(tekst("uit.c"), nieuw);
  EXPECT_EQ(rechten("uit.c"), eigen);
  for (char const* const naam : {"uit.h", "bron.c", "uit.d"}) {
    EXPECT_EQ(rechten(naam), 0640U) << naam;
  }
  struct stat gegevens {};
  ASSERT_EQ(stat(map.pad("uit.c").c_str(), &gegevens), 0);
  EXPECT_EQ(gegevens.st_uid, isRoot ? ander : getuid());
  // Appended to it is the same file to its users.
  metMasker(077, {"-o", "uit.d", "--append"});
  EXPECT_EQ(rechten("uit.d"), 0640U);
}

TEST_F(EncodeerDoel, AnInputIsNoPlaceByWhateverPath) {
  fs::create_symlink("bel.wav", map.pad("link.c"));
  fs::create_hard_link(map.pad("bel.wav"), map.pad("hard.c"));
  fs::create_directory_symlink(".", map.pad("rond"));
  for (std::string const pad : {"bel.wav", "map/../bel.wav", "link.c", "hard.c", "rond/bel.wav"}) {
    std::string const regel =
        "cannot write " + pad + ": it is one of the files to read; give another name";
    faalt({"-o", pad}, regel);
    faalt({"-o", "uit.c", "--depfile", pad}, regel);
  }
  faalt({"-o", map.pad("bel.wav")}, "cannot write " + map.pad("bel.wav") +
                                        ": it is one of the files to read; give another name");
}

TEST_F(EncodeerDoel, TwoOutputsAreTwoFilesByWhateverPath) {
  maakBestand(map.pad("uit.c"), oud);
  fs::create_symlink("uit.c", map.pad("link.c"));
  fs::create_symlink("nieuw.c", map.pad("los1.c"));
  fs::create_symlink("map/../nieuw.c", map.pad("los2.c"));
  fs::create_directory_symlink(".", map.pad("rond"));
  for (auto const& [een, ander] :
       {std::pair("uit.c", "./uit.c"), std::pair("uit.c", "map/../uit.c"),
        std::pair("uit.c", "link.c"), std::pair("link.c", "uit.c"),
        std::pair("rond/weg.c", "weg.c"), std::pair("los1.c", "los2.c")}) {
    faalt({"-o", een, "--declarations", ander},
          std::string("cannot write ") + ander + " twice: give each output a file of its own");
  }
  EXPECT_EQ(tekst("uit.c"), oud);
}

TEST_F(EncodeerDoel, PlacesOfTheTextThatCannotBe) {
  faalt({"-o", "map"}, "cannot write map: it is a folder; give the name of a file in it");
  faalt({"-o", "map/"}, "cannot write map/: it is a folder; give the name of a file in it");
  faalt({"-o", "weg/uit.c"}, "cannot write weg/uit.c: No such file or directory; check the path");
  faalt({"-o", "weg/"}, "cannot write weg/: No such file or directory; check the path");
  faalt({"-o", "bel.wav/uit.c"}, "cannot write bel.wav/uit.c: Not a directory; check the path");
  faalt({"-o", std::string(300, 'n')},
        "cannot write " + std::string(300, 'n') + ": File name too long; check the path");
}

TEST_F(EncodeerDoel, AFolderThatIsProtected) {
  zonderVoorrecht = true;
  maakBestand(map.pad("map/uit.c"), oud);
  fs::permissions(map.pad("map"), fs::perms::owner_read | fs::perms::owner_exec);
  faalt(
      {"-o", "map/nieuw.c"},
      "cannot write map/nieuw.c: Permission denied; change its permissions, or give another place");
  faalt({"-o", "map/uit.c"},
        "cannot write map/uit.c: Permission denied; change its permissions, or give another place");
  faalt({"-o", "uit.c", "--depfile", "map/uit.c"},
        "cannot write map/uit.c: Permission denied; change its permissions, or give another place");
  EXPECT_EQ(tekst("map/uit.c"), oud);
  fs::permissions(map.pad("map"), fs::perms::owner_all);
}

TEST_F(EncodeerDoel, DevicesTakeWhatGoesToThem) {
  lukt({"-o", "uit.c", "--depfile", "/dev/null"});
  EXPECT_EQ(tekst("uit.c"), nieuw);
  lukt({"-o", "/dev/null", "--declarations", "uit.h"});
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(inhoud(), (std::vector<std::string>{"bel.wav", "map/", "uit.c", "uit.h"}));
  Afloop const afloop = voer({"encode", "bel.wav", "-o", "/dev/stdout"});
  EXPECT_EQ(afloop.uit, nieuw);
}

}  // namespace
