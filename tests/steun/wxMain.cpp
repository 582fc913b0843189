// The main of the windowless test programs.
#include "tests/steun/wxMain.h"

#include <gtest/gtest.h>
#include <wx/debug.h>
#include <wx/init.h>
#include <wx/log.h>

#include <clocale>
#include <filesystem>
#include <iostream>
#include <memory>
#include <type_traits>
#include <utility>

namespace {

std::vector<LogRegel>& meldingen() {
  static std::vector<LogRegel> verzameld;
  return verzameld;
}

class SchoonLog : public testing::EmptyTestEventListener {
  void OnTestStart(testing::TestInfo const& /*test*/) override { meldingen().clear(); }
};

int draai(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // File names in the tests carry accents, whatever the machine's own locale, where they are bytes.
  constexpr bool isBytes = std::is_same_v<std::filesystem::path::value_type, char>;
  if (isBytes && std::setlocale(LC_ALL, "C.UTF-8") == nullptr) {
    std::cerr << "the locale C.UTF-8 is missing\n";
    return 1;
  }
  wxInitializer const toolkit;
  if (!toolkit.IsOk()) {
    std::cerr << "the toolkit does not start\n";
    return 1;
  }
  wxSetAssertHandler(meldAssertie);
  VerzamelLog log(meldingen());
  std::unique_ptr<wxLog> const vorigLog(wxLog::SetActiveTarget(&log));
  auto schoonLog = std::make_unique<SchoonLog>();
  testing::UnitTest::GetInstance()->listeners().Append(schoonLog.release());
  int const uitslag = RUN_ALL_TESTS();
  static_cast<void>(wxLog::SetActiveTarget(nullptr));
  return uitslag;
}

}  // namespace

std::vector<LogRegel> neemLog() {
  wxLog::FlushActive();
  return std::exchange(meldingen(), {});
}

int main(int argc, char** argv) {
  return draai(argc, argv);
}
