// VelmoraMemBuffer: a block of memory divided into slots of one size, either its own or a view over
// a block of somebody else.
#pragma once

// Sizes are in bytes. No argument is checked. The size of the block is a product in 64 bits, which
// wraps: what may be written to is told by grootte() and slotGrootte(), never by what was asked
// for.
class VelmoraMemBuffer {
 public:
  // A view over `sloten` slots of `slotGrootte` bytes from `adres` on. The caller keeps the block
  // alive as long as the buffer, and releases it.
  VelmoraMemBuffer(unsigned char* adres, unsigned long long slotGrootte, unsigned long long sloten)
      : grootte_(slotGrootte * sloten), sloten_(sloten), adres_(adres), eigenaar_(false) {}

  // A new block of `sloten` slots of `slotGrootte` bytes, which the buffer owns and releases. It is
  // not cleared. Passes std::bad_alloc on.
  VelmoraMemBuffer(unsigned long long slotGrootte, unsigned long long sloten)
      : grootte_(slotGrootte * sloten),
        sloten_(sloten),
        adres_(new unsigned char[grootte_]),
        eigenaar_(true) {}

  ~VelmoraMemBuffer() {
    if (eigenaar_) {
      delete[] adres_;
    }
  }

  VelmoraMemBuffer(VelmoraMemBuffer const&) = delete;
  VelmoraMemBuffer& operator=(VelmoraMemBuffer const&) = delete;
  VelmoraMemBuffer(VelmoraMemBuffer&&) = delete;
  VelmoraMemBuffer& operator=(VelmoraMemBuffer&&) = delete;

  // The first byte of the first slot. Of a block of 0 bytes it must not be read.
  unsigned char* adres() const { return adres_; }

  // The number of slots.
  unsigned long long sloten() const { return sloten_; }

  // All bytes of the block.
  unsigned long long grootte() const { return grootte_; }

  // The bytes of one slot: grootte() divided by sloten(), truncated. Without slots it is 0; that is
  // settled, and callers may rely on it.
  unsigned long long slotGrootte() const { return sloten_ == 0 ? 0 : grootte_ / sloten_; }

 private:
  unsigned long long grootte_;
  unsigned long long sloten_;
  unsigned char* adres_;
  bool eigenaar_;
};
