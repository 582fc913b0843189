#include "tests/externals/software/extern/speex/speexOproepen.h"

#include <speex/speex.h>
#include <speex/speex_preprocess.h>

#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

// The library's own functions, and ours in their place, by the names that the linker gives them.
extern "C" {
void echtBitsInit(SpeexBits* bits) asm("__real_speex_bits_init");
void echtBitsDestroy(SpeexBits* bits) asm("__real_speex_bits_destroy");
void echtBitsLees(SpeexBits* bits, char const* data, int bytes) asm("__real_speex_bits_read_from");
int echtBitsSchrijf(SpeexBits* bits, char* doel, int grens) asm("__real_speex_bits_write");
SpeexMode const* echtModus(int nummer) asm("__real_speex_lib_get_mode");
void* echtEncoderInit(SpeexMode const* modus) asm("__real_speex_encoder_init");
void echtEncoderDestroy(void* toestand) asm("__real_speex_encoder_destroy");
int echtEncoderCtl(void* toestand, int verzoek, void* waarde) asm("__real_speex_encoder_ctl");
int echtEncode(void* toestand, float* samples, SpeexBits* bits) asm("__real_speex_encode");
int echtEncodeInt(void* toestand, spx_int16_t* in, SpeexBits* bits) asm("__real_speex_encode_int");
void* echtDecoderInit(SpeexMode const* modus) asm("__real_speex_decoder_init");
void echtDecoderDestroy(void* toestand) asm("__real_speex_decoder_destroy");
int echtDecoderCtl(void* toestand, int verzoek, void* waarde) asm("__real_speex_decoder_ctl");
int echtDecode(void* toestand, SpeexBits* bits, float* uit) asm("__real_speex_decode");
int echtDecodeInt(void* toestand, SpeexBits* bits, spx_int16_t* uit) asm("__real_speex_decode_int");
SpeexPreprocessState* echtPreInit(int frame, int freq) asm("__real_speex_preprocess_state_init");
void echtPreDestroy(SpeexPreprocessState* toestand) asm("__real_speex_preprocess_state_destroy");
int echtPreCtl(SpeexPreprocessState* st, int verzoek, void* in) asm("__real_speex_preprocess_ctl");
int echtPreRun(SpeexPreprocessState* st, spx_int16_t* in) asm("__real_speex_preprocess_run");
void echtPreSchat(SpeexPreprocessState* st,
                  spx_int16_t* in) asm("__real_speex_preprocess_estimate_update");

void vangBitsInit(SpeexBits* bits) asm("__wrap_speex_bits_init");
void vangBitsDestroy(SpeexBits* bits) asm("__wrap_speex_bits_destroy");
void vangBitsLees(SpeexBits* bits, char const* data, int bytes) asm("__wrap_speex_bits_read_from");
int vangBitsSchrijf(SpeexBits* bits, char* doel, int grens) asm("__wrap_speex_bits_write");
SpeexMode const* vangModus(int nummer) asm("__wrap_speex_lib_get_mode");
void* vangEncoderInit(SpeexMode const* modus) asm("__wrap_speex_encoder_init");
void vangEncoderDestroy(void* toestand) asm("__wrap_speex_encoder_destroy");
int vangEncoderCtl(void* toestand, int verzoek, void* waarde) asm("__wrap_speex_encoder_ctl");
int vangEncode(void* toestand, float* samples, SpeexBits* bits) asm("__wrap_speex_encode");
int vangEncodeInt(void* toestand, spx_int16_t* in, SpeexBits* bits) asm("__wrap_speex_encode_int");
void* vangDecoderInit(SpeexMode const* modus) asm("__wrap_speex_decoder_init");
void vangDecoderDestroy(void* toestand) asm("__wrap_speex_decoder_destroy");
int vangDecoderCtl(void* toestand, int verzoek, void* waarde) asm("__wrap_speex_decoder_ctl");
int vangDecode(void* toestand, SpeexBits* bits, float* uit) asm("__wrap_speex_decode");
int vangDecodeInt(void* toestand, SpeexBits* bits, spx_int16_t* uit) asm("__wrap_speex_decode_int");
SpeexPreprocessState* vangPreInit(int frame, int freq) asm("__wrap_speex_preprocess_state_init");
void vangPreDestroy(SpeexPreprocessState* toestand) asm("__wrap_speex_preprocess_state_destroy");
int vangPreCtl(SpeexPreprocessState* st, int verzoek, void* in) asm("__wrap_speex_preprocess_ctl");
int vangPreRun(SpeexPreprocessState* st, spx_int16_t* in) asm("__wrap_speex_preprocess_run");
void vangPreSchat(SpeexPreprocessState* st,
                  spx_int16_t* in) asm("__wrap_speex_preprocess_estimate_update");
}

