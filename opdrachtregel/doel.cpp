#include "opdrachtregel/doel.h"

#include <cerrno>
#include <filesystem>

#include "opdrachtregel/bestandBytes.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/paden.h"
#include "opdrachtregel/systeem.h"

Doel::Doel(std::string const& gegeven) : naam(gegeven), pad(gegeven) {}

std::unique_ptr<Doel> Doel::open(std::string const& pad, bool aanvullen) {
  std::unique_ptr<Doel> doel(new Doel(pad));
  if (!doel->bereidVoor() || (aanvullen && doel->isEr && !doel->neemInhoudOver())) {
    return nullptr;
  }
  return doel;
}

std::string Doel::geefMap() const {
  std::string const map = std::filesystem::u8path(pad).parent_path().u8string();
  return map.empty() ? "." : map;
}

bool Doel::meldFout(int code) const {
  meld("cannot write " + naam + ": " + redenEnRaad(code));
  return false;
}

bool Doel::bereidVoor() {
  if (naam == standaardUitvoer) {
    soort = Soort::standaardUitvoer;
    return maakNieuw(tijdelijkeMap());
  }
  Plaats const plaats = watStaatOp(naam);
  if (plaats == Plaats::onbekend) {
    return meldFout(errno);
  }
  if (plaats == Plaats::map) {
    meld("cannot write " + naam + ": it is a folder; give the name of a file in it");
    return false;
  }
  if (plaats == Plaats::toestel) {
    soort = Soort::toestel;
    return maakNieuw(tijdelijkeMap());
  }
  pad = achterLinks(naam);
  isEr = plaats == Plaats::bestand;
  if (isEr && !magSchrijven(pad)) {
    return meldFout(errno);
  }
  return maakNieuw(geefMap()) &&
         (neemRechtenOver(nieuw->geefHandvat(), pad, isEr) || meldFout(errno));
}

bool Doel::maakNieuw(std::string const& map) {
  nieuw = std::make_unique<WegwerpBestand>(map);
  if (!nieuw->isOpen() && isToestel()) {
    meldGeenTijdelijk();
    return false;
  }
  return nieuw->isOpen() || meldFout(errno);
}

bool Doel::neemInhoudOver() {
  Handvat const oud(openLezend(pad));
  int const code = oud.isOpen() ? kopieerBytes(oud.geef(), nieuw->geefHandvat()) : errno;
  return code == 0 || meldFout(code);
}

size_t Doel::OnSysWrite(void const* buffer, size_t bytes) {
  if (fout == 0) {
    fout = schrijfBytes(nieuw->geefHandvat(), static_cast<char const*>(buffer), bytes);
  }
  m_lasterror = fout == 0 ? wxSTREAM_NO_ERROR : wxSTREAM_WRITE_ERROR;
  return fout == 0 ? bytes : 0;
}

bool Doel::sluit() {
  if (fout != 0) {
    return meldFout(fout);
  }
  if (isToestel()) {
    // It is read once more, and then thrown away.
    return true;
  }
  if (!nieuw->isOpen()) {
    return true;
  }
  // A build must not find an empty file that looks new when the power comes back.
  return (legBestandVast(nieuw->geefHandvat()) && nieuw->sluit()) || meldFout(errno);
}

bool Doel::lever() {
  Handvat toestel(soort == Soort::standaardUitvoer ? openKanaal(kanaalUitvoer)
                                                   : openSchrijvend(pad));
  if (!toestel.isOpen() || !gaNaarBegin(nieuw->geefHandvat())) {
    return meldFout(errno);
  }
  int const geschreven = kopieerBytes(nieuw->geefHandvat(), toestel.geef());
  int const gesloten = toestel.sluit();
  int const code = geschreven != 0 ? geschreven : gesloten;
  return code == 0 || meldFout(code);
}

bool Doel::plaats() {
  return nieuw->hernoem(pad) || meldFout(errno);
}
