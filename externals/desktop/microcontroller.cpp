#include "externals/desktop/microcontroller.h"

VelmoraMicrocontroller::VelmoraMicrocontroller(VelmoraRTOS* besturingssysteem)
    : os(besturingssysteem) {}

IntelProcessor::IntelProcessor() : VelmoraMicrocontroller(nullptr) {}

void IntelProcessor::mac(double a, double b, double& som) const {
  som += a * b;
}

void IntelProcessor::mac(short a, short b, short& som) const {
  // At most 2^30 + 2^15 in 32 bits; the low half is the wrapped result.
  som = static_cast<short>(static_cast<unsigned short>(som + a * b));
}
