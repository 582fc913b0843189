#include "tests/externals/software/extern/speex/sndOproepen.h"

#include <sndfile.h>

#include <memory>

#include "tests/steun/krapGeheugen.h"

extern "C" {
SNDFILE* echtOpen(char const* pad, int modus, SF_INFO* info) asm("__real_sf_open");
sf_count_t echtLees(SNDFILE* handvat, short* doel, sf_count_t aantal) asm("__real_sf_read_short");
sf_count_t echtSchrijf(SNDFILE* handvat, short const* bron,
                       sf_count_t aantal) asm("__real_sf_write_short");

SNDFILE* vangOpen(char const* pad, int modus, SF_INFO* info) asm("__wrap_sf_open");
sf_count_t vangLees(SNDFILE* handvat, short* doel, sf_count_t aantal) asm("__wrap_sf_read_short");
sf_count_t vangSchrijf(SNDFILE* handvat, short const* bron,
                       sf_count_t aantal) asm("__wrap_sf_write_short");
}

namespace {

struct Toestand {
  SndStoring storing;
  unsigned long long writes = 0;
  std::unique_ptr<KrapGeheugen> krap;
};

Toestand& toestand() {
  static Toestand enige;
  return enige;
}

}  // namespace

SNDFILE* vangOpen(char const* pad, int modus, SF_INFO* info) {
  SNDFILE* const handvat = echtOpen(pad, modus, info);
  if (toestand().storing.krapNaOpen) {
    toestand().krap = std::make_unique<KrapGeheugen>(1);
  }
  return handvat;
}

sf_count_t vangLees(SNDFILE* handvat, short* doel, sf_count_t aantal) {
  std::optional<int>& resterend = toestand().storing.gelukteReads;
  if (resterend && --*resterend < 0) {
    return 0;
  }
  return echtLees(handvat, doel, aantal);
}

sf_count_t vangSchrijf(SNDFILE* handvat, short const* bron, sf_count_t aantal) {
  ++toestand().writes;
  return toestand().storing.schijfLoos ? aantal : echtSchrijf(handvat, bron, aantal);
}

MetSndStoring::MetSndStoring(SndStoring const& storing) {
  toestand().storing = storing;
  toestand().writes = 0;
}

MetSndStoring::~MetSndStoring() {
  toestand().storing = {};
  toestand().krap.reset();
}

unsigned long long MetSndStoring::writes() {
  return toestand().writes;
}
