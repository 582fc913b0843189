// The common base of the audio packets: a block of samples or encoded bytes in memory, its size,
// who owns it, and the next packet of a chain.
#pragma once

#include <cstring>

// A packet either owns its block (it allocated it) or lies over memory of its caller, who then
// keeps that memory alive for the packet's whole life. There is no deep copy, nothing is virtual,
// and no operation checks a bound.
template <typename T>
class VelmoraDataPakket {
 public:
  VelmoraDataPakket(VelmoraDataPakket const&) = delete;
  VelmoraDataPakket& operator=(VelmoraDataPakket const&) = delete;
  VelmoraDataPakket(VelmoraDataPakket&&) = delete;
  VelmoraDataPakket& operator=(VelmoraDataPakket&&) = delete;

  // The payload, and its size in bytes. The payload of a packet over raw bytes may lie at an odd
  // address: go through geefElement there.
  T* geefData() { return data; }
  T const* geefData() const { return data; }
  unsigned long long geefAantalBytes() const { return aantalBytes; }
  // The size of one element in bytes; 0 in a packet built without arguments.
  unsigned long long geefElementGrootte() const { return elementGrootte; }
  bool isEigenaar() const { return eigenaar; }
  // The next packet of the chain, or null. Not owned.
  VelmoraDataPakket* geefVolgende() const { return volgende; }

  // Element `i` lies at byte i x elementGrootte. The field decides, not the static size of T, and
  // the block of a packet over raw bytes may lie at an odd address: hence the byte-wise copies.
  T geefElement(unsigned long long i) const {
    T waarde;
    std::memcpy(&waarde, bytes() + i * elementGrootte, sizeof waarde);
    return waarde;
  }
  void zetElement(unsigned long long i, T waarde) {
    std::memcpy(bytes() + i * elementGrootte, &waarde, sizeof waarde);
  }

 protected:
  VelmoraDataPakket() = default;
  VelmoraDataPakket(T* blok, unsigned long long grootteInBytes, unsigned long long elementBytes,
                    bool neemtOver)
      : data(blok),
        aantalBytes(grootteInBytes),
        elementGrootte(elementBytes),
        eigenaar(neemtOver) {}
  ~VelmoraDataPakket() {
    if (eigenaar) {
      delete[] data;
    }
  }

  void zetVolgende(VelmoraDataPakket* pakket) { volgende = pakket; }

  // The payload as plain bytes.
  unsigned char* bytes() { return reinterpret_cast<unsigned char*>(data); }
  unsigned char const* bytes() const { return reinterpret_cast<unsigned char const*>(data); }

 private:
  T* data = nullptr;
  unsigned long long aantalBytes = 0;
  unsigned long long elementGrootte = 0;
  bool eigenaar = false;
  VelmoraDataPakket* volgende = nullptr;
};
