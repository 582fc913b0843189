#include "tests/audio/codec/codecHulp.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

#include "tests/steun/opdracht.h"

std::string const momentRegel = "/* Date : MOMENT\t\t*/\n";

namespace {

std::string hexadecimaal(unsigned int waarde) {
  std::array<char, 16> tekst{};
  EXPECT_GT(std::snprintf(tekst.data(), tekst.size(), "0x%x", waarde), 0);
  return tekst.data();
}

// Hundredths with a point before the last two digits.
std::string tweeDecimalen(int honderdsten) {
  int const rest = honderdsten % 100;
  return std::to_string(honderdsten / 100) + (rest < 10 ? ".0" : ".") + std::to_string(rest);
}

// Empty in a language that has no such line.
std::string tellingRegel(VerwachteTekst const& gegevens, VerwachteTelling const& telling) {
  std::string const waarde =
      gegevens.naam + telling.achtervoegsel + "=" + std::to_string(telling.aantal) + ";";
  if (gegevens.taal == 0) {
    return "/* const unsigned int " + waarde + " */\n";
  }
  return gegevens.taal == 1 ? "//const unsigned int " + gegevens.klasse + "::" + waarde + "\n" : "";
}

std::string regelVan(std::string const& tekst, std::size_t plaats) {
  std::size_t const vorige = plaats == 0 ? std::string::npos : tekst.rfind('\n', plaats - 1);
  std::size_t const begin = vorige == std::string::npos ? 0 : vorige + 1;
  return tekst.substr(begin, tekst.find('\n', plaats) - begin);
}

}  // namespace

wxString wxTekst(std::string const& utf8) {
  return wxString::FromUTF8(utf8.data(), utf8.size());
}

wxFileName bestandsnaam(std::string const& pad) {
  return {wxTekst(pad)};
}

std::vector<int> golf(std::size_t aantal) {
  std::vector<std::int16_t> const samples = proefSamples(aantal);
  return {samples.begin(), samples.end()};
}

std::string tekstVan(wxMemoryOutputStream const& stroom) {
  std::string tekst(stroom.GetSize(), '\0');
  stroom.CopyTo(tekst.data(), tekst.size());
  return tekst;
}

std::string zonderMomenten(std::string const& tekst) {
  std::string vorm = tekst;
  std::replace_if(
      vorm.begin(), vorm.end(), [](char teken) { return teken >= '0' && teken <= '9'; }, '9');
  std::string const moment = "/* Date : 9999-99-99 : 99:99:99\t\t*/\n";
  std::string zonder;
  std::size_t begin = 0;
  for (std::size_t plaats = vorm.find(moment); plaats != std::string::npos;
       plaats = vorm.find(moment, begin)) {
    zonder.append(tekst, begin, plaats - begin).append(momentRegel);
    begin = plaats + moment.size();
  }
  return zonder + tekst.substr(begin);
}

std::string zonderMoment(std::string const& tekst) {
  std::string const zonder = zonderMomenten(tekst);
  std::size_t const plaats = zonder.find(momentRegel);
  EXPECT_TRUE(plaats != std::string::npos &&
              zonder.find("/* Date", plaats + 1) == std::string::npos)
      << "not one line of date and time: " << tekst.substr(0, 200);
  return zonder;
}

testing::AssertionResult zelfdeTekst(std::string const& gevonden, std::string const& verwacht) {
  if (gevonden == verwacht) {
    return testing::AssertionSuccess();
  }
  std::size_t plaats = 0;
  while (plaats < gevonden.size() && plaats < verwacht.size() &&
         gevonden[plaats] == verwacht[plaats]) {
    ++plaats;
  }
  return testing::AssertionFailure()
         << "differs at byte " << plaats << " of " << gevonden.size() << " (" << verwacht.size()
         << " expected)\n  found:    " << testing::PrintToString(regelVan(gevonden, plaats))
         << "\n  expected: " << testing::PrintToString(regelVan(verwacht, plaats));
}

Bytes verwachtBeeld(std::vector<int> const& samples, int rate, bool metHeader) {
  Bytes beeld;
  if (metHeader) {
    beeld = laagEerst(samples.size(), 4);
    for (unsigned char const b : laagEerst(static_cast<unsigned long long>(rate), 2)) {
      beeld.push_back(b);
    }
  }
  for (int const sample : samples) {
    for (unsigned char const b : laagEerst(static_cast<unsigned long long>(sample), 2)) {
      beeld.push_back(b);
    }
  }
  if (!metHeader) {
    beeld.insert(beeld.end(), 6, 0);
  }
  return beeld;
}

testing::AssertionResult luktIn(std::string const& map, std::string const& opdracht) {
  if (voerUit("cd '" + map + "' && { " + opdracht + "; } > uitvoer.txt 2>&1") == 0) {
    return testing::AssertionSuccess();
  }
  return testing::AssertionFailure() << opdracht << "\n" << leesTekst(map + "/uitvoer.txt");
}

std::vector<int> gedeeld(std::vector<int> waarden, int deler) {
  for (int& waarde : waarden) {
    bool const negatief = waarde < 0;
    int const grootte = (negatief ? -waarde : waarde) / deler;
    waarde = negatief ? -grootte : grootte;
  }
  return waarden;
}

std::string verwachteDuur(int frames, int rate) {
  return rate == 0 ? "nan" : tweeDecimalen((frames * 200 / rate + 1) / 2);
}

std::string verwachteRijen(Bytes const& bytes) {
  std::string rijen;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    rijen += (i % 8 == 0 ? "\t" : "") + hexadecimaal(bytes[i]) + ",";
    rijen += i % 8 == 7 || i + 1 == bytes.size() ? "\n" : "";
  }
  return rijen;
}

std::string maakVerwachteTekst(VerwachteTekst const& gegevens,
                               std::vector<VerwachteTelling> const& tellingen, Bytes const& beeld) {
  std::string tekst = "\n/* Encoded on " KESTROLIN_SYSTEEM "\t\t*/\n";
  tekst += momentRegel;
  tekst += "/* WAV file : " + gegevens.bestand + "\t\t*/\n";
  tekst += "/* WAV information :   \t\t*/\n";
  tekst += "/* Sampling frequency         : " + std::to_string(gegevens.rate) + " Hz\t\t*/\n";
  tekst += "/* Original size              : " + std::to_string(gegevens.frames) + " frames\t\t*/\n";
  tekst += "/* Original duration          : " + verwachteDuur(gegevens.frames, gegevens.rate) +
           " s\t\t*/\n";
  for (VerwachteTelling const& telling : tellingen) {
    tekst += tellingRegel(gegevens, telling);
  }
  if (gegevens.taal == 0 || gegevens.taal == 1) {
    if (gegevens.metHeader) {
      tekst +=
          "\n/* Bytes 0..3: Number of samples (Little Endian)\n"
          "    Bytes 4..5: Sampling frequency\n"
          "    Bytes 6..End:Data  */\n\n";
    }
    tekst += "const unsigned char " + (gegevens.taal == 1 ? gegevens.klasse + "::" : "") +
             gegevens.naam + "[] = \n{\n";
  }
  tekst += verwachteRijen(beeld);
  tekst += "\n};\n\n/* end of encoded WAV file         : " + gegevens.bestand + "         */\n";
  return tekst;
}

std::string maakVerwachteTekst(VerwachteTekst const& gegevens) {
  return maakVerwachteTekst(gegevens, {{"_pcmNumberOfEncSamples", gegevens.samples.size()}},
                            verwachtBeeld(gegevens.samples, gegevens.rate, gegevens.metHeader));
}