namespace {

struct Opname {
  std::vector<Oproep> oproepen;
  Streek streek = Streek::eerlijk;
};

Opname& opname() {
  static Opname enige;
  return enige;
}

void noteer(std::string const& tekst, void const* toestand, void const* adres = nullptr) {
  opname().oproepen.push_back({tekst, toestand, adres});
}

std::string naamVan(SpeexMode const* modus) {
  if (modus == &speex_nb_mode) {
    return "narrowband";
  }
  if (modus == &speex_wb_mode) {
    return "wideband";
  }
  return modus == &speex_uwb_mode ? "ultra wideband" : "no mode";
}

// The value of a request that sets something: of those of the library, the even ones with a value.
std::string waardeVan(int verzoek, void const* waarde) {
  if (verzoek % 2 != 0 || waarde == nullptr) {
    return "";
  }
  spx_int32_t geheel = 0;
  std::memcpy(&geheel, waarde, sizeof geheel);
  return " " + std::to_string(geheel);
}

// Notes a control call and lets `echt` make it.
template <typename Echt, typename Toestand>
int regel(std::string const& naam, Echt echt, Toestand* toestand, int verzoek, void* waarde) {
  noteer(naam + " " + std::to_string(verzoek) + waardeVan(verzoek, waarde), toestand, waarde);
  int const resultaat = echt(toestand, verzoek, waarde);
  return opname().streek == Streek::liegt ? -1 : resultaat;
}

}  // namespace

void vangBitsInit(SpeexBits* bits) {
  noteer("speex_bits_init", bits);
  echtBitsInit(bits);
}

void vangBitsDestroy(SpeexBits* bits) {
  noteer("speex_bits_destroy", bits);
  echtBitsDestroy(bits);
}

void vangBitsLees(SpeexBits* bits, char const* data, int bytes) {
  if (opname().streek == Streek::zwijgt) {
    return;
  }
  noteer("speex_bits_read_from " + std::to_string(bytes), bits, data);
  echtBitsLees(bits, data, bytes);
}

int vangBitsSchrijf(SpeexBits* bits, char* doel, int grens) {
  noteer("speex_bits_write " + std::to_string(grens), bits, doel);
  if (opname().streek != Streek::lang) {
    return echtBitsSchrijf(bits, doel, grens);
  }
  for (int i = 0; i < grens; ++i) {
    doel[i] = static_cast<char>(i);
  }
  return grens;
}

SpeexMode const* vangModus(int nummer) {
  SpeexMode const* const modus = echtModus(nummer);
  noteer("speex_lib_get_mode " + std::to_string(nummer), modus);
  return modus;
}

void* vangEncoderInit(SpeexMode const* modus) {
  void* const toestand = echtEncoderInit(modus);
  noteer("speex_encoder_init " + naamVan(modus), toestand);
  return toestand;
}

void vangEncoderDestroy(void* toestand) {
  noteer("speex_encoder_destroy", toestand);
  echtEncoderDestroy(toestand);
}

