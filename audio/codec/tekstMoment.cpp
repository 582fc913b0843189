#include "audio/codec/tekstMoment.h"

#include <wx/datetime.h>

#include <optional>

namespace {

std::optional<std::time_t>& vastMoment() {
  static std::optional<std::time_t> moment;
  return moment;
}

}  // namespace

wxString tekstMoment() {
  bool const isVast = vastMoment().has_value();
  wxDateTime const moment = isVast ? wxDateTime(*vastMoment()) : wxDateTime::Now();
  wxDateTime::TimeZone const zone(isVast ? wxDateTime::UTC : wxDateTime::Local);
  return moment.Format("%Y-%m-%d", zone) + " : " + moment.Format("%H:%M:%S", zone);
}

void legTekstMomentVast(std::time_t moment) {
  vastMoment() = moment;
}
