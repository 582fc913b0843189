// The common base of the audio packets: a block of samples or encoded bytes in memory, its size,
// who owns it, and the next packet of a chain.
#pragma once

#include <cstring>
#include <memory>

// A packet either owns its block (it allocated it) or lies over memory of its caller, who then
// keeps that memory alive for the packet's whole life. There is no deep copy, nothing is virtual,
// and no operation checks a bound.
//
// A packet is a handle on its block: a const packet keeps its place and size, but its samples can
// be written. The coder fills the packets that it gets that way.
template <typename T>
class VelmoraDataPakket {
 public:
  VelmoraDataPakket(VelmoraDataPakket const&) = delete;
  VelmoraDataPakket& operator=(VelmoraDataPakket const&) = delete;
  VelmoraDataPakket(VelmoraDataPakket&&) = delete;
  VelmoraDataPakket& operator=(VelmoraDataPakket&&) = delete;

  // The payload, and its size in bytes. The payload of a packet over raw bytes may lie at an odd
  // address: go through geefElement there.
  T* geefData() const { return data; }
  unsigned long long geefAantalBytes() const { return aantalBytes; }
  // The size of one element in bytes; 0 in a packet built without arguments.
  unsigned long long geefElementGrootte() const { return elementGrootte; }
  // The number of elements in the block, for the element sizes 1 and 2, the only two in use: a
  // shift by the size less 1. The mask keeps the size 0 of an empty packet a defined shift of its 0
  // bytes.
  unsigned long long geefAantalElementen() const {
    constexpr unsigned long long masker = 63;
    return aantalBytes >> ((elementGrootte - 1) & masker);
  }
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
  void zetElement(unsigned long long i, T waarde) const {
    std::memcpy(bytes() + i * elementGrootte, &waarde, sizeof waarde);
  }

 protected:
  VelmoraDataPakket() = default;
  VelmoraDataPakket(T* blok, unsigned long long grootteInBytes, unsigned long long elementBytes,
                    bool neemtOver)
      : data(blok),
        aantalBytes(grootteInBytes),
        elementGrootte(elementBytes),
        eigenaar(neemtOver),
        bezit(neemtOver ? Bezit(blok) : Bezit()) {}
  // Copies all fields of `ander`, the flag of ownership too. Two owners of one block share it: the
  // last one to go releases it.
  struct OverHetzelfdeBlok {};
  VelmoraDataPakket(OverHetzelfdeBlok /*keuze*/, VelmoraDataPakket const& ander)
      : data(ander.data),
        aantalBytes(ander.aantalBytes),
        elementGrootte(ander.elementGrootte),
        eigenaar(ander.eigenaar),
        volgende(ander.volgende),
        bezit(ander.bezit) {}
  ~VelmoraDataPakket() = default;

  // A packet over somebody else's block holds it behind the one pointer type that it has; the
  // caller decides whether an operation that writes is called on it.
  static T* zonderConst(T const* blok) { return const_cast<T*>(blok); }

  void zetVolgende(VelmoraDataPakket* pakket) { volgende = pakket; }

  // The payload as plain bytes.
  unsigned char* bytes() const { return reinterpret_cast<unsigned char*>(data); }

 private:
  using Bezit = std::shared_ptr<T[]>;  // NOLINT(modernize-avoid-c-arrays): of any length

  T* data = nullptr;
  unsigned long long aantalBytes = 0;
  unsigned long long elementGrootte = 0;
  bool eigenaar = false;
  VelmoraDataPakket* volgende = nullptr;
  Bezit bezit;  // the block, where the packet owns it
};