int vangEncoderCtl(void* toestand, int verzoek, void* waarde) {
  return regel("speex_encoder_ctl", echtEncoderCtl, toestand, verzoek, waarde);
}

int vangEncode(void* toestand, float* samples, SpeexBits* bits) {
  noteer("speex_encode", toestand, samples);
  int const resultaat = echtEncode(toestand, samples, bits);
  return opname().streek == Streek::liegt ? -1 : resultaat;
}

int vangEncodeInt(void* toestand, spx_int16_t* in, SpeexBits* bits) {
  noteer("speex_encode_int", toestand, in);
  return echtEncodeInt(toestand, in, bits);
}

void* vangDecoderInit(SpeexMode const* modus) {
  void* const toestand = echtDecoderInit(modus);
  noteer("speex_decoder_init " + naamVan(modus), toestand);
  return toestand;
}

void vangDecoderDestroy(void* toestand) {
  noteer("speex_decoder_destroy", toestand);
  echtDecoderDestroy(toestand);
}

int vangDecoderCtl(void* toestand, int verzoek, void* waarde) {
  int const resultaat = regel("speex_decoder_ctl", echtDecoderCtl, toestand, verzoek, waarde);
  if (opname().streek == Streek::liegt && verzoek == SPEEX_GET_FRAME_SIZE) {
    constexpr spx_int32_t gelogen = 9999;
    std::memcpy(waarde, &gelogen, sizeof gelogen);
  }
  return resultaat;
}

int vangDecode(void* toestand, SpeexBits* bits, float* uit) {
  noteer("speex_decode", toestand, uit);
  return echtDecode(toestand, bits, uit);
}

int vangDecodeInt(void* toestand, SpeexBits* bits, spx_int16_t* uit) {
  if (opname().streek == Streek::zwijgt) {
    return -2;
  }
  noteer("speex_decode_int", toestand, uit);
  return echtDecodeInt(toestand, bits, uit);
}

SpeexPreprocessState* vangPreInit(int frame, int freq) {
  SpeexPreprocessState* const toestand = echtPreInit(frame, freq);
  noteer("speex_preprocess_state_init " + std::to_string(frame) + " " + std::to_string(freq),
         toestand);
  return toestand;
}

void vangPreDestroy(SpeexPreprocessState* toestand) {
  noteer("speex_preprocess_state_destroy", toestand);
  echtPreDestroy(toestand);
}

int vangPreCtl(SpeexPreprocessState* st, int verzoek, void* in) {
  return regel("speex_preprocess_ctl", echtPreCtl, st, verzoek, in);
}

int vangPreRun(SpeexPreprocessState* st, spx_int16_t* in) {
  noteer("speex_preprocess_run", st, in);
  return echtPreRun(st, in);
}

void vangPreSchat(SpeexPreprocessState* st, spx_int16_t* in) {
  noteer("speex_preprocess_estimate_update", st, in);
  echtPreSchat(st, in);
}

std::vector<Oproep> neemOproepen() {
  return std::exchange(opname().oproepen, {});
}

std::vector<std::string> teksten(std::vector<Oproep> const& oproepen) {
  std::vector<std::string> regels;
  std::transform(oproepen.begin(), oproepen.end(), std::back_inserter(regels),
                 [](Oproep const& oproep) { return oproep.tekst; });
  return regels;
}

std::vector<Oproep> metBegin(std::vector<Oproep> const& oproepen, std::string const& begin) {
  std::vector<Oproep> gevonden;
  std::copy_if(oproepen.begin(), oproepen.end(), std::back_inserter(gevonden),
               [&](Oproep const& oproep) { return oproep.tekst.rfind(begin, 0) == 0; });
  return gevonden;
}

MetStreek::MetStreek(Streek streek) {
  opname().streek = streek;
}

MetStreek::~MetStreek() {
  opname().streek = Streek::eerlijk;
}
