// The locale contract, kept by Windows.
#include "platform/win32/win32_locale.h"
#include "tests/contract/locale_contract.h"

namespace zentar {
namespace {

std::unique_ptr<Locale> MakeWin32Locale() { return std::make_unique<Win32Locale>(); }

}  // namespace

INSTANTIATE_TEST_SUITE_P(Win32, LocaleContract, testing::Values(&MakeWin32Locale));

}  // namespace zentar
