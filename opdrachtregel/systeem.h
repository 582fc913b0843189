// What the command asks of the system, which each system does in its own way. Names are UTF-8. What
// fails leaves the reason in errno.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

// The open files that a process is started with.
inline constexpr int kanaalInvoer = 0;
inline constexpr int kanaalUitvoer = 1;
inline constexpr int kanaalFout = 2;

// Sees to it that all three are open, and that bytes go through them as they are: the first file of
// a process that was started without one would take its place.
void bereidKanalenVoor();
// Whether a line on standard error can be taken back: it goes to a terminal.
bool kanRegelVerversen();

// An open file: to read what is there, to write to what is there, or one of the channels once more.
// Negative where that fails.
int openLezend(std::string const& pad);
int openSchrijvend(std::string const& pad);
int openKanaal(int kanaal);
// A new, empty file in the folder, for this user alone or, on Windows, for those of the folder;
// `pad` becomes its name.
int openNieuw(std::string const& map, std::string& pad);

// How many bytes went, 0 at the end. Negative where that fails.
std::ptrdiff_t leesDeel(int handvat, char* doel, std::size_t bytes);
std::ptrdiff_t schrijfDeel(int handvat, char const* begin, std::size_t bytes);
bool gaNaarBegin(int handvat);
// True when all that was written lies on the disk, or where the disk has no such promise.
bool legBestandVast(int handvat);
bool sluitBestand(int handvat);

// What is at a place.
enum class Plaats { leeg, bestand, map, toestel, onbekend };
// Unknown where the system does not tell.
Plaats watStaatOp(std::string const& pad);
// What changes when a file does.
struct BestandStaat {
  std::uintmax_t bytes = 0;
  std::filesystem::file_time_type moment;
};
BestandStaat leesStaat(std::string const& pad);

bool magLezen(std::string const& pad);
bool magSchrijven(std::string const& pad);
// Gives the open, new file the rights of the one at `pad`, or those of any new file where there is
// none. On Windows it keeps those of its folder.
bool neemRechtenOver(int handvat, std::string const& pad, bool isEr);

bool maakMap(std::string const& pad);
bool verwijderMap(std::string const& pad);
bool verwijderBestand(std::string const& pad);
// In one step, in place of what has the name `doel`.
bool hernoemBestand(std::string const& pad, std::string const& doel);
// Lets the file at `pad` be reached, or a copy of it, by the name `nieuw` too, in place of what has
// that name. The errno of what failed, or 0.
int bewaarOnder(std::string const& pad, std::string const& nieuw);

// The folder for files that go before the program ends: $TMPDIR, or that of the system.
std::string tijdelijkeMap();

// Where the window keeps its settings, as a user would write that place.
extern char const* const instellingenPlaats;

// Whether this errno says that there is no room.
bool isVol(int code);
