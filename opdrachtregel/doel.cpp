#include "opdrachtregel/doel.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "opdrachtregel/bestandBytes.h"
#include "opdrachtregel/melding.h"

namespace fs = std::filesystem;

namespace {

// What a new file may be, as far as the user's mask lets it.
mode_t nieuweRechten() {
  constexpr mode_t alle = 0666;
  mode_t const masker = umask(0);
  umask(masker);
  return alle & ~masker;
}

// Where a file of this name will be: the end of a chain of links, also where nothing is there yet.
std::string achterLinks(std::string const& naam) {
  constexpr int meesteLinks = 40;
  fs::path pad = naam;
  std::error_code fout;
  for (int i = 0; i < meesteLinks && fs::is_symlink(fs::symlink_status(pad, fout)); ++i) {
    fs::path const doel = fs::read_symlink(pad, fout);
    pad = doel.is_absolute() ? doel : pad.parent_path() / doel;
  }
  return pad.string();
}

}  // namespace

Doel::Doel(std::string const& gegeven) : naam(gegeven), pad(gegeven) {}

std::unique_ptr<Doel> Doel::open(std::string const& pad, bool aanvullen) {
  std::unique_ptr<Doel> doel(new Doel(pad));
  if (!doel->bereidVoor() || (aanvullen && doel->isEr && !doel->neemInhoudOver())) {
    return nullptr;
  }
  return doel;
}

std::string Doel::geefMap() const {
  std::string const map = fs::path(pad).parent_path().string();
  return map.empty() ? "." : map;
}

bool Doel::meldFout(int code) const {
  meld("cannot write " + naam + ": " + redenEnRaad(code));
  return false;
}

bool Doel::bereidVoor() {
  std::error_code code;
  if (naam == standaardUitvoer) {
    soort = Soort::standaardUitvoer;
    return maakNieuw(tijdelijkeMap());
  }
  // By the name that was given: what stands behind a link of /proc, a pipe for instance, has none.
  fs::file_status const status = fs::status(naam, code);
  if (!fs::status_known(status)) {
    return meldFout(code.value());
  }
  if (fs::is_directory(status)) {
    meld("cannot write " + naam + ": it is a folder; give the name of a file in it");
    return false;
  }
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    soort = Soort::toestel;
    return maakNieuw(tijdelijkeMap());
  }
  pad = achterLinks(naam);
  isEr = fs::exists(status);
  if (isEr && access(pad.c_str(), W_OK) != 0) {
    return meldFout(errno);
  }
  return maakNieuw(geefMap()) && neemRechtenOver();
}

bool Doel::maakNieuw(std::string const& map) {
  nieuw = std::make_unique<WegwerpBestand>(map);
  if (!nieuw->isOpen() && isToestel()) {
    meldGeenTijdelijk();
    return false;
  }
  return nieuw->isOpen() || meldFout(errno);
}

bool Doel::neemRechtenOver() {
  struct stat oud {};
  if (!isEr || stat(pad.c_str(), &oud) != 0) {
    oud.st_mode = nieuweRechten();
  } else {
    // A user who may write to another user's file, but not give files away, gets one of his own.
    static_cast<void>(!fchown(nieuw->geefHandvat(), oud.st_uid, oud.st_gid));
  }
  return fchmod(nieuw->geefHandvat(), oud.st_mode & ALLPERMS) == 0 || meldFout(errno);
}

bool Doel::neemInhoudOver() {
  Handvat const oud(::open(pad.c_str(), O_RDONLY | O_CLOEXEC));
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
  bool const isVast = fsync(nieuw->geefHandvat()) == 0 || errno == EINVAL || errno == ENOTSUP;
  return (isVast && nieuw->sluit()) || meldFout(errno);
}

bool Doel::lever() {
  Handvat toestel(soort == Soort::standaardUitvoer ? dup(STDOUT_FILENO)
                                                   : ::open(pad.c_str(), O_WRONLY | O_CLOEXEC));
  if (!toestel.isOpen() || lseek(nieuw->geefHandvat(), 0, SEEK_SET) != 0) {
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
