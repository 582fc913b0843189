#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <system_error>

#include "opdrachtregel/systeem.h"

namespace fs = std::filesystem;

namespace {

// What a new file may be, as far as the user's mask lets it.
mode_t nieuweRechten() {
  constexpr mode_t alle = 0666;
  mode_t const masker = umask(0);
  umask(masker);
  return alle & ~masker;
}

// Whether the file is another user's, whose link may not be removed from every folder.
bool isVanAnder(std::string const& pad) {
  struct stat gegevens {};
  return stat(pad.c_str(), &gegevens) != 0 || gegevens.st_uid != geteuid();
}

// False where the file system has no links.
bool maakLink(std::string const& pad, std::string const& nieuw) {
  std::error_code fout;
  fs::create_hard_link(pad, nieuw, fout);
  return !fout;
}

}  // namespace

char const* const instellingenPlaats = "~/.Kestrolin";

void bereidKanalenVoor() {
  for (int const kanaal : {kanaalInvoer, kanaalUitvoer, kanaalFout}) {
    if (fcntl(kanaal, F_GETFD) < 0) {
      // Nothing can be written to the second one, as it should be.
      static_cast<void>(open("/dev/null", kanaal == kanaalFout ? O_WRONLY : O_RDONLY));
    }
  }
}

bool kanRegelVerversen() {
  return isatty(kanaalFout) == 1;
}

int openLezend(std::string const& pad) {
  return open(pad.c_str(), O_RDONLY | O_CLOEXEC);
}

int openSchrijvend(std::string const& pad) {
  return open(pad.c_str(), O_WRONLY | O_CLOEXEC);
}

int openKanaal(int kanaal) {
  return dup(kanaal);
}

int openNieuw(std::string const& map, std::string& pad) {
  pad = map + "/.kestrolin-XXXXXX";
  return mkstemp(pad.data());
}

std::ptrdiff_t leesDeel(int handvat, char* doel, std::size_t bytes) {
  return read(handvat, doel, bytes);
}

std::ptrdiff_t schrijfDeel(int handvat, char const* begin, std::size_t bytes) {
  return write(handvat, begin, bytes);
}

bool gaNaarBegin(int handvat) {
  return lseek(handvat, 0, SEEK_SET) == 0;
}

bool legBestandVast(int handvat) {
  return fsync(handvat) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool sluitBestand(int handvat) {
  // Linux has closed it, also where a signal came between.
  return close(handvat) == 0 || errno == EINTR;
}

Plaats watStaatOp(std::string const& pad) {
  std::error_code code;
  // By the name that was given: what stands behind a link of /proc, a pipe for instance, has none.
  fs::file_status const status = fs::status(pad, code);
  if (!fs::status_known(status)) {
    errno = code.value();
    return Plaats::onbekend;
  }
  if (fs::is_directory(status)) {
    return Plaats::map;
  }
  if (fs::exists(status)) {
    return fs::is_regular_file(status) ? Plaats::bestand : Plaats::toestel;
  }
  return Plaats::leeg;
}

BestandStaat leesStaat(std::string const& pad) {
  std::error_code fout;
  return {fs::file_size(pad, fout), fs::last_write_time(pad, fout)};
}

bool magLezen(std::string const& pad) {
  return access(pad.c_str(), R_OK) == 0;
}

bool magSchrijven(std::string const& pad) {
  return access(pad.c_str(), W_OK) == 0;
}

bool neemRechtenOver(int handvat, std::string const& pad, bool isEr) {
  struct stat oud {};
  if (!isEr || stat(pad.c_str(), &oud) != 0) {
    oud.st_mode = nieuweRechten();
  } else {
    // A user who may write to another user's file, but not give files away, gets one of his own.
    static_cast<void>(!fchown(handvat, oud.st_uid, oud.st_gid));
  }
  return fchmod(handvat, oud.st_mode & ALLPERMS) == 0;
}

bool maakMap(std::string const& pad) {
  constexpr mode_t alle = 0777;
  return mkdir(pad.c_str(), alle) == 0;
}

bool verwijderMap(std::string const& pad) {
  return rmdir(pad.c_str()) == 0;
}

bool verwijderBestand(std::string const& pad) {
  return unlink(pad.c_str()) == 0;
}

bool hernoemBestand(std::string const& pad, std::string const& doel) {
  return std::rename(pad.c_str(), doel.c_str()) == 0;
}

int bewaarOnder(std::string const& pad, std::string const& nieuw) {
  std::error_code code;
  fs::remove(nieuw, code);
  if (isVanAnder(pad) || !maakLink(pad, nieuw)) {
    fs::copy_file(pad, nieuw, code);
  }
  return code.value();
}

std::string tijdelijkeMap() {
  char const* const map = std::getenv("TMPDIR");
  return map != nullptr && *map != '\0' ? map : "/tmp";
}

bool isVol(int code) {
  return code == ENOSPC || code == EDQUOT || code == EFBIG;
}
