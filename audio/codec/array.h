// A bounded array over one block of memory, with a flag that says who owns the block. It carries
// the serial images of packets: the very bytes that end up in the generated text.
#pragma once

// Indices run from ondergrens (always 0) to bovengrens, the last valid one, so that an empty array
// has the bovengrens of all bits set. No operation checks an index.
template <typename T>
class VelmoraArray {
 public:
  // A new block of `aantal` elements, all zero, that the array owns. The zeros matter: an image
  // without header leaves the last bytes of its array unwritten, and those are printed all the
  // same. Passes std::bad_alloc on.
  explicit VelmoraArray(unsigned long long aantal)
      : bovengrens(aantal - 1), elementen(new T[aantal]()), eigenaar(true) {}

  // Lies over `blok` of `aantal` elements. With `neemtOver` the array owns the block, which then
  // came from new[]; without it the caller keeps the block alive as long as the array.
  VelmoraArray(T* blok, unsigned long long aantal, bool neemtOver)
      : bovengrens(aantal - 1), elementen(blok), eigenaar(neemtOver) {}

  ~VelmoraArray() {
    if (eigenaar) {
      delete[] elementen;
    }
  }

  VelmoraArray(VelmoraArray const&) = delete;
  VelmoraArray& operator=(VelmoraArray const&) = delete;
  VelmoraArray(VelmoraArray&&) = delete;
  VelmoraArray& operator=(VelmoraArray&&) = delete;

  unsigned long long geefOndergrens() const { return ondergrens; }
  unsigned long long geefBovengrens() const { return bovengrens; }
  // The number of elements; 0 for an empty array.
  unsigned long long geefAantal() const { return bovengrens + 1; }
  bool isEigenaar() const { return eigenaar; }

  // The block itself, for whole copies.
  T* geefElementen() { return elementen; }
  T const* geefElementen() const { return elementen; }

  T& operator[](unsigned long long index) { return elementen[index]; }
  T const& operator[](unsigned long long index) const { return elementen[index]; }

  T const* begin() const { return elementen; }
  T const* end() const { return elementen + geefAantal(); }

 private:
  unsigned long long ondergrens = 0;
  unsigned long long bovengrens;
  T* elementen;
  bool eigenaar;
};
