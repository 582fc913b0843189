// Bytes from and to open files.
#pragma once

#include <cstddef>
#include <string>

// Writes all bytes, whatever number goes at a time. The errno of what failed, or 0.
int schrijfBytes(int handvat, char const* begin, std::size_t bytes);

// Copies from where `van` stands to its end. The errno of what failed, or 0.
int kopieerBytes(int van, int naar);

// Reads the whole of the file at `pad` into `inhoud`; "-" is standard input. The errno of what
// failed, or 0.
int leesBestand(std::string const& pad, std::string& inhoud);

// An open file that is closed at the end. A negative one is none.
class Handvat {
 public:
  explicit Handvat(int open) : waarde(open) {}
  ~Handvat();
  Handvat(Handvat const&) = delete;
  Handvat& operator=(Handvat const&) = delete;
  Handvat(Handvat&&) = delete;
  Handvat& operator=(Handvat&&) = delete;

  bool isOpen() const { return waarde >= 0; }
  int geef() const { return waarde; }
  // Closes it now. The errno of what the disk tells only then, or 0.
  int sluit();

 private:
  int waarde;
};
