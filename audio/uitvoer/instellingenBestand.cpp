#include "audio/uitvoer/instellingenBestand.h"

#include "numeriek/configGetal.h"

namespace {

// Hands each setting to `werk`, with its key, in the order of the file. The one list of them: what
// is read at the start is written at the end.
template <typename Record, typename Werk>
void bezoekInstellingen(Record& record, Werk const& werk) {
  werk("speexFormat", record.speexFormat);
  werk("speexQuality", record.speexQuality);
  werk("speexComplexity", record.speexComplexity);
  werk("speexBitRateChoice", record.speexBitRateChoice);
  werk("speexBitRate", record.speexBitRate);
  werk("speexOutputLanguage", record.speexOutputLanguage);
  werk("speexVAC", record.speexVAC);
  werk("speexDenoise", record.speexDenoise);
  werk("speexAGC", record.speexAGC);
  werk("IncludeHeader", record.IncludeHeader);
  werk("dacNumberOfBits", record.dacNumberOfBits);
}

// A flag is stored as a number, of which the low byte counts.
void zet(bool& veld, int getal) {
  veld = static_cast<unsigned char>(getal) != 0;
}
void zet(int& veld, int getal) {
  veld = getal;
}
void zet(unsigned int& veld, int getal) {
  veld = static_cast<unsigned int>(getal);
}

}  // namespace

void leesInstellingen(wxConfigBase const& config, KestrolinConfig& record) {
  bezoekInstellingen(record, [&config](char const* sleutel, auto& veld) {
    zet(veld, leesGetal(config, sleutel, static_cast<int>(veld)));
  });
}

void schrijfInstellingen(KestrolinConfig const& record, wxConfigBase& config) {
  bezoekInstellingen(
      record, [&config](char const* sleutel, auto const& veld) { config.Write(sleutel, veld); });
}
